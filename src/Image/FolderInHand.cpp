#include "Image/FolderInHand.h"

#include <algorithm>

#include "Image/Dates.h"
#include "Platform/Records/IconResource.h"
#include "Platform/Records/ProfileFile.h"
#include "Platform/Records/VersionResource.h"
#include "Platform/SystemTexts.h"

namespace trovex::image {
namespace {

LocalTime LocalTimeOf(Platform& platform, const Disc& disc, const RecordDate& date) {
  const bool zoned = disc.GetVolume().format != Format::kHighSierra;
  return zoned ? platform.LocalTimeOf(RecordedMoment(date)) : RecordedTime(date);
}

}  // namespace

FileStatus StatusOf(Platform& platform, const Disc& disc, const Folder& folder,
                    std::size_t number) {
  const Directory& directory = *folder.directory;
  const Directory::Entry& entry = directory.At(number);
  FileStatus status;
  status.attributes = AttributesOf(entry.flags);
  const bool is_directory = (entry.flags & kRecordDirectory) != 0;
  status.length = is_directory ? 0 : static_cast<std::int64_t>(directory.LengthOf(entry));
  status.modified = LocalTimeOf(platform, disc, entry.date);
  return status;
}

FileStatus StatusOfRoot(Platform& platform, const Disc& disc) {
  FileStatus status;
  status.attributes = AttributesOf(kRecordDirectory);
  status.modified = LocalTimeOf(platform, disc, disc.GetVolume().root_date);
  return status;
}

bool ReadVersionRecord(const Disc& disc, const Folder& folder, std::size_t number,
                       std::string& record) {
  record.clear();
  if ((folder.directory->At(number).flags & kRecordDirectory) != 0) return true;
  const auto contents = disc.OpenFile(folder, number);
  if (!contents) return false;
  record = records::ReadVersionRecord(*contents);
  return !contents->HasFailed();
}

bool HoldsIcon(const Disc& disc, const Folder& folder, std::size_t number) {
  const auto contents = disc.OpenFile(folder, number);
  return contents && records::HoldsIcon(*contents);
}

std::uint32_t ProfileStringOf(const Disc& disc, const Folder& folder, std::size_t number,
                              const Text& section, const Text& key, const Text& fallback,
                              Text& buffer, std::uint32_t size) {
  std::string bytes;
  if (const auto contents = disc.OpenFile(folder, number)) {
    bytes.resize(std::min<std::uint64_t>(contents->Length(), records::kMaxProfile));
    bytes.resize(contents->ReadAt(0, bytes.data(), bytes.size()));
  }
  return records::ProfileAnswer(bytes, section, key, fallback, buffer, size);
}

std::uint32_t NoProfileString(const Text& fallback, Text& buffer, std::uint32_t size) {
  return records::ProfileAnswer({}, {}, {}, fallback, buffer, size);
}

std::unique_ptr<FileContents> ContentsOf(const Disc& disc, const Folder& folder,
                                         std::size_t number) {
  const bool is_directory = (folder.directory->At(number).flags & kRecordDirectory) != 0;
  if (is_directory) throw RuntimeError::OfSystem(ErrorNumber::kPathFileAccess, kSystemAccessDenied);
  auto contents = disc.OpenFile(folder, number);
  if (!contents) throw RuntimeError::OfSystem(ErrorNumber::kDeviceIo, kSystemDeviceIo);
  return contents;
}

FolderInHand::FolderInHand(Platform& platform, OpenFiles& files, std::shared_ptr<Disc> disc,
                           std::shared_ptr<const Folder> folder)
    : platform_(platform),
      files_(files),
      disc_(std::move(disc)),
      folder_(std::move(folder)),
      entries_(folder_->directory) {}

std::shared_ptr<HeldDirectory> FolderInHand::OpenDirectory(const ListedEntry& entry) {
  auto below = disc_->Open(folder_, entry.number);
  if (!below) return nullptr;
  return std::make_shared<FolderInHand>(platform_, files_, disc_, std::move(below));
}

bool FolderInHand::GetFileStatus(const ListedEntry& entry, FileStatus& status) {
  status = StatusOf(platform_, *disc_, *folder_, entry.number);
  return true;
}

FileHandle FolderInHand::OpenRead(const ListedEntry& entry) {
  return files_.Add(ContentsOf(*disc_, *folder_, entry.number));
}

Reading FolderInHand::GetFileProperties(const ListedEntry& entry, FileStatus& status,
                                        std::string& record) {
  GetFileStatus(entry, status);
  const bool read = ReadVersionRecord(*disc_, *folder_, entry.number, record);
  return read ? Reading::kAll : Reading::kStatus;
}

int FolderInHand::ExtractIconEx(const ListedEntry& entry, int) {
  return HoldsIcon(*disc_, *folder_, entry.number) ? 1 : 0;
}

}  // namespace trovex::image
