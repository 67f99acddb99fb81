// A directory of the command line on Windows: names are the program's own already.
#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Win32Platform.h"

namespace trovex {
namespace {

class Win32Host : public Host {
 public:
  explicit Win32Host(Text start) : start_(std::move(start)) {}

  Platform& GetPlatform() override { return platform_; }
  Text Start() override { return start_; }
  Text NameOf(const std::string& argument) override { return FullName(FromUtf8(argument)); }
  std::string UserNameOf(const Text& name) override { return ToStrictUtf8(name); }

 private:
  Text start_;
  Win32Platform platform_;
};

// Why `directory` cannot be catalogued; null if it can.
const char* Objection(Platform& platform, const Text& directory) {
  FileStatus status;
  if (directory.empty() || !platform.GetFileStatus(directory, status)) return "no such directory";
  if (!(status.attributes & kAttributeDirectory)) return "is not a directory";
  FindData data;
  const bool root = directory.ends_with(u'\\');
  const FindHandle search = platform.FindFirstFile(directory + (root ? u"*" : u"\\*"), data);
  // A root has no entries of its own, so an empty one finds nothing.
  if (search == FindHandle::kInvalid && !root) return "cannot be read";
  platform.FindClose(search);
  return nullptr;
}

}  // namespace

std::unique_ptr<Host> OpenHost(const std::string& directory, char16_t, std::string& complaint) {
  Text start = FullName(FromUtf8(directory));
  if (start.ends_with(u'\\') && !IsRoot(start)) start.pop_back();
  auto host = std::make_unique<Win32Host>(start);
  if (const char* objection = Objection(host->GetPlatform(), start)) {
    complaint = "trovex-cli: " + directory +
                (std::string_view(objection).starts_with("no ") ? ": " : " ") + objection;
    return nullptr;
  }
  return host;
}

std::unique_ptr<Host> OpenHostWithoutDisc(char16_t) {
  return std::make_unique<Win32Host>(Text());
}

}  // namespace trovex
