#include "support/FakeShell.h"

#include <algorithm>

namespace trovex::test {
namespace {

constexpr long kSuccess = 0;
constexpr long kNotFound = 2;
constexpr long kDenied = 5;
constexpr int kNoAssociation = 31;

bool NamesDrive(const Text& name) {
  return name.size() >= 2 && name[1] == u':';
}

std::uint32_t Deliver(const Text& name, Text& buffer, std::uint32_t size) {
  const auto length = static_cast<std::uint32_t>(name.size());
  buffer = length < size ? name : Text();
  return length < size ? length : length + 1;
}

void Overwrite(Text& buffer, const Text& name) {
  const Text text = name + u'\0';
  std::copy_n(text.begin(), std::min(text.size(), buffer.size()), buffer.begin());
}

}  // namespace

void FakeShell::SetClass(const Text& key, const Text& value) {
  SetValue(RegistryRoot::kClassesRoot, key, {}, TextValue(value));
}

void FakeShell::SetValue(RegistryRoot root, const Text& key, const Text& name,
                         RegistryValue value) {
  registry_[{root, ToUpper(key)}][ToUpper(name)] = std::move(value);
}

RegistryValue FakeShell::TextValue(const Text& text) {
  return {kRegistryString, text + u'\0', {}};
}

bool FakeShell::IsThere(const Text& name) const {
  const Text upper = ToUpper(name);
  if (!NamesDrive(upper) || upper[0] != u'D') return false;
  return std::none_of(gone.begin(), gone.end(), [&](const Text& directory) {
    return upper == directory || upper.starts_with(directory + u"\\");
  });
}

bool FakeShell::IsProtected(const Text& name) const {
  return write_protected.contains(ToUpper(name.substr(0, name.find_last_of(u'\\'))));
}

bool FakeShell::IsListable(const Text& directory) const {
  Text upper = ToUpper(directory);
  if (upper.size() > 3 && upper.ends_with(u'\\')) upper.pop_back();
  return !unreadable.contains(upper);
}

FileHandle FakeShell::OpenWrite(const Text& name) {
  if (IsProtected(name)) throw RuntimeError(ErrorNumber::kPermissionDenied);
  return ForwardingPlatform::OpenWrite(name);
}

bool FakeShell::MakeDirectory(const Text& name) {
  return !IsProtected(name) && ForwardingPlatform::MakeDirectory(name);
}

bool FakeShell::WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                          const Text& file) {
  return !IsProtected(file) &&
         ForwardingPlatform::WritePrivateProfileString(section, key, value, file);
}

bool FakeShell::OnAsked(Asked what, const Text& name) {
  const bool refused = what == Asked::kFile && unreadable.contains(ToUpper(name));
  if (refused) throw RuntimeError(ErrorNumber::kPermissionDenied);
  return IsThere(name) && (what != Asked::kDirectory || IsListable(name));
}

bool FakeShell::CanBeListed(const Text& directory) {
  return IsThere(directory) && IsListable(directory) && ForwardingPlatform::CanBeListed(directory);
}

std::shared_ptr<HeldDirectory> FakeShell::OpenDirectory(const Text& directory) {
  if (!IsListable(directory)) return nullptr;
  const bool own = UsesOwnDirectories() && IsThere(directory);
  return own ? WatchedDirectory::Watch(*this, directory, Target().OpenDirectory(directory))
             : ForwardingPlatform::OpenDirectory(directory);
}

FindHandle FakeShell::FindFirstFile(const Text& pattern, FindData& data) {
  data = {};
  const bool there = IsThere(pattern) && IsListable(pattern.substr(0, pattern.rfind(u'\\') + 1));
  return there ? ForwardingPlatform::FindFirstFile(pattern, data) : FindHandle::kInvalid;
}

bool FakeShell::GetFileStatus(const Text& name, FileStatus& status) {
  if (IsThere(name)) return ForwardingPlatform::GetFileStatus(name, status);
  const bool root =
      name.size() == 3 && name.ends_with(u":\\") && ready.contains(ToUpper(name.substr(0, 1)));
  if (root) status = {kAttributeDirectory, 0, {}};
  return root;
}

FileHandle FakeShell::OpenRead(const Text& name) {
  if (!OnAsked(Asked::kFile, name)) throw RuntimeError(ErrorNumber::kPathNotFound);
  return ForwardingPlatform::OpenRead(name);
}

std::size_t FakeShell::Read(FileHandle file, void* buffer, std::size_t size) {
  if (bytes_read >= read_fails_after) throw RuntimeError(ErrorNumber::kDeviceIo);
  const std::size_t read = ForwardingPlatform::Read(file, buffer, size);
  bytes_read += read;
  largest_read = std::max(largest_read, size);
  return read;
}

