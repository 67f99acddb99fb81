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

std::shared_ptr<const DirectoryEntries> EntriesOf(const Text& directory) {
  const auto held = CurrentPlatform().OpenDirectory(directory);
  return held ? held->Entries() : nullptr;
}

}  // namespace trovex
