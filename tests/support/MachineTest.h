// Ground of the tests of what reaches out of the program: the logic's ground, on a machine whose
// answers the test spells out.
#pragma once

#include "Lib/Dialogs.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/Lib_Form.h"
#include "support/ExecutableBuilder.h"
#include "support/FakeShell.h"
#include "support/LogicTest.h"

namespace trovex::test {

class MachineTest : public LogicTest {
 protected:
  MachineTest() { Rest(); }
  ~MachineTest() override { Rest(); }

  // The last box without what a run-time error adds to it.
  Text BoxMessage() const { return LastBox().substr(0, LastBox().find(u"\r\n\r\nError #")); }
  // The number of the run-time error in the last box; 0 if there is none.
  int BoxError() const {
    const std::size_t place = LastBox().find(u"Error #");
    return place == Text::npos ? 0 : static_cast<int>(Val(LastBox().substr(place + 7)));
  }

  FakeShell machine{disc.GetPlatform()};

 private:
  static void Rest() {
    for (Text* sAppli : {&sAppliHtm, &sAppliDoc, &sAppliBmp, &sAppliExplorer}) sAppli->clear();
    sFenetreDevant.clear();
    sFichierDAide = u"TROVEX.HLP";
  }

  PlatformScope machine_scope_{machine};
};

}  // namespace trovex::test
