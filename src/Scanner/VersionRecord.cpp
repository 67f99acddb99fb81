#include "Scanner/VersionRecord.h"

namespace trovex {

std::string ReadVersionRecord(const FileInHand& oFichier) {
  FileStatus status;
  std::string record;
  try {
    oFichier.GetFileProperties(status, record);
  } catch (const RuntimeError&) {
    record.clear();
  }
  return record;
}

std::optional<std::string_view> BehindKey(std::string_view record, std::string_view key,
                                          std::size_t offset) {
  const std::size_t found = record.find(key);
  if (found == std::string_view::npos) return std::nullopt;
  return record.substr(std::min(found + offset, record.size()));
}

}  // namespace trovex
