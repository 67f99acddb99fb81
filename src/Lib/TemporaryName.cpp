#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"

namespace trovex {
namespace {

constexpr std::size_t kLongestPrefix = 5;
constexpr TextView kUsualPrefix = u"Trvx";

// A number from 023 to 039, in three digits.
Text DrawnNumber() {
  const int number = static_cast<int>(CurrentPlatform().Random() * 17 + 23);
  const Text digits = Decimal(number);
  return Text(digits.size() < 3 ? 3 - digits.size() : 0, u'0') + digits;
}

Text DrawnName(TextView sPrefixe) {
  return sAjouteBackslash(sRepertoireTemp) + u"~" + Text(sPrefixe) + DrawnNumber() + u".tmp";
}

}  // namespace

Text sRepertoireTemp;
Text sDernierNomTemp;

void RemplitRepertoireTemp() {
  sRepertoireTemp = CurrentPlatform().GetEnvironmentVariable(u"TMP");
  if (sRepertoireTemp.empty()) {
    sRepertoireTemp = CurrentPlatform().GetEnvironmentVariable(u"TEMP");
  }
  if (sRepertoireTemp.empty()) sRepertoireTemp = sRepertoireAppli();
}

Text sNomTemporaire(TextView sPrefixe) {
  Text sDebut = sRemplaceCaracteresSpeciaux(sPrefixe).substr(0, kLongestPrefix);
  if (sDebut.empty()) sDebut = kUsualPrefix;
  if (sRepertoireTemp.empty()) RemplitRepertoireTemp();

  Text sNom = DrawnName(sDebut);
  if (bFichierExiste(sNom) || sNom == sDernierNomTemp) sNom = DrawnName(sDebut);
  // The third name is taken untested: whoever opens it overwrites it.
  if (bFichierExiste(sNom)) sNom = DrawnName(sDebut);
  sDernierNomTemp = sNom;
  return sNom;
}

Text sNomTempAppli() {
  return sNomTemporaire(kUsualPrefix);
}

}  // namespace trovex
