#include "Platform/Platform.h"

#include <cassert>

namespace trovex {
namespace {

Platform* current_platform = nullptr;

}  // namespace

Reading FilePort::GetFileProperties(const Text& name, FileStatus& status, std::string& record) {
  record.clear();
  if (!GetFileStatus(name, status)) return Reading::kNothing;
  try {
    const std::uint32_t length = GetFileVersionInfoSize(name);
    if (length > 0 && !GetFileVersionInfo(name, length, record)) record.clear();
  } catch (const RuntimeError&) {
    record.clear();
    return Reading::kStatus;
  }
  return Reading::kAll;
}

bool FilePort::IsInsideImage(const Text&) {
  return false;
}

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
