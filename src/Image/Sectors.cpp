#include "Image/Sectors.h"

#include <algorithm>

namespace trovex::image {

std::size_t Sectors::ReadAt(std::uint64_t place, char* buffer, std::size_t size) const {
  std::size_t read = 0;
  while (read < size) {
    const auto address = static_cast<std::int64_t>((place + read) / kSectorSize);
    const auto offset = static_cast<std::uint32_t>((place + read) % kSectorSize);
    const Track::Run* run = nullptr;
    auto track = tracks_.rbegin();
    while (track != tracks_.rend() && (run = track->FindRun(address)) == nullptr) ++track;
    if (run == nullptr) break;
    const auto index = static_cast<std::uint32_t>(address - run->shift);
    // Behind the run the same address may lie elsewhere.
    const std::uint64_t held = std::uint64_t{run->end - index} * kSectorSize - offset;
    const std::size_t wanted = std::min<std::uint64_t>(size - read, held);
    const std::size_t got = track->Read(index, offset, buffer + read, wanted);
    read += got;
    if (got < wanted) break;
  }
  return read;
}

}  // namespace trovex::image
