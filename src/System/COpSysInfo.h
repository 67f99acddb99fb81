// The version of the running system.
#pragma once

#include <cstdint>

#include "Platform/Text.h"

namespace trovex {

// Asks the system once, when it is made, and keeps the answer. Where the system gives none all
// numbers are 0.
class COpSysInfo {
 public:
  COpSysInfo();

  // Size of the record that the answer came in.
  std::uint32_t dwOSVersionInfoSize() const { return size_; }

  std::int32_t MajorVersion() const { return major_; }
  std::int32_t MinorVersion() const { return minor_; }
  // The low half of what the system gives, as a signed number of 16 bits.
  std::int32_t BuildNumber() const { return static_cast<std::int16_t>(build_); }
  std::int32_t PlatformID() const { return platform_; }
  // At most one of the three is true.
  bool IsWinNT() const { return is_nt_; }
  bool IsWin95() const { return is_95_; }
  bool IsWin98() const { return is_98_; }
  // Name of the family; that of NT where none is known.
  Text Platform() const;
  // "Windows 98 v4.10, Build 1998"
  Text Version() const;
  // The service pack, trimmed.
  Text CSDVersion() const;

 private:
  std::uint32_t size_;
  std::int32_t major_, minor_;
  std::uint32_t build_;
  std::int32_t platform_;
  Text service_pack_;
  bool is_nt_, is_95_, is_98_;
};

}  // namespace trovex
