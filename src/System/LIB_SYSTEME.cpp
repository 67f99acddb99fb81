#include "System/LIB_SYSTEME.h"

#include "Lib/LIB_STRING.h"
#include "Platform/Platform.h"

namespace trovex::LIB_SYSTEME {
namespace {

constexpr std::uint32_t kBuffer = 50;  // characters

Text WithBackslash(Text sRepertoire) {
  if (!sRepertoire.ends_with(u'\\')) sRepertoire += u'\\';
  return sRepertoire;
}

Text TrimmedRight(Text sTexte) {
  sTexte.erase(sTexte.find_last_not_of(u' ') + 1);
  return sTexte;
}

}  // namespace

Text sRepertoireWindows() {
  Text buffer;
  if (CurrentPlatform().GetWindowsDirectory(buffer, kBuffer) < 1) return {};
  return WithBackslash(sTronqueAuNul(Trimmed(buffer)));
}

Text sRepertoireSysteme() {
  Text buffer;
  if (CurrentPlatform().GetSystemDirectory(buffer, kBuffer) < 1) return {};
  return WithBackslash(sTronqueAuNul(TrimmedRight(std::move(buffer))));
}

}  // namespace trovex::LIB_SYSTEME
