// Drive letters, the current directories, and names made whole. Nothing here touches the disk.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Platform.h"

namespace trovex::posix {

struct Drive {
  char16_t letter = 0;
  std::string root;  // absolute host path of a directory
  DriveType type = DriveType::kFixed;
  Text label;
};

class Drives {
 public:
  // `current` 0: the first drive.
  Drives(std::vector<Drive> drives, char16_t current);

  // The drive of a letter in either case; null where none is mapped.
  const Drive* Find(char16_t letter) const;
  // The drive that "X", "X:" or "X:\" names, an empty text the current one; null for all else.
  const Drive* FindRoot(TextView root) const;
  // Bit 0 for A:.
  std::uint32_t Mask() const;

  // The whole name that a name stands for: "D:\Jeux\SETUP.EXE", '/' turned into '\', "." and ".."
  // levels resolved, without final backslash but for a root. None for an empty name, one with a
  // NUL, a network name, and one on a drive that is not mapped.
  std::optional<Text> FullName(TextView name) const;

  Text CurrentDirectory() const;
  // `directory` is a whole name.
  void SetDirectory(const Text& directory);
  // False where the drive is not mapped.
  bool SetDrive(char16_t letter);

 private:
  Text& DirectoryOf(char16_t letter) { return directories_[letter - u'A']; }

  std::vector<Drive> drives_;
  char16_t current_;
  // Current directory of each drive; empty stands for its root.
  std::array<Text, 26> directories_;
};

}  // namespace trovex::posix
