#include "System/COpSysInfo.h"

#include "Lib/LIB_STRING.h"
#include "Platform/Platform.h"

namespace trovex {
namespace {

constexpr std::int32_t kFirstMinorOf98 = 10;

OsVersionInfo AskSystem() {
  OsVersionInfo info;
  info.dwOSVersionInfoSize = kOsVersionInfoSize;
  CurrentPlatform().GetVersionEx(info);
  return info;
}

}  // namespace

COpSysInfo::COpSysInfo() {
  const OsVersionInfo info = AskSystem();
  size_ = info.dwOSVersionInfoSize;
  major_ = static_cast<std::int32_t>(info.dwMajorVersion);
  minor_ = static_cast<std::int32_t>(info.dwMinorVersion);
  build_ = info.dwBuildNumber;
  platform_ = static_cast<std::int32_t>(info.dwPlatformId);
  service_pack_ = sTronqueAuNul(info.szCSDVersion);
  is_nt_ = info.dwPlatformId == kFamilyWindowsNt;
  is_95_ = info.dwPlatformId == kFamilyWindows9x && minor_ < kFirstMinorOf98;
  is_98_ = info.dwPlatformId == kFamilyWindows9x && minor_ >= kFirstMinorOf98;
}

Text COpSysInfo::Platform() const {
  if (IsWin95()) return u"Windows 95";
  return IsWin98() ? u"Windows 98" : u"Windows NT";
}

Text COpSysInfo::Version() const {
  return Platform() + u" v" + Decimal(MajorVersion()) + u"." + Decimal(MinorVersion()) +
         u", Build " + Decimal(BuildNumber());
}

Text COpSysInfo::CSDVersion() const {
  return Trim(service_pack_);
}

}  // namespace trovex
