// The directories above and below one, as the classic control shows them.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

// A directory and its children. List(-1) is the path itself, List(-2) its parent and so on up to
// the root; List(0) and on are the children, all as full names.
class DirListBox : public Control {
 public:
  DirListBox() : Control(ControlKind::kDirListBox) {}

  // Setting it reads the children, sets ListIndex to -1 and raises the change event. "X:" and a
  // drive list's "x: [LABEL]" stand for that drive's root, whatever its current directory. Raises
  // kPathNotFound, or kDeviceUnavailable where the drive itself is not there; the former path
  // stays then.
  const Text& Path() const { return path_; }
  void SetPath(TextView path);

  int ListCount() const { return static_cast<int>(children_.size()); }
  // Full name of an entry, empty for an index that has none.
  Text List(int index) const;
  // Number of levels above the path: List(-1 - Depth()) is the root.
  int Depth() const;
  int ListIndex() const { return list_index_; }
  // Highlights an entry; raises kInvalidProperty for one that does not exist.
  void SetListIndex(int index);
  // What a double click on the highlighted entry does: it becomes the path.
  void Open();
  // Reads the children again and keeps the highlighted entry, where it is still there. A path that
  // has gone gives way to its nearest parent that exists, or to its root, which then has no
  // children; only that raises the change event. Never raises an error.
  void Update();

  Event on_change;

 private:
  int IndexOf(TextView directory) const;

  Text path_;
  std::vector<Text> children_;
  int list_index_ = -1;
};

}  // namespace trovex
