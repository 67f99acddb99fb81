#include "Image/DiscPlatform.h"

#include <utility>
#include <vector>

#include "Image/FolderInHand.h"
#include "Platform/Pattern.h"
#include "Platform/SystemTexts.h"

namespace trovex {

using image::FolderInHand;
using image::Place;

namespace {

constexpr std::size_t kCopyBuffer = 65536;

// Windows takes what follows as it stands.
constexpr TextView kVerbatim = u"\\\\?\\";

// Above every handle of a system.
constexpr std::int64_t kFirstSearch = std::int64_t{1} << 58;

DiscPlatform* current_discs = nullptr;

bool IsOurs(FindHandle handle) {
  const auto number = static_cast<std::int64_t>(handle);
  return number > kFirstSearch && number < kFirstSearch * 2;
}

bool IsSeparator(char16_t unit) {
  return unit == u'\\' || unit == u'/';
}

// Of a write.
[[noreturn]] void Refuse() {
  throw RuntimeError::OfSystem(ErrorNumber::kPermissionDenied, kSystemWriteProtected);
}

// The name of the program in a command line.
TextView ProgramOf(TextView command_line) {
  const TextView command = Trimmed(command_line);
  if (command.starts_with(u'"')) return command.substr(1, command.find(u'"', 1) - 1);
  return command;
}

}  // namespace

DiscPlatform* CurrentDiscs() {
  return current_discs;
}

DiscsScope::DiscsScope(DiscPlatform& discs) : former_(current_discs) {
  current_discs = &discs;
}

DiscsScope::~DiscsScope() {
  current_discs = former_;
}

void DiscPlatform::Mount(char16_t letter, std::shared_ptr<image::Disc> disc) {
  letter = ToUpper(letter);
  drives_.insert_or_assign(letter, image::Drive(letter, std::move(disc)));
}

image::Drive* DiscPlatform::DriveOf(char16_t letter) {
  const auto found = drives_.find(ToUpper(letter));
  return found == drives_.end() ? nullptr : &found->second;
}

DiscPlatform::Name DiscPlatform::Resolve(TextView name) {
  const bool network = name.size() > 1 && IsSeparator(name[0]) && IsSeparator(name[1]);
  if (name.empty() || network || name.find(u'\0') != TextView::npos) return {};
  const bool lettered = name.size() > 1 && name[1] == u':';
  image::Drive* drive = DriveOf(lettered ? name[0] : current_);
  if (drive == nullptr) return {};
  return {drive, drive->FullName(name.substr(lettered ? 2 : 0))};
}

Text DiscPlatform::Beneath(Text name) {
  const bool rooted = name.size() > 2 && name[1] == u':' && IsSeparator(name[2]);
  if (rooted && DriveOf(name[0]) != nullptr) name.insert(0, kVerbatim);
  return name;
}

// The same for an answer in a buffer.
std::uint32_t DiscPlatform::Beneath(Text& buffer, std::uint32_t length, std::uint32_t size) {
  Text name = Beneath(buffer);
  if (name.size() == buffer.size()) return length;
  const bool fits = name.size() < size;
  length = static_cast<std::uint32_t>(name.size() + (fits ? 0 : 1));
  buffer = fits ? std::move(name) : Text();
  return length;
}

// --- Directory search ---------------------------------------------------------------------------

FindHandle DiscPlatform::FindFirstFile(const Text& pattern, FindData& data) {
  const std::size_t cut = pattern.find_last_of(u"\\/:") + 1;
  const TextView level = TextView(pattern).substr(cut);
  const TextView directory = TextView(pattern).substr(0, cut);
  const Name name = Resolve(directory.empty() ? TextView(u".") : directory);
  if (name.drive == nullptr) return Target().FindFirstFile(pattern, data);
  data = {};
  const auto folder = name.drive->Open(name.full);
  if (!folder) return FindHandle::kInvalid;
  if (HasWildcard(level)) return Begin(*folder, level, data);
  ListedEntry entry;
  if (!folder->directory->Find(level, entry)) return FindHandle::kInvalid;
  data.attributes = entry.attributes;
  data.name = entry.name;
  // The search is at its end before it is asked again.
  return static_cast<FindHandle>(kFirstSearch + next_search_++);
}

FindHandle DiscPlatform::Begin(const image::Folder& folder, TextView pattern, FindData& data) {
  const auto dots = folder.above ? EntrySearch::Dots::kFirst : EntrySearch::Dots::kNone;
  Running running{EntrySearch(folder.directory, pattern, dots), !folder.directory->IsDamaged()};
  if (!running.search.Advance(data)) return FindHandle::kInvalid;
  const std::int64_t handle = kFirstSearch + next_search_++;
  searches_.emplace(handle, std::move(running));
  return static_cast<FindHandle>(handle);
}

bool DiscPlatform::FindNextFile(FindHandle handle, FindData& data) {
  if (!IsOurs(handle)) return Target().FindNextFile(handle, data);
  const auto found = searches_.find(static_cast<std::int64_t>(handle));
  if (found == searches_.end()) return false;
  if (found->second.search.Advance(data)) return true;
  const bool whole = found->second.whole;
  searches_.erase(found);
  if (!whole) throw RuntimeError::OfSystem(ErrorNumber::kDeviceIo, kSystemDeviceIo);
  return false;
}

void DiscPlatform::FindClose(FindHandle handle) {
  if (!IsOurs(handle)) return Target().FindClose(handle);
  searches_.erase(static_cast<std::int64_t>(handle));
}

bool DiscPlatform::CanBeListed(const Text& directory) {
  const Name name = Resolve(directory);
  return name.drive == nullptr ? Target().CanBeListed(directory)
                               : name.drive->Open(name.full) != nullptr;
}

std::shared_ptr<HeldDirectory> DiscPlatform::OpenDirectory(const Text& directory) {
  // "X:" is the root here, not the drive's current directory.
  const Name name = Resolve(directory.ends_with(u':') ? directory + u'\\' : directory);
  if (name.drive == nullptr) return Target().OpenDirectory(directory);
  auto folder = name.drive->Open(name.full);
  if (!folder) return nullptr;
  return std::make_shared<FolderInHand>(Target(), files_, name.drive->GetDisc(), std::move(folder));
}

// --- Files --------------------------------------------------------------------------------------

bool DiscPlatform::GetFileStatus(const Text& file, FileStatus& status) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) return Target().GetFileStatus(file, status);
  const Place place = Find(name);
  if (!place.IsThere()) return false;
  const image::Disc& disc = *name.drive->GetDisc();
  status = place.number ? image::StatusOf(Target(), disc, *place.folder, *place.number)
                        : image::StatusOfRoot(Target(), disc);
  return true;
}

