#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "Platform/Posix/HostCalls.h"
#include "Platform/Posix/InstalledSettings.h"
#include "Platform/Posix/PosixPlatform.h"

namespace trovex {
namespace {

namespace fs = std::filesystem;

constexpr const char16_t* kWindowsDirectory = u"\\WINDOWS";
constexpr const char16_t* kSystemDirectory = u"\\WINDOWS\\SYSTEM";

// The path with its links resolved as far as it exists: no link to a directory leads anywhere by
// the names of the program. The last level stays as it is, for it may be a link to a file.
std::string RealPath(const std::string& path) {
  std::error_code error;
  fs::path whole = fs::absolute(path, error);
  if (error) return path;
  const fs::path leaf = whole.filename();
  if (leaf.empty() || leaf == "." || leaf == ".." || fs::is_directory(whole, error)) {
    return fs::weakly_canonical(whole, error).string();
  }
  const fs::path directory = fs::weakly_canonical(whole.parent_path(), error);
  return (error ? whole : directory / leaf).string();
}

std::string ProgramDirectory() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? "/" : program.parent_path().string();
}

// Empty where it is not set.
std::string Variable(const char* name) {
  const char* value = getenv(name);
  return value != nullptr ? value : std::string();
}

std::string TemporaryDirectory() {
  const std::string directory = Variable("TMPDIR");
  return directory.empty() ? "/tmp" : directory;
}

// Why the directory cannot be catalogued; empty if it can.
std::string Complaint(const std::string& directory) {
  struct stat status;
  if (stat(directory.c_str(), &status) != 0) {
    const bool missing = errno == ENOENT || errno == ENOTDIR;
    return missing ? "no such directory" : "cannot be read";
  }
  if (!S_ISDIR(status.st_mode)) return "is not a directory";
  const posix::FileDescriptor opened(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return opened.IsOpen() ? "" : "cannot be read";
}

// "/x/y: no such directory", but "/x/y is not a directory".
std::string Sentence(const std::string& directory, const std::string& complaint) {
  const char* joint = complaint.starts_with("no ") ? ": " : " ";
  return "trovex-cli: " + directory + joint + complaint;
}

// The file types whose icons the program asks for: a program bears its own, an archive has one of
// the system's.
void FillRegistry(posix::RegistryTable& registry, const Text& system_directory) {
  const auto set = [&](const Text& key, const Text& value) {
    registry.SetString(RegistryRoot::kClassesRoot, key, value);
  };
  set(u".exe", u"exefile");
  set(u"exefile\\defaulticon", u"%1");
  set(u".zip", u"zipfile");
  set(u"zipfile\\defaulticon", system_directory + u"\\SHELL32.DLL,3");
}

class PosixHost : public Host {
 public:
  // Without a directory where that is empty.
  PosixHost(const std::string& directory, char16_t drive)
      : drive_(ToUpper(drive)),
        root_drive_(drive_ == u'Z' ? u'Y' : u'Z'),
        given_(directory),
        platform_(Setup(directory)) {
    FillRegistry(platform_.Registry(), SystemDrive() + kSystemDirectory);
  }

  Platform& GetPlatform() override { return platform_; }
  Text Start() override { return Text{drive_, u':', u'\\'}; }

  Text NameOf(const std::string& argument) override {
    if (argument.empty()) return {};
    return platform_.NameOfHost(root_drive_, RealPath(argument));
  }

  Text InstalledSettings() override {
    return NameOf(posix::InstalledSettings(ProgramDirectory(), Variable("XDG_CONFIG_HOME"),
                                           Variable("HOME")));
  }

  std::string UserNameOf(const Text& name) override {
    const bool disc = !name.empty() && ToUpper(name[0]) == drive_;
    const std::string path = platform_.PathBelowRoot(name);
    if (!disc) return path.empty() ? "/" : path;
    return given_ + (given_.ends_with('/') ? path.substr(path.empty() ? 0 : 1) : path);
  }

 private:
  // The stand-in for Windows stands on a drive that nothing else is, so that directories of its
  // names on the disc are the disc's own.
  Text SystemDrive() const { return drive_ == u'C' ? u"X:" : u"C:"; }

  PosixSetup Setup(const std::string& directory) const {
    PosixSetup setup;
    if (!directory.empty()) {
      const fs::path real = RealPath(directory);
      const Text label = FromUtf8(real.filename().string());
      setup.drives.push_back({drive_, real.string(), DriveType::kCdRom, label});
    }
    setup.drives.push_back({root_drive_, "/", DriveType::kFixed, u""});
    setup.windows_directory = SystemDrive() + kWindowsDirectory;
    setup.system_directory = SystemDrive() + kSystemDirectory;
    // The host's own directories are named through its root drive.
    PosixPlatform root(setup);
    setup.program_directory = root.NameOfHost(root_drive_, RealPath(ProgramDirectory()));
    setup.environment[u"TMP"] = root.NameOfHost(root_drive_, RealPath(TemporaryDirectory()));
    return setup;
  }

  char16_t drive_, root_drive_;
  std::string given_;  // the directory as the user wrote it
  PosixPlatform platform_;
};

}  // namespace

std::unique_ptr<Host> OpenHost(const std::string& directory, char16_t drive,
                               std::string& complaint) {
  const std::string reason = Complaint(directory);
  if (reason.empty()) return std::make_unique<PosixHost>(directory, drive);
  complaint = Sentence(directory, reason);
  return nullptr;
}

std::unique_ptr<Host> OpenHostWithoutDisc(char16_t drive) {
  return std::make_unique<PosixHost>(std::string(), drive);
}

}  // namespace trovex
