#include "Image/OpenFiles.h"

#include "Platform/SystemTexts.h"

namespace trovex::image {
namespace {

// Above every handle of a system.
constexpr std::int64_t kFirst = std::int64_t{1} << 58;
constexpr std::int64_t kEnd = std::int64_t{1} << 59;

}  // namespace

FileHandle OpenFiles::Add(std::unique_ptr<FileContents> contents) {
  const auto handle = static_cast<FileHandle>(kFirst + next_++);
  files_.emplace(handle, Reader{std::move(contents), 0});
  return handle;
}

bool OpenFiles::IsOurs(FileHandle handle) {
  const auto number = static_cast<std::int64_t>(handle);
  return number >= kFirst && number < kEnd;
}

std::size_t OpenFiles::Read(FileHandle handle, void* buffer, std::size_t size) {
  const auto found = files_.find(handle);
  if (found == files_.end()) throw RuntimeError::OfSystem(ErrorNumber::kDeviceIo, kSystemDeviceIo);
  Reader& reader = found->second;
  const std::size_t got = reader.contents->ReadAt(reader.place, static_cast<char*>(buffer), size);
  const bool more = reader.place + got < reader.contents->Length();
  // A piece that breaks off in its middle would pass for the last one.
  if (got < size && more) throw RuntimeError::OfSystem(ErrorNumber::kDeviceIo, kSystemDeviceIo);
  reader.place += got;
  return got;
}

}  // namespace trovex::image
