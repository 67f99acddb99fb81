// Numbers that the help engine makes of the names of topics.
#pragma once

#include <cstdint>
#include <string_view>

namespace trovex::aide {

// The number under which links and the engine look a topic up. Names are of a to z, 0 to 9, "_" and
// "."; any other character counts for nothing.
int32_t NameHash(std::string_view name);

}  // namespace trovex::aide
