// What a run tells on standard error while it goes on, and of its end.
#pragma once

#include <iosfwd>
#include <string>

#include "Apps/trovex-cli/GivenNames.h"
#include "Apps/trovex-cli/Options.h"
#include "Platform/RuntimeError.h"
#include "Ui/Headless/HeadlessView.h"

namespace trovex::cli {

// Shows the directory in hand on the terminal's last line, behind `prefix`, and error boxes on
// lines of their own, with the user's names of files.
class Progress {
 public:
  Progress(HeadlessView& view, const GivenNames& names, std::ostream& err, bool shown,
           std::string prefix = {});
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

 private:
  void OnRepaint(Control& control);
  void OnBox(const Box& box);
  void ClearLine();

  const GivenNames& names_;
  std::ostream& err_;
  bool shown_;
  std::string prefix_;
  bool line_used_ = false;
};

// The one line about a run-time error that ended something.
std::string MessageOf(const RuntimeError& error);

// Takes the settings over: those of the file `ini`, if it is named or the options ask for one, and
// those that the options are themselves.
void UseSettings(const Options& options, const Text& ini);

}  // namespace trovex::cli
