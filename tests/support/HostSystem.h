// What a test program runs on, where the systems are known to answer differently.
#pragma once

namespace trovex::test {

enum class HostSystem { kPosix, kWindows, kWine };

HostSystem CurrentHostSystem();

}  // namespace trovex::test