Reading DiscPlatform::GetFileProperties(const Text& file, FileStatus& status, std::string& record) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) return Target().GetFileProperties(file, status, record);
  record.clear();
  if (!GetFileStatus(file, status)) return Reading::kNothing;
  const Place place = Find(name);
  if (!place.number) return Reading::kAll;
  const image::Disc& disc = *name.drive->GetDisc();
  const bool read = image::ReadVersionRecord(disc, *place.folder, *place.number, record);
  return read ? Reading::kAll : Reading::kStatus;
}

std::unique_ptr<image::FileContents> DiscPlatform::Open(const Name& name) {
  const Place place = Find(name);
  if (!place.folder) throw RuntimeError::OfSystem(ErrorNumber::kPathNotFound, kSystemPathNotFound);
  if (place.missing) throw RuntimeError::OfSystem(ErrorNumber::kFileNotFound, kSystemFileNotFound);
  if (!place.number)
    throw RuntimeError::OfSystem(ErrorNumber::kPathFileAccess, kSystemAccessDenied);
  return image::ContentsOf(*name.drive->GetDisc(), *place.folder, *place.number);
}

FileHandle DiscPlatform::OpenRead(const Text& file) {
  const Name name = Resolve(file);
  return name.drive == nullptr ? Target().OpenRead(file) : files_.Add(Open(name));
}

