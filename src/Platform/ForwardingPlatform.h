// A platform that passes every operation on to another one. What changes operations of one part
// alone derives from that part's forwarder and takes its place by a PartScope; what changes more
// derives from this. OpenDirectory is left to Platform, which goes through the other operations:
// what is overridden holds for directories in hand as well.
#pragma once

#include "Platform/ForwardingFiles.h"
#include "Platform/ForwardingMachine.h"
#include "Platform/ForwardingProfiles.h"
#include "Platform/ForwardingRegistry.h"
#include "Platform/ForwardingShell.h"
#include "Platform/Platform.h"

namespace trovex {

class ForwardingPlatform : public Platform,
                           public ForwardingFiles,
                           public ForwardingProfiles,
                           public ForwardingShell,
                           public ForwardingRegistry,
                           public ForwardingMachine {
 public:
  // `target`, and every part, must outlive this object.
  explicit ForwardingPlatform(Platform& target)
      : ForwardingPlatform(target, target, target, target, target, target) {}
  // Each part goes to one of its own, what belongs to no part to `target`.
  ForwardingPlatform(FilePort& files, ProfilePort& profiles, ShellPort& shell,
                     RegistryPort& registry, MachinePort& machine, Platform& target)
      : ForwardingFiles(files),
        ForwardingProfiles(profiles),
        ForwardingShell(shell),
        ForwardingRegistry(registry),
        ForwardingMachine(machine),
        target_(target) {}

 protected:
  Platform& Target() { return target_; }

 private:
  Platform& target_;
};

}  // namespace trovex
