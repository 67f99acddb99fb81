// The drives of the machine, as the classic control shows them.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

// The drives of the machine, as "d: [LABEL]" or "d:". A drive that may take its time to answer (a
// floppy, a network's) is asked for its label only while it is the one that was chosen.
class DriveListBox : public Control {
 public:
  DriveListBox() : Control(ControlKind::kDriveListBox) {}

  // Reads the drives anew and selects the current directory's; that counts as no choice.
  void Reread();
  // Reads the drives and labels again and keeps the selected drive. None is selected while it has
  // gone; it comes back with its drive. No event is raised.
  void Update();
  int ListCount() const { return static_cast<int>(drives_.size()); }
  const Text& List(int index) const;
  int ListIndex() const { return list_index_; }
  // A new value raises the change event.
  void SetListIndex(int index);
  // What a choice of the user's does: the drive that is selected already raises on_again.
  void Choose(int index);

  // The selected entry's text. Setting it takes the first character for the drive's letter, and
  // raises kDeviceUnavailable if there is no such drive; a new one raises the change event.
  const Text& Drive() const { return List(list_index_); }
  void SetDrive(TextView drive);

  Event on_change;
  Event on_again;
  // The list is about to be dropped down before the user.
  Event on_drop_down;

 private:
  void ReadDrives();
  int IndexOf(char16_t letter) const;

  std::vector<Text> drives_;
  int list_index_ = -1;
  char16_t selected_ = 0;  // letter of the drive that is selected, or was until it went
  char16_t chosen_ = 0;    // letter of the drive that was chosen, 0 if none was
};

}  // namespace trovex
