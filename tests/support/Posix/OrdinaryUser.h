// The rights of an ordinary user for a time: what the mode bits refuse is refused, even where the
// tests run as root.
#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

namespace trovex::test {

class OrdinaryUser {
 public:
  OrdinaryUser() {
    syscall(SYS_capget, &header_, former_);
    __user_cap_data_struct bare[2] = {former_[0], former_[1]};
    for (int right : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) {
      bare[0].effective &= ~(std::uint32_t{1} << right);
    }
    syscall(SYS_capset, &header_, bare);
  }
  ~OrdinaryUser() { syscall(SYS_capset, &header_, former_); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  __user_cap_header_struct header_ = {_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct former_[2] = {};
};

}  // namespace trovex::test
