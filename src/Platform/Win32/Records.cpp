// Version records and profile files.
#include <algorithm>
#include <optional>

#include "Platform/NewFile.h"
#include "Platform/Records/ProfileFile.h"
#include "Platform/Records/VersionResource.h"
#include "Platform/Win32/FileReads.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

// The file is there, but its contents cannot be had.
bool IsRefusal(const RuntimeError& error) {
  return error.Kind() == ErrorNumber::kPermissionDenied || error.Kind() == ErrorNumber::kDeviceIo;
}

std::string RecordOf(const Text& name) {
  try {
    const OwnedFile file = OpenForReading(name);
    FileSource source(file.get());
    std::string record = records::ReadVersionRecord(source);
    if (const std::uint32_t code = source.Error()) {
      throw RuntimeError::OfSystem(ErrorNumber::kDeviceIo, code);
    }
    return record;
  } catch (const RuntimeError& error) {
    if (IsRefusal(error)) throw;
    return {};
  }
}

// The system's profile functions know no name of more than 259 characters: such a file is read
// here. Empty for one that is missing; nothing for one that is there and cannot be read.
std::optional<std::string> ProfileBytes(Platform& platform, const Text& file) {
  FileStatus status;
  if (!platform.GetFileStatus(file, status)) return std::string();
  std::string bytes(records::kMaxProfile, '\0');
  try {
    const FileHandle handle = platform.OpenRead(file);
    std::optional<std::size_t> count;
    IgnoringErrors([&] { count = platform.Read(handle, bytes.data(), bytes.size()); });
    platform.Close(handle);
    if (!count) return std::nullopt;
    bytes.resize(*count);
    return bytes;
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

// One that cannot be read is left alone, and so is one of which only a part would be.
bool WriteLongNamed(Platform& platform, const Text& section, const Text& key, const Text& value,
                    const Text& file) {
  const std::optional<std::string> former = ProfileBytes(platform, file);
  if (!former || former->size() == records::kMaxProfile) return false;
  try {
    NewFile bytes(platform, file);
    bytes.Write(records::WithProfileValue(*former, section, key, value));
    bytes.Keep();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

// The system's own functions take no such name.
bool IsBeyondProfiles(const Text& file) {
  return file.size() >= MAX_PATH || file.starts_with(u"\\\\?\\");
}

}  // namespace

std::uint32_t Win32Platform::GetFileVersionInfoSize(const Text& name) {
  return static_cast<std::uint32_t>(RecordOf(name).size());
}

bool Win32Platform::GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) {
  block = RecordOf(name);
  if (block.empty()) return false;
  block.resize(length);
  return true;
}

Reading Win32Platform::GetFileProperties(const Text& name, FileStatus& status,
                                         std::string& record) {
  record.clear();
  try {
    const OwnedFile file = OpenForReading(name);
    if (!StatusOf(file.get(), status)) return Reading::kNothing;
    FileSource source(file.get());
    record = records::ReadVersionRecord(source);
    return source.Error() == 0 ? Reading::kAll : Reading::kStatus;
  } catch (const RuntimeError& error) {
    // What cannot be opened may have a status all the same.
    if (!GetFileStatus(name, status)) return Reading::kNothing;
    return IsRefusal(error) ? Reading::kStatus : Reading::kAll;
  }
}

std::uint32_t Win32Platform::GetPrivateProfileString(const Text& section, const Text& key,
                                                     const Text& fallback, Text& buffer,
                                                     std::uint32_t size, const Text& file) {
  if (IsBeyondProfiles(file)) {
    return records::ProfileAnswer(ProfileBytes(*this, file).value_or(""), section, key, fallback,
                                  buffer, size);
  }
  const Unredirected unredirected;
  buffer.assign(size, u'\0');
  const DWORD length = GetPrivateProfileStringW(Wide(section), Wide(key), Wide(fallback),
                                                Wide(buffer), size, Wide(file));
  buffer.resize(std::min<std::size_t>(length, size));
  return static_cast<std::uint32_t>(buffer.size());
}

bool Win32Platform::WritePrivateProfileString(const Text& section, const Text& key,
                                              const Text& value, const Text& file) {
  if (IsBeyondProfiles(file)) return WriteLongNamed(*this, section, key, value, file);
  return WritePrivateProfileStringW(Wide(section), Wide(key), Wide(value), Wide(file)) != 0;
}

}  // namespace trovex
