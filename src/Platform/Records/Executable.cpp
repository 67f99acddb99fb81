#include "Platform/Records/Executable.h"

namespace trovex::records {
namespace {

constexpr std::uint16_t kDosSignature = 0x5A4D;  // "MZ"
constexpr std::uint16_t kNeSignature = 0x454E;   // "NE"
constexpr std::uint32_t kPeSignature = 0x4550;   // "PE\0\0"

constexpr std::size_t kDosHeaderSize = 0x40;
constexpr std::size_t kNewHeaderAt = 0x3C;

}  // namespace

ExecutableKind KindOf(ByteReader& file, std::uint64_t& header) {
  const auto dos = file.At(0, kDosHeaderSize);
  if (!dos || dos->U16(0) != kDosSignature) return ExecutableKind::kOther;
  header = dos->U32(kNewHeaderAt);
  const auto signature = file.At(header, 4);
  if (!signature) return ExecutableKind::kOther;
  if (signature->U32(0) == kPeSignature) return ExecutableKind::kPe;
  return signature->U16(0) == kNeSignature ? ExecutableKind::kNe : ExecutableKind::kOther;
}

}  // namespace trovex::records
