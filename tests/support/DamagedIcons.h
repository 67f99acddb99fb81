// Icons that no system may be asked to draw, for whoever decides it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace trovex::test {

struct DamagedIcon {
  std::string what;
  std::string contents;  // of a program or an icon file
};

// One of each kind: tables of resources that lead out of the file or in which two readers find two
// things, and images that are no icon's or not all there.
std::vector<DamagedIcon> DamagedIcons();

// Puts a number of `width` bytes there, lowest byte first.
void SetNumber(std::string& bytes, std::size_t at, std::uint32_t number, std::size_t width);

}  // namespace trovex::test
