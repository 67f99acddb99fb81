#include "Lib/LIB_REGISTRY.h"

#include "Lib/LIB_STRING.h"

namespace trovex {
namespace {

constexpr long kSuccess = 0;
constexpr long kMoreData = 234;
constexpr long kNotRead = -1;
constexpr std::uint32_t kAccess = 63;        // all access, without the standard rights
constexpr std::size_t kNumberSize = 4;       // bytes
constexpr std::size_t kStringsBuffer = 260;  // characters

// A 32-bit integer from at most four bytes, lowest first.
long long NumberOf(const std::string& bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    number |= static_cast<std::uint32_t>(static_cast<std::uint8_t>(bytes[i])) << 8 * i;
  }
  return static_cast<std::int32_t>(number);
}

}  // namespace

Text sLireCleClasse(const Text& sCle) {
  Platform& platform = CurrentPlatform();
  RegistryKey hCle = RegistryKey::kNone;
  if (platform.RegCreateKey(RegistryRoot::kClassesRoot, sCle, hCle) != kSuccess) return {};
  RegistryValue value;
  if (platform.RegQueryValueEx(hCle, {}, value) != kSuccess) return {};
  // Nothing, or a terminator alone.
  if (value.text.size() < 2) return {};
  value.text.pop_back();
  return Trim(sChangeCaractere(value.text, TextView(u"\0", 1), u" "));
}

long iLireValeur(RegistryKey hCle, const Text& sNom, Text& vValeur) {
  vValeur.clear();
  RegistryValue value;
  const long result = CurrentPlatform().RegQueryValueEx(hCle, sNom, value);
  if (result != kSuccess) return result;
  switch (value.type) {
    case kRegistryString:
      vValeur = value.text;
      return kSuccess;
    case kRegistryBinary:
    case kRegistryNumber:
      if (value.bytes.size() > kNumberSize) return kMoreData;
      vValeur = Decimal(NumberOf(value.bytes));
      return kSuccess;
    case kRegistryStrings:
      if (value.text.size() > kStringsBuffer) return kMoreData;
      vValeur = sTronqueAuNul(value.text);
      return kSuccess;
    default:
      return kNotRead;
  }
}

Text sCommandeOuverture(const Text& sClasse) {
  Platform& platform = CurrentPlatform();
  RegistryKey hCle = RegistryKey::kNone;
  const Text sCle = sClasse + u"\\shell\\open\\command";
  if (platform.RegOpenKeyEx(RegistryRoot::kClassesRoot, sCle, kAccess, hCle) != kSuccess) return {};
  Text vValeur;
  iLireValeur(hCle, {}, vValeur);
  platform.RegCloseKey(hCle);
  return Trim(sTronqueAuNul(vValeur));
}

Text sLireCleMachine(const Text& sCle, const Text& sNom, bool bToujours) {
  Platform& platform = CurrentPlatform();
  RegistryKey hCle = RegistryKey::kNone;
  const bool bOuverte =
      platform.RegOpenKeyEx(RegistryRoot::kLocalMachine, sCle, kAccess, hCle) == kSuccess;
  Text sResultat = bOuverte ? u"0" : u"2";
  if (!sNom.empty() || bToujours) {
    Text vValeur;
    if (bOuverte) iLireValeur(hCle, sNom, vValeur);
    sResultat = Trim(sTronqueAuNul(vValeur));
  }
  if (bOuverte) platform.RegCloseKey(hCle);
  return sResultat;
}

}  // namespace trovex
