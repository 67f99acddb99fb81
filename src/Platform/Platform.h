// The port to the operating system, put together of its parts: one method an operation, named after
// it. The headers of the parts are the contract; tests/Platform/contract holds it against every
// implementation. Conveniences over these operations live in free functions, not here.
#pragma once

#include <memory>

#include "Platform/FilePort.h"
#include "Platform/MachinePort.h"
#include "Platform/ProfilePort.h"
#include "Platform/RegistryPort.h"
#include "Platform/ShellPort.h"

namespace trovex {

class HeldDirectory;

// The parts are virtual bases, so that what forwards or fakes one of them can be joined with the
// others.
class Platform : public virtual FilePort,
                 public virtual ProfilePort,
                 public virtual ShellPort,
                 public virtual RegistryPort,
                 public virtual MachinePort {
 public:
  // Reads a directory and holds it, see Platform/HeldDirectory.h. Null where it is missing or
  // cannot be read; an empty root is held like any other. Unless an implementation has a shorter
  // way, the directory in hand goes through the operations of this class, so that who overrides one
  // of them need not think of it.
  virtual std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory);
};

// The platform of the process. It must have been set.
Platform& CurrentPlatform();

// Puts a platform in place for a time; the former one comes back at the end. The caller owns it.
class PlatformScope {
 public:
  explicit PlatformScope(Platform& platform);
  ~PlatformScope();
  PlatformScope(const PlatformScope&) = delete;
  PlatformScope& operator=(const PlatformScope&) = delete;

 private:
  Platform* former_;
};

}  // namespace trovex
