// Ground of the tests of the program in its real windows: drive D:, a machine on which nothing
// starts, and a user.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Lib/LIB_INI.h"
#include "Platform/Encoding.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/MainForm.h"
#include "support/FakeShell.h"
#include "support/SampleDisc.h"
#include "support/TestDisc.h"
#include "support/Win32/BoxAnswerer.h"
#include "support/Win32/WindowUser.h"

namespace trovex::test {

class WindowTest : public ::testing::Test, protected WindowUser {
 protected:
  WindowTest() {
    WriteSampleDisc(disc.HostPath(""));
    disc.Directory("PROG");
    disc.Directory("TMP");
    machine.environment[u"TMP"] = u"D:\\TMP";
    machine.labels[u"D"] = u"GRENIER";
    machine.types[u"D"] = DriveType::kCdRom;
    SetEndOfProgram([this] { ++ends; });
  }
  ~WindowTest() override {
    while (!LoadedForms().empty()) {
      LoadedForms().back()->on_unload = {};
      LoadedForms().back()->Unload();
    }
    SetEndOfProgram({});
  }

  void TearDown() override {
    for (const BoxAnswerer::Seen& box : boxes.Unexpected()) {
      ADD_FAILURE() << "a box nobody expected: " << ToUtf8(box.text);
    }
  }

  TestDisc disc;
  BoxAnswerer boxes;
  FakeShell machine{disc.GetPlatform()};
  int ends = 0;

 private:
  PlatformScope machine_scope_{machine};
};

}  // namespace trovex::test
