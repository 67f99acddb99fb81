// A drive letter that shows a disc image: names of the program on it, and what they lead to.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "Image/Disc.h"

namespace trovex::image {

// Where a name leads.
struct Place {
  // That holds the entry, or the directory itself where `number` says none; null where a directory
  // on the way is missing or cannot be read.
  std::shared_ptr<const Folder> folder;
  std::optional<std::size_t> number;
  bool missing = false;  // the folder has no such entry

  bool IsThere() const { return folder && !missing; }
  bool IsFile() const;
  bool IsDirectory() const { return IsThere() && !IsFile(); }
};

class Drive {
 public:
  Drive(char16_t letter, std::shared_ptr<Disc> disc);

  const std::shared_ptr<Disc>& GetDisc() const { return disc_; }

  // The current directory of the drive, "X:\..." without final backslash but for the root.
  const Text& Current() const { return current_; }
  void SetCurrent(Text full) { current_ = std::move(full); }

  // The whole name that `rest`, what follows "X:", stands for: '/' turned into '\', "." and ".."
  // levels resolved, without final backslash but for a root.
  Text FullName(TextView rest) const;
  // `full` is a whole name.
  Place Find(TextView full);
  // A directory; null where there is none such, or it cannot be read.
  std::shared_ptr<const Folder> Open(TextView full);

 private:
  struct Known {
    Text name;
    std::shared_ptr<const Folder> folder;
  };

  std::shared_ptr<const Folder> Recall(TextView full);
  void Remember(TextView full, std::shared_ptr<const Folder> folder);

  char16_t letter_;
  std::shared_ptr<Disc> disc_;
  Text current_;
  std::array<Known, 8> known_;  // the latest first
};

}  // namespace trovex::image
