#include "Platform/Records/ByteReader.h"

#include <limits>

namespace trovex::records {
namespace {

// The one overflow check: no offset beyond this is read at, so sums of an offset and a size, or
// of two 32-bit numbers, cannot wrap.
constexpr std::uint64_t kMaxOffset = std::uint64_t{1} << 48;

}  // namespace

std::uint32_t ByteView::Number(std::size_t at, std::size_t size) const {
  if (at > bytes_.size() || size > bytes_.size() - at) return 0;
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = number << 8 | static_cast<std::uint8_t>(bytes_[at + i]);
  }
  return number;
}

bool ByteReader::InWindow(std::uint64_t offset, std::size_t size) const {
  return offset >= start_ && offset - start_ <= length_ && size <= length_ - (offset - start_);
}

// Asks again only where less than `least` bytes came.
std::size_t ByteReader::Read(std::uint64_t offset, std::size_t least, char* buffer,
                             std::size_t size) {
  std::size_t done = 0;
  while (done < least) {
    const std::size_t got = source_.ReadAt(offset + done, buffer + done, size - done);
    if (got == 0) break;
    done += got;
  }
  return done;
}

std::optional<ByteView> ByteReader::At(std::uint64_t offset, std::size_t size) {
  if (offset > kMaxOffset || size > kWindow) return std::nullopt;
  if (!InWindow(offset, size)) {
    start_ = offset;
    length_ = Read(offset, size, window_, kWindow);
    if (length_ < size) return std::nullopt;
  }
  return ByteView(std::string_view(window_ + (offset - start_), size));
}

bool ByteReader::Copy(std::uint64_t offset, std::size_t size, std::string& bytes) {
  bytes.clear();
  if (offset > kMaxOffset) return false;
  if (InWindow(offset, size)) {
    bytes.assign(window_ + (offset - start_), size);
    return true;
  }
  bytes.resize(size);
  if (Read(offset, size, bytes.data(), size) == size) return true;
  bytes.clear();
  return false;
}

}  // namespace trovex::records
