#include "Platform/Records/VersionResource.h"

namespace trovex::records {
namespace {

constexpr std::uint16_t kDosSignature = 0x5A4D;  // "MZ"
constexpr std::uint16_t kNeSignature = 0x454E;   // "NE"
constexpr std::uint32_t kPeSignature = 0x4550;   // "PE\0\0"

constexpr std::size_t kDosHeaderSize = 0x40;
constexpr std::size_t kNewHeaderAt = 0x3C;
constexpr std::size_t kSmallestRecord = 6;
constexpr std::uint16_t kIconGroupType = 14;
constexpr std::size_t kIconHeadSize = 22;  // with the first image's entry

enum class Kind { kOther, kNe, kPe };

// The kind of executable, and where its new header stands.
Kind KindOf(ByteReader& file, std::uint64_t& header) {
  const auto dos = file.At(0, kDosHeaderSize);
  if (!dos || dos->U16(0) != kDosSignature) return Kind::kOther;
  header = dos->U32(kNewHeaderAt);
  const auto signature = file.At(header, 4);
  if (!signature) return Kind::kOther;
  if (signature->U32(0) == kPeSignature) return Kind::kPe;
  return signature->U16(0) == kNeSignature ? Kind::kNe : Kind::kOther;
}

std::string ReadResource(ByteReader& file) {
  std::uint64_t header = 0;
  switch (KindOf(file, header)) {
    case Kind::kPe:
      return ReadPeResource(file, header);
    case Kind::kNe:
      return ReadNeResource(file, header);
    case Kind::kOther:
      break;
  }
  return {};
}

// An icon file: a reserved word, the type 1 and at least one image.
bool IsIconFile(ByteReader& file) {
  const auto head = file.At(0, kIconHeadSize);
  return head && head->U16(0) == 0 && head->U16(2) == 1 && head->U16(4) > 0;
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

bool HoldsIcon(ByteSource& source) {
  ByteReader file(source);
  std::uint64_t header = 0;
  switch (KindOf(file, header)) {
    case Kind::kPe:
      return HasPeResource(file, header, kIconGroupType);
    case Kind::kNe:
      return HasNeResource(file, header, kIconGroupType);
    case Kind::kOther:
      break;
  }
  return IsIconFile(file);
}

}  // namespace trovex::records
