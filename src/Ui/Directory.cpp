#include "Ui/Directory.h"

namespace trovex {
namespace {

bool IsRoot(TextView directory) {
  return directory.size() == 3 && directory[1] == u':' && directory[2] == u'\\';
}

}  // namespace

Text WithBackslash(TextView directory) {
  Text result(directory);
  if (!result.ends_with(u'\\')) result += u'\\';
  return result;
}

Text WithoutBackslash(TextView directory) {
  if (directory.ends_with(u'\\') && !IsRoot(directory)) directory.remove_suffix(1);
  return Text(directory);
}

bool DirectoryExists(const Text& directory) {
  FileStatus status;
  return CurrentPlatform().GetFileStatus(directory, status) &&
         (status.attributes & kAttributeDirectory) != 0;
}

bool ReadDirectory(const Text& directory, const std::function<void(const ListedEntry&)>& visit) {
  if (directory.empty()) return false;
  const auto held = CurrentPlatform().OpenDirectory(directory);
  // An empty root and an unreadable directory are not opened either.
  if (!held) return DirectoryExists(directory);
  ListedEntry entry;
  for (std::size_t place = 0; held->Entries()->Next(place, entry);) visit(entry);
  return true;
}

}  // namespace trovex
