// A machine around the test disc whose answers a test spells out: shell, registry, icons, drives,
// directories of the system, environment, random numbers. Everything it is asked to start is
// written down, nothing starts.
#pragma once

#include <deque>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Platform/ForwardingPlatform.h"
#include "support/WatchedDirectory.h"

namespace trovex::test {

// Only drive D: has contents, those of the platform below; the others are named by `drives`, and of
// them only those in `ready` answer, with an empty root directory; a name without a drive is
// nowhere. What is set is given in upper case.
class FakeShell : public ForwardingPlatform, private DirectoryWatch {
 public:
  explicit FakeShell(Platform& disc) : ForwardingPlatform(disc) {}

  struct Started {
    Text command;
    int mode = 0;
    Text directory;  // the current one when it started
    bool operator==(const Started&) const = default;
  };
  struct Shelled {
    Text verb, file, parameters, directory;
    int show = 0;
    bool operator==(const Shelled&) const = default;
  };

  // --- What the machine answers ---
  std::map<Text, Text> programs;  // of file types: "ZIP" to a command; EXE is the file itself
  bool refuses_start = false;
  int shell_result = 42;
  std::map<Text, int> icons;  // number of icons in a file
  std::set<Text> drives = {u"C", u"D"};
  std::set<Text> ready = {u"C"};
  std::map<Text, Text> labels;      // of drives
  std::map<Text, DriveType> types;  // of drives; fixed if not named
  Text windows = u"D:\\WINDOWS", system = u"D:\\WINDOWS\\SYSTEM";
  Text program_directory = u"D:\\PROG";
  Text application_data;  // none
  bool help_engine = true;
  std::set<Text> write_protected;  // directories in which nothing can be written
  std::map<Text, Text> environment;
  std::deque<double> random;  // 0 when used up
  std::set<Text> gone;        // directories that have vanished with all they held
  std::set<Text> unreadable;  // files that cannot be opened, directories that cannot be listed
  std::size_t read_fails_after = std::numeric_limits<std::size_t>::max();  // bytes
  bool registry_locked = false;

  void SetClass(const Text& key, const Text& value);  // default value below HKEY_CLASSES_ROOT
  void SetValue(RegistryRoot root, const Text& key, const Text& name, RegistryValue value);
  static RegistryValue TextValue(const Text& text);

  // --- What was asked of it ---
  std::vector<Started> started;
  std::vector<Shelled> shelled;
  std::vector<Text> moves;  // "drive C:", "directory D:\X"
  std::set<Text> keys_created;
  std::vector<std::uint32_t> accesses;
  int keys_open = 0;
  std::size_t bytes_read = 0, largest_read = 0;  // the sum, and the most asked for at once

  std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory) override;
  bool CanBeListed(const Text& directory) override;
  FindHandle FindFirstFile(const Text& pattern, FindData& data) override;
  bool GetFileStatus(const Text& name, FileStatus& status) override;
  FileHandle OpenRead(const Text& name) override;
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override;
  std::uint32_t GetFileVersionInfoSize(const Text& name) override;
  DriveType GetDriveType(const Text& root) override;
  std::uint32_t GetLogicalDrives() override;
  Text GetVolumeLabel(const Text& root) override;
  std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) override;
  std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) override;
  Text GetProgramDirectory() override { return program_directory; }
  Text GetApplicationDataDirectory() override { return application_data; }
  bool HasHelpEngine() override { return help_engine; }
  FileHandle OpenWrite(const Text& name) override;
  bool MakeDirectory(const Text& name) override;
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override;
  Text GetCurrentDirectory() override { return directories_[current_]; }
  void ChangeDirectory(const Text& directory) override;
  void ChangeDrive(const Text& drive) override;
  Text GetEnvironmentVariable(const Text& name) override;
  int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                   const Text& directory, int show) override;
  int FindExecutable(const Text& file, const Text& directory, Text& buffer) override;
  void StartProgram(const Text& command_line, int mode) override;
  int ExtractIconEx(const Text& file, int index, IconOwner owner) override;
  long RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) override;
  long RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                    RegistryKey& key) override;
  long RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) override;
  void RegCloseKey(RegistryKey key) override;
  void MessageBeep(std::uint32_t) override {}
  Text FormatMessage(std::uint32_t) override { return {}; }
  double Random() override;

 private:
  using KeyName = std::pair<RegistryRoot, Text>;

  bool OnAsked(Asked what, const Text& name) override;
  int IconsOf(const Text& name, int index) override {
    return ExtractIconEx(name, index, IconOwner::kDisc);
  }
  bool IsThere(const Text& name) const;
  bool IsProtected(const Text& name) const;
  bool IsListable(const Text& directory) const;
  RegistryKey Open(const KeyName& name);

  std::map<KeyName, std::map<Text, RegistryValue>> registry_;
  std::vector<KeyName> opened_;
  std::map<char16_t, Text> directories_ = {{u'D', u"D:\\"}, {u'C', u"C:\\"}};
  char16_t current_ = u'D';
};

}  // namespace trovex::test
