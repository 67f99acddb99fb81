#include "support/HostSystem.h"

namespace trovex::test {

HostSystem CurrentHostSystem() {
  return HostSystem::kPosix;
}

}  // namespace trovex::test
