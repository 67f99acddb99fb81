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
  const auto first = file.At(place->offset, 2);
  const std::size_t length = first ? first->U16(0) : 0;
  if (length >= kSmallestRecord && length <= place->size) file.Copy(place->offset, length, record);
  return record;
}

}  // namespace trovex::records