FileHandle DiscPlatform::OpenWrite(const Text& file) {
  if (IsInsideImage(file)) Refuse();
  return Target().OpenWrite(file);
}

std::size_t DiscPlatform::Read(FileHandle file, void* buffer, std::size_t size) {
  return image::OpenFiles::IsOurs(file) ? files_.Read(file, buffer, size)
                                        : Target().Read(file, buffer, size);
}

void DiscPlatform::Close(FileHandle file) {
  if (!image::OpenFiles::IsOurs(file)) return Target().Close(file);
  files_.Close(file);
}

std::unique_ptr<records::ByteSource> DiscPlatform::OpenSource(const Text& file) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) return Target().OpenSource(file);
  const Place place = Find(name);
  if (!place.IsFile()) return nullptr;
  return name.drive->GetDisc()->OpenFile(*place.folder, *place.number);
}

void DiscPlatform::CopyFile(const Text& source, const Text& destination) {
  if (IsInsideImage(destination)) Refuse();
  const Name name = Resolve(source);
  if (name.drive == nullptr) return Target().CopyFile(source, destination);
  CopyFrom(name, destination);
}

void DiscPlatform::CopyFrom(const Name& source, const Text& destination) {
  const FileHandle from = files_.Add(Open(source));
  FileHandle to = FileHandle::kInvalid;
  try {
    to = Target().OpenWrite(destination);
    std::vector<char> buffer(kCopyBuffer);
    while (const std::size_t got = files_.Read(from, buffer.data(), buffer.size())) {
      Target().Write(to, buffer.data(), got);
    }
    files_.Close(from);
    Target().Close(std::exchange(to, FileHandle::kInvalid));
  } catch (const RuntimeError&) {
    files_.Close(from);
    if (to == FileHandle::kInvalid) throw;
    IgnoringErrors([&] { Target().Close(to); });
    IgnoringErrors([&] { Target().DeleteFile(destination); });
    throw;
  }
}

void DiscPlatform::DeleteFile(const Text& file) {
  if (IsInsideImage(file)) Refuse();
  Target().DeleteFile(file);
}

void DiscPlatform::PutInPlace(const Text& source, const Text& place) {
  if (IsInsideImage(source) || IsInsideImage(place)) Refuse();
  Target().PutInPlace(source, place);
}

bool DiscPlatform::MakeDirectory(const Text& directory) {
  const Name name = Resolve(directory);
  return name.drive == nullptr ? Target().MakeDirectory(directory) : Find(name).IsDirectory();
}

// --- Version records, profile files, icons -------------------------------------------------------

std::string DiscPlatform::RecordOf(const Name& name) {
  const Place place = Find(name);
  std::string record;
  if (!place.IsFile()) return record;
  const image::Disc& disc = *name.drive->GetDisc();
  if (!image::ReadVersionRecord(disc, *place.folder, *place.number, record)) {
    throw RuntimeError::OfSystem(ErrorNumber::kDeviceIo, kSystemDeviceIo);
  }
  return record;
}

std::uint32_t DiscPlatform::GetFileVersionInfoSize(const Text& file) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) return Target().GetFileVersionInfoSize(file);
  return static_cast<std::uint32_t>(RecordOf(name).size());
}

bool DiscPlatform::GetFileVersionInfo(const Text& file, std::uint32_t length, std::string& block) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) return Target().GetFileVersionInfo(file, length, block);
  block = RecordOf(name);
  if (block.empty()) return false;
  block.resize(length);
  return true;
}

std::uint32_t DiscPlatform::GetPrivateProfileString(const Text& section, const Text& key,
                                                    const Text& fallback, Text& buffer,
                                                    std::uint32_t size, const Text& file) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) {
    return Target().GetPrivateProfileString(section, key, fallback, buffer, size, file);
  }
  const Place place = Find(name);
  if (!place.IsFile()) return image::NoProfileString(fallback, buffer, size);
  return image::ProfileStringOf(*name.drive->GetDisc(), *place.folder, *place.number, section, key,
                                fallback, buffer, size);
}

