// The files of a directory, as the classic control shows them.
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
  // Sets both from what has been read of the directory, null where that was not possible; raises as
  // SetPath, and keeps both former ones then.
  void Show(TextView path, const DirectoryEntries* entries, TextView pattern);

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

}  // namespace trovex
