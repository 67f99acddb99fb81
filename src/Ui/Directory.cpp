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

bool ReadDirectory(const Text& directory, const std::function<void(const FindData&)>& visit) {
  if (directory.empty()) return false;  // a search would look at the root
  Platform& platform = CurrentPlatform();
  FindData data;
  const FindHandle handle = platform.FindFirstFile(WithBackslash(directory) + u"*.*", data);
  // An empty root and an unreadable directory find nothing, as a missing one does.
  if (handle == FindHandle::kInvalid) return DirectoryExists(directory);
  do {
    if (data.name != u"." && data.name != u"..") visit(data);
  } while (platform.FindNextFile(handle, data));
  platform.FindClose(handle);
  return true;
}

}  // namespace trovex
