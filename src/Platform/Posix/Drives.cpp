#include "Platform/Posix/Drives.h"

#include <stdlib.h>

#include <memory>

namespace trovex::posix {
namespace {

bool IsLetter(char16_t unit) {
  return unit >= u'A' && unit <= u'Z';
}
bool IsSeparator(char16_t unit) {
  return unit == u'\\' || unit == u'/';
}

Text RootOf(char16_t letter) {
  return Text{letter, u':', u'\\'};
}

// The root's real path, so that it may be opened without following links, and "/" as "".
std::string RealRoot(const std::string& root) {
  const std::unique_ptr<char, decltype(&free)> real(realpath(root.c_str(), nullptr), &free);
  const std::string path = real ? real.get() : root;
  return path == "/" ? std::string() : path;
}

// Adds one level to a whole name.
void Descend(Text& path, TextView level) {
  if (level.empty() || level == u".") return;
  if (level == u"..") {
    const std::size_t last = path.rfind(u'\\');
    path.resize(last == 2 ? 3 : last);
    return;
  }
  if (path.back() != u'\\') path += u'\\';
  path += level;
}

// True for a name that is whole already, as nearly all are: "D:\\A\\B".
bool IsWhole(TextView name) {
  if (name.size() < 3 || !IsLetter(name[0]) || name[1] != u':' || name[2] != u'\\') return false;
  for (std::size_t i = 3; i < name.size(); ++i) {
    if (name[i] == u'/' || name[i] == u'\0') return false;
    // An empty level, or one that may be "." or "..".
    const bool starts_level = name[i - 1] == u'\\';
    if (starts_level && (name[i] == u'\\' || name[i] == u'.')) return false;
  }
  return name.size() == 3 || name.back() != u'\\';
}

}  // namespace

Drives::Drives(std::vector<Drive> drives, char16_t current) : drives_(std::move(drives)) {
  for (Drive& drive : drives_) {
    drive.letter = ToUpper(drive.letter);
    drive.root = RealRoot(drive.root);
  }
  current_ = current != 0 ? ToUpper(current) : drives_.empty() ? u'C' : drives_.front().letter;
}

const Drive* Drives::Find(char16_t letter) const {
  for (const Drive& drive : drives_) {
    if (drive.letter == ToUpper(letter)) return &drive;
  }
  return nullptr;
}

const Drive* Drives::FindRoot(TextView root) const {
  if (root.empty()) return Find(current_);
  const TextView rest = root.substr(1);
  const bool plain = rest.empty() || rest == u":" || rest == u":\\" || rest == u":/";
  return plain ? Find(root[0]) : nullptr;
}

std::uint32_t Drives::Mask() const {
  std::uint32_t mask = 0;
  for (const Drive& drive : drives_) {
    if (IsLetter(drive.letter)) mask |= 1u << (drive.letter - u'A');
  }
  return mask;
}

std::optional<Text> Drives::FullName(TextView name) const {
  if (IsWhole(name)) {
    return Find(name[0]) != nullptr ? std::optional<Text>(name) : std::nullopt;
  }
  if (name.empty() || name.find(u'\0') != TextView::npos) return std::nullopt;
  char16_t letter = current_;
  if (name.size() > 1 && name[1] == u':') {
    letter = ToUpper(name[0]);
    name.remove_prefix(2);
  } else if (name.size() > 1 && IsSeparator(name[0]) && IsSeparator(name[1])) {
    return std::nullopt;
  }
  if (!IsLetter(letter) || Find(letter) == nullptr) return std::nullopt;
  Text path = directories_[letter - u'A'];
  if (path.empty() || (!name.empty() && IsSeparator(name[0]))) path = RootOf(letter);
  path.reserve(path.size() + name.size() + 1);
  while (!name.empty()) {
    const std::size_t end = std::min(name.find_first_of(u"\\/"), name.size());
    Descend(path, name.substr(0, end));
    name.remove_prefix(std::min(end + 1, name.size()));
  }
  return path;
}

Text Drives::CurrentDirectory() const {
  if (!IsLetter(current_)) return {};
  const Text& directory = directories_[current_ - u'A'];
  return directory.empty() ? RootOf(current_) : directory;
}

void Drives::SetDirectory(const Text& directory) {
  DirectoryOf(directory[0]) = directory;
}

bool Drives::SetDrive(char16_t letter) {
  if (Find(letter) == nullptr) return false;
  current_ = ToUpper(letter);
  return true;
}

}  // namespace trovex::posix
