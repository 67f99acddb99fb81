// The file dialogs and the help viewer, behind one control without a surface.
#pragma once

#include "Ui/Control.h"

namespace trovex {

class CommonDialog : public Control {
 public:
  enum class Mode { kOpen, kSave };

  CommonDialog() : Control(ControlKind::kCommonDialog) {}

  Text title;
  Text filter;  // "Caption|pattern|Caption|pattern"
  Text default_extension;
  unsigned flags = 0;
  Text file_name;
  Mode mode = Mode::kOpen;

  Text help_file;
  int help_command = 0;
  Text help_key;

  // Shows the dialog; false, and everything as it was, if it was cancelled.
  bool ShowFile(Mode which);
  void ShowHelp();
};

}  // namespace trovex
