// Passes every operation of its part on. What changes one of them derives from it.
#pragma once

#include "Platform/RegistryPort.h"

namespace trovex {

class ForwardingRegistry : public virtual RegistryPort {
 public:
  // `target` must outlive this object.
  explicit ForwardingRegistry(RegistryPort& target) : target_(target) {}

  long RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) override {
    return target_.RegCreateKey(root, name, key);
  }
  long RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                    RegistryKey& key) override {
    return target_.RegOpenKeyEx(root, name, access, key);
  }
  long RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) override {
    return target_.RegQueryValueEx(key, name, value);
  }
  void RegCloseKey(RegistryKey key) override { target_.RegCloseKey(key); }

 protected:
  RegistryPort& Target() { return target_; }

 private:
  RegistryPort& target_;
};

}  // namespace trovex
