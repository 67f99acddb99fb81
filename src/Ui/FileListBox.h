// Lists that show drives, directories and files, as the classic controls do.
#pragma once

#include <vector>

#include "Platform/HeldDirectory.h"
#include "Platform/Pattern.h"
#include "Ui/Control.h"

namespace trovex {

// The plain names of one directory that match a pattern, in ascending order of their upper-cased
// texts; no path, no directories. Hidden and system files take part if that is switched on.
class FileListBox : public Control {
 public:
  FileListBox() : Control(ControlKind::kFileListBox) {}

  // Without final backslash but for a root. Setting it reads the directory; raises kPathNotFound,
  // and keeps the former one, where there is no such directory. An unreadable one gives no entry.
  const Text& Path() const { return path_; }
  void SetPath(TextView path);
  // Several patterns are separated by ';': a name that matches any of them is listed once.
  // Setting it reads the directory again, if a path was set.
  const Text& Pattern() const { return pattern_; }
  void SetPattern(TextView pattern);
  // Sets both with one reading; raises as SetPath, and keeps both former ones then.
  void Show(TextView path, TextView pattern);

  void SetHidden(bool hidden) { hidden_ = hidden; }
  void SetSystem(bool system) { system_ = system; }

  int ListCount() const { return count_; }
  // An index outside the list gives an empty text.
  const Text& List(int index) const;

 private:
  void TakePattern(TextView pattern);
  void Fill(const DirectoryEntries* entries);
  bool Takes(const ListedEntry& entry) const;

  Text path_;
  Text pattern_ = u"*.*";
  bool hidden_ = false;
  bool system_ = false;
  std::vector<NamePattern> patterns_;  // of pattern_, once a directory was read
  // The list, and behind it texts of longer ones before, to be written again.
  std::vector<Text> names_;
  int count_ = 0;
};

// A directory and its children. List(-1) is the path itself, List(-2) its parent and so on up to
// the root; List(0) and on are the children, all as full names.
class DirListBox : public Control {
 public:
  DirListBox() : Control(ControlKind::kDirListBox) {}

  // Setting it reads the children, sets ListIndex to -1 and raises the change event. "X:" and a
  // drive list's "x: [LABEL]" stand for the current directory of that drive, or its root. Raises
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

// The drives of the machine, as "d: [LABEL]" or "d:". A drive that may take its time to answer (a
// floppy, a network's) is asked for its label only while it is the one that was chosen.
class DriveListBox : public Control {
 public:
  DriveListBox() : Control(ControlKind::kDriveListBox) {}

  // Reads the drives anew and selects the current directory's; that counts as no choice.
  void Reread();
  // Reads the drives and labels again and keeps the selected drive, or none where it has gone. No
  // event is raised.
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
  char16_t chosen_ = 0;  // letter of the drive that was chosen, 0 if none was
};

}  // namespace trovex