bool DiscPlatform::WritePrivateProfileString(const Text& section, const Text& key,
                                             const Text& value, const Text& file) {
  return !IsInsideImage(file) && Target().WritePrivateProfileString(section, key, value, file);
}

int DiscPlatform::ExtractIconEx(const Text& file, int index, IconOwner owner) {
  const Name name = Resolve(file);
  if (name.drive == nullptr) return Target().ExtractIconEx(file, index, owner);
  const Place place = Find(name);
  const image::Disc& disc = *name.drive->GetDisc();
  return place.IsFile() && image::HoldsIcon(disc, *place.folder, *place.number) ? 1 : 0;
}

// --- Drives and directories ----------------------------------------------------------------------

DriveType DiscPlatform::GetDriveType(const Text& root) {
  return IsInsideImage(root.empty() ? u"." : root) ? DriveType::kCdRom
                                                   : Target().GetDriveType(root);
}

std::uint32_t DiscPlatform::GetLogicalDrives() {
  std::uint32_t mask = Target().GetLogicalDrives();
  for (const auto& [letter, drive] : drives_) mask |= 1u << (letter - u'A');
  return mask;
}

Text DiscPlatform::GetVolumeLabel(const Text& root) {
  const Name name = Resolve(root);
  return name.drive == nullptr ? Target().GetVolumeLabel(root)
                               : name.drive->GetDisc()->GetVolume().label;
}

Text DiscPlatform::GetCurrentDirectory() {
  const image::Drive* drive = DriveOf(current_);
  return drive == nullptr ? Target().GetCurrentDirectory() : drive->Current();
}

std::uint32_t DiscPlatform::GetWindowsDirectory(Text& buffer, std::uint32_t size) {
  return Beneath(buffer, Target().GetWindowsDirectory(buffer, size), size);
}

std::uint32_t DiscPlatform::GetSystemDirectory(Text& buffer, std::uint32_t size) {
  return Beneath(buffer, Target().GetSystemDirectory(buffer, size), size);
}

void DiscPlatform::ChangeDirectory(const Text& directory) {
  if (directory.starts_with(kVerbatim)) {
    return Target().ChangeDirectory(directory.substr(kVerbatim.size()));
  }
  Name name = Resolve(directory);
  if (name.drive == nullptr) return Target().ChangeDirectory(directory);
  if (!Find(name).IsDirectory())
    throw RuntimeError::OfSystem(ErrorNumber::kPathNotFound, kSystemPathNotFound);
  name.drive->SetCurrent(std::move(name.full));
}

void DiscPlatform::ChangeDrive(const Text& drive) {
  if (!drive.empty() && DriveOf(drive[0]) != nullptr) {
    current_ = ToUpper(drive[0]);
    return;
  }
  Target().ChangeDrive(drive);
  current_ = 0;
}

// --- Shell ---------------------------------------------------------------------------------------

bool DiscPlatform::IsInsideImage(const Text& name) {
  return Resolve(name).drive != nullptr || Target().IsInsideImage(name);
}

int DiscPlatform::ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                               const Text& directory, int show) {
  constexpr int kAccessDenied = 5;
  if (Resolve(file).drive != nullptr) return kAccessDenied;
  return Target().ShellExecute(verb, file, parameters, directory, show);
}

int DiscPlatform::FindExecutable(const Text& file, const Text& directory, Text& buffer) {
  constexpr int kNoAssociation = 31;
  if (Resolve(file).drive == nullptr) return Target().FindExecutable(file, directory, buffer);
  if (!buffer.empty()) buffer[0] = u'\0';
  return kNoAssociation;
}

void DiscPlatform::StartProgram(const Text& command_line, int mode) {
  if (Resolve(ProgramOf(command_line)).drive != nullptr) {
    throw RuntimeError::OfSystem(ErrorNumber::kPermissionDenied, kSystemAccessDenied);
  }
  Target().StartProgram(command_line, mode);
}

}  // namespace trovex
