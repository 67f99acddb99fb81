// What a raw sector says of itself in its first bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace trovex::image {

// Synchronisation, address and mode.
inline constexpr std::size_t kHeaderSize = 16;

// The address, negative in the two seconds before the disc's first sector; nothing where the bytes
// are no header.
std::optional<std::int64_t> AddressIn(const char* header);
// Where the user data begins, by the mode; nothing where the sector holds none.
std::optional<std::uint32_t> DataIn(const char* header);

}  // namespace trovex::image
