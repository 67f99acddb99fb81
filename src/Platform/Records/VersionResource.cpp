#include "Platform/Records/VersionResource.h"

#include "Platform/Records/Executable.h"

namespace trovex::records {
namespace {

constexpr std::size_t kSmallestRecord = 6;

}  // namespace

std::string ReadVersionRecord(ByteSource& source) {
  ByteReader file(source);
  const auto place =
      OnResources(file, [](const auto& resources) { return resources.First(kVersionType); });
  std::string record;
  if (!place || place->size > kMaxVersionResource) return record;
  file.Copy(place->offset, static_cast<std::size_t>(place->size), record);
  const std::size_t length = ByteView(record).U16(0);
  if (length < kSmallestRecord || length > record.size()) return {};
  record.resize(length);
  return record;
}

}  // namespace trovex::records
