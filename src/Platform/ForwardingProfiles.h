// Passes every operation of its part on. What changes one of them derives from it.
#pragma once

#include "Platform/ProfilePort.h"

namespace trovex {

class ForwardingProfiles : public virtual ProfilePort {
 public:
  // `target` must outlive this object.
  explicit ForwardingProfiles(ProfilePort& target) : target_(target) {}

  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override {
    return target_.GetPrivateProfileString(section, key, fallback, buffer, size, file);
  }
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override {
    return target_.WritePrivateProfileString(section, key, value, file);
  }

 protected:
  ProfilePort& Target() { return target_; }

 private:
  ProfilePort& target_;
};

}  // namespace trovex
