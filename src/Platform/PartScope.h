// One part of the platform in the place of the process's own for a time.
#pragma once

#include <type_traits>

#include "Platform/ForwardingPlatform.h"

namespace trovex {

// Everything but `part` goes on to the platform that was in place. The caller owns the part, which
// must outlive the scope.
template <typename Part>
class PartScope {
 public:
  explicit PartScope(Part& part)
      : platform_(Choose<FilePort>(part), Choose<ProfilePort>(part), Choose<ShellPort>(part),
                  Choose<RegistryPort>(part), Choose<MachinePort>(part), CurrentPlatform()),
        scope_(platform_) {}

 private:
  template <typename Port>
  static Port& Choose(Part& part) {
    if constexpr (std::is_base_of_v<Port, Part>) {
      return part;
    } else {
      return CurrentPlatform();
    }
  }

  ForwardingPlatform platform_;
  PlatformScope scope_;
};

}  // namespace trovex
