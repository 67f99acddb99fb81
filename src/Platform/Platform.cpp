#include "Platform/Platform.h"

#include <cassert>

namespace trovex {
namespace {

Platform* current_platform = nullptr;

}  // namespace

Platform& CurrentPlatform() {
  assert(current_platform != nullptr);
  return *current_platform;
}

PlatformScope::PlatformScope(Platform& platform) : former_(current_platform) {
  current_platform = &platform;
}

PlatformScope::~PlatformScope() {
  current_platform = former_;
}

}  // namespace trovex
