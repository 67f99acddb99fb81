#include "Platform/Records/FileFormat.h"

#include "Platform/Records/ByteReader.h"

namespace trovex::records {
namespace {

constexpr std::uint16_t kDosSignature = 0x5A4D;  // "MZ"
constexpr std::uint16_t kNeSignature = 0x454E;   // "NE"
constexpr std::uint16_t kLeSignature = 0x454C;   // "LE"
constexpr std::uint16_t kLxSignature = 0x584C;   // "LX", the linear form of OS/2
constexpr std::uint32_t kPeSignature = 0x4550;   // "PE\0\0"
constexpr std::size_t kDosHeaderSize = 0x40;
constexpr std::size_t kNewHeaderAt = 0x3C;

constexpr std::size_t kOptionalHeaderAt = 24;
constexpr std::uint16_t kMagic32 = 0x10B;
constexpr std::uint16_t kMagic64 = 0x20B;

// Of an archive: a member, the end of an empty one, the first part of several.
constexpr std::uint32_t kZipSignatures[] = {0x04034B50, 0x06054B50, 0x08074B50};

FileFormat PeFormat(ByteReader& file, std::uint64_t header) {
  const auto magic = file.At(header + kOptionalHeaderAt, 2);
  if (magic && magic->U16(0) == kMagic32) return FileFormat::kPe32;
  return magic && magic->U16(0) == kMagic64 ? FileFormat::kPe64 : FileFormat::kOther;
}

FileFormat ExecutableFormat(ByteReader& file) {
  const auto dos = file.At(0, kDosHeaderSize);
  if (!dos) return FileFormat::kMz;
  const std::uint64_t header = dos->U32(kNewHeaderAt);
  const auto found = file.At(header, 4);
  if (!found) return FileFormat::kMz;
  if (found->U32(0) == kPeSignature) return PeFormat(file, header);
  switch (found->U16(0)) {
    case kNeSignature:
      return FileFormat::kNe;
    case kLeSignature:
      return FileFormat::kLe;
    case kLxSignature:
      return FileFormat::kOther;
    default:
      return FileFormat::kMz;
  }
}

}  // namespace

FileFormat FormatOf(ByteSource& source) {
  ByteReader file(source);
  const auto first = file.At(0, 2);
  if (!first) return FileFormat::kOther;
  if (first->U16(0) == kDosSignature) return ExecutableFormat(file);
  const auto start = file.At(0, 4);
  for (const std::uint32_t signature : kZipSignatures) {
    if (start && start->U32(0) == signature) return FileFormat::kZip;
  }
  return FileFormat::kOther;
}

const char* NameOf(FileFormat format) {
  switch (format) {
    case FileFormat::kMz:
      return "MZ";
    case FileFormat::kNe:
      return "NE";
    case FileFormat::kLe:
      return "LE";
    case FileFormat::kPe32:
      return "PE32";
    case FileFormat::kPe64:
      return "PE32+";
    case FileFormat::kZip:
      return "ZIP";
    case FileFormat::kOther:
      break;
  }
  return "other";
}

}  // namespace trovex::records
