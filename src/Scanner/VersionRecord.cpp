#include "Scanner/VersionRecord.h"

#include "Platform/Platform.h"

namespace trovex {

std::string ReadVersionRecord(const Text& sFichier) {
  Platform& platform = CurrentPlatform();
  const std::uint32_t length = platform.GetFileVersionInfoSize(sFichier);
  std::string record;
  if (length < 1 || !platform.GetFileVersionInfo(sFichier, length, record)) return {};
  return record;
}

std::optional<std::string_view> BehindKey(std::string_view record, std::string_view key,
                                          std::size_t offset) {
  const std::size_t found = record.find(key);
  if (found == std::string_view::npos) return std::nullopt;
  return record.substr(std::min(found + offset, record.size()));
}

}  // namespace trovex