std::uint32_t FakeShell::GetFileVersionInfoSize(const Text& name) {
  return IsThere(name) ? ForwardingPlatform::GetFileVersionInfoSize(name) : 0;
}

DriveType FakeShell::GetDriveType(const Text& root) {
  const Text letter = root.empty() ? Text(1, current_) : ToUpper(root.substr(0, 1));
  if (!drives.contains(letter)) return DriveType::kNoRoot;
  const auto known = types.find(letter);
  return known == types.end() ? DriveType::kFixed : known->second;
}

std::uint32_t FakeShell::GetLogicalDrives() {
  std::uint32_t mask = 0;
  for (const Text& letter : drives) mask |= 1u << (letter[0] - u'A');
  return mask;
}

Text FakeShell::GetVolumeLabel(const Text& root) {
  const auto known = labels.find(ToUpper(root.substr(0, 1)));
  return known == labels.end() ? Text() : known->second;
}

std::uint32_t FakeShell::GetWindowsDirectory(Text& buffer, std::uint32_t size) {
  return Deliver(windows, buffer, size);
}

std::uint32_t FakeShell::GetSystemDirectory(Text& buffer, std::uint32_t size) {
  return Deliver(system, buffer, size);
}

void FakeShell::ChangeDirectory(const Text& directory) {
  moves.push_back(u"directory " + directory);
  if (!NamesDrive(directory) || directory.size() == 2) return;
  FileStatus status;
  const bool found = GetFileStatus(directory, status);
  if (!found || (status.attributes & kAttributeDirectory) == 0) {
    throw RuntimeError(ErrorNumber::kPathNotFound);
  }
  directories_[ToUpper(directory[0])] = directory;
}

void FakeShell::ChangeDrive(const Text& drive) {
  moves.push_back(u"drive " + drive);
  const Text letter = ToUpper(drive.substr(0, 1));
  if (!drives.contains(letter)) throw RuntimeError(ErrorNumber::kDeviceUnavailable);
  current_ = letter[0];
}

Text FakeShell::GetEnvironmentVariable(const Text& name) {
  const auto known = environment.find(ToUpper(name));
  return known == environment.end() ? Text() : known->second;
}

int FakeShell::ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                            const Text& directory, int show) {
  shelled.push_back({verb, file, parameters, directory, show});
  return shell_result;
}

int FakeShell::FindExecutable(const Text& file, const Text& directory, Text& buffer) {
  const Text type = ToUpper(file.substr(file.find_last_of(u'.') + 1));
  const auto known = programs.find(type);
  const Text program = known != programs.end() ? known->second
                       : type == u"EXE"        ? directory + u"\\" + file
                                               : Text();
  Overwrite(buffer, program);
  return program.empty() ? kNoAssociation : 42;
}

void FakeShell::StartProgram(const Text& command_line, int mode) {
  FileStatus status;
  const bool directory =
      GetFileStatus(command_line, status) && (status.attributes & kAttributeDirectory) != 0;
  if (refuses_start || directory) throw RuntimeError(ErrorNumber::kFileNotFound);
  started.push_back({command_line, mode, GetCurrentDirectory()});
}

int FakeShell::ExtractIconEx(const Text& file, int index, IconOwner) {
  const auto known = icons.find(ToUpper(file));
  return known != icons.end() && index < known->second ? 1 : 0;
}

RegistryKey FakeShell::Open(const KeyName& name) {
  ++keys_open;
  opened_.push_back(name);
  return static_cast<RegistryKey>(opened_.size());
}

long FakeShell::RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) {
  if (registry_locked) return kDenied;
  const KeyName wanted = {root, ToUpper(name)};
  if (registry_.try_emplace(wanted).second) keys_created.insert(ToUpper(name));
  key = Open(wanted);
  return kSuccess;
}

long FakeShell::RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                             RegistryKey& key) {
  accesses.push_back(access);
  const KeyName wanted = {root, ToUpper(name)};
  if (!registry_.contains(wanted)) return kNotFound;
  key = Open(wanted);
  return kSuccess;
}

long FakeShell::RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) {
  const auto number = static_cast<std::size_t>(key);
  if (number == 0 || number > opened_.size()) return 6;  // no key of ours
  const auto& values = registry_[opened_[number - 1]];
  const auto known = values.find(ToUpper(name));
  if (known == values.end()) return kNotFound;
  value = known->second;
  return kSuccess;
}

void FakeShell::RegCloseKey(RegistryKey) {
  --keys_open;
}

double FakeShell::Random() {
  if (random.empty()) return 0;
  const double next = random.front();
  random.pop_front();
  return next;
}

}  // namespace trovex::test
