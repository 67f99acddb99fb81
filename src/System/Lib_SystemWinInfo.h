// The window that tells what the machine is: directories, memory, system, processor, and the list
// of running programs. Loading it is all it needs.
#pragma once

#include "Ui/Button.h"
#include "Ui/Form.h"
#include "Ui/Label.h"
#include "Ui/ListBox.h"

namespace trovex {

class Lib_SystemWinInfo : public Form {
 public:
  Lib_SystemWinInfo();

  Label& Label2(int index) { return Get<Label>(u"Label2", index); }
  // The values; the index is not that of the caption beside it: 4 is the processor, 5 the system's
  // name, 7 its version, and there is no 6.
  Label& LabelInfo(int index) { return Get<Label>(u"LabelInfo", index); }

  Frame& ZoneInfos;
  Button& CommandMSInfo;
  Button& AfficheProcess;
  ListBox& ListProcess;

 private:
  void Form_Load();
  void WriteValues();
  // Adds the running programs below what the list holds already.
  void AfficheProcess_Click();
};

// The name of a processor by its type; a type that is not known gets the caption of the list of
// programs.
const Text& sNomProcesseur(std::uint32_t dwProcessorType);

// A number of bytes, as a signed one of 32 bits, in the picture "###.###.###.###" and thousands of
// 1024, rounded, with its unit: "65.536 Ko". A zero has no digit.
Text sFormatMemoire(std::uint32_t dwOctets);

}  // namespace trovex
