#include "Platform/Posix/VersionResource.h"

namespace trovex::posix {
namespace {

constexpr std::uint16_t kDosSignature = 0x5A4D;  // "MZ"
constexpr std::uint16_t kNeSignature = 0x454E;   // "NE"
constexpr std::uint32_t kPeSignature = 0x4550;   // "PE\0\0"

constexpr std::size_t kDosHeaderSize = 0x40;
constexpr std::size_t kNewHeaderAt = 0x3C;
constexpr std::size_t kSmallestRecord = 6;

std::string ReadResource(ByteReader& file) {
  const auto dos = file.At(0, kDosHeaderSize);
  if (!dos || dos->U16(0) != kDosSignature) return {};
  const std::uint64_t header = dos->U32(kNewHeaderAt);
  const auto signature = file.At(header, 4);
  if (!signature) return {};
  if (signature->U32(0) == kPeSignature) return ReadPeResource(file, header);
  if (signature->U16(0) == kNeSignature) return ReadNeResource(file, header);
  return {};
}

}  // namespace

std::string ReadVersionRecord(ByteSource& source) {
  ByteReader file(source);
  std::string record = ReadResource(file);
  const std::size_t length = ByteView(record).U16(0);
  if (length < kSmallestRecord || length > record.size()) return {};
  record.resize(length);
  return record;
}

}  // namespace trovex::posix
