#include "Html/LIB_RGB.h"

#include "Lib/LIB_DIALOGUE.h"

namespace trovex {
namespace {

constexpr std::size_t kDigits = 6;
constexpr int kLargest = 32767;  // channels and digits are 16-bit numbers
constexpr TextView kHexDigits = u"0123456789ABCDEF";

// Runs a routine of this module with its handler: the error box with the routine's name.
template <typename Result, typename Routine>
Result Reporting(const char16_t* sNom, Result neutral, Routine routine) {
  try {
    return routine();
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(sNom);
    return neutral;
  }
}

bool AllHexDigits(const Text& sTexte) {
  for (char16_t unit : sTexte) {
    Text sChiffre(1, unit);
    if (!IsHexDigit(sChiffre)) return false;
  }
  return true;
}

int Pair(const Text& sPadded, std::size_t at) {
  return 16 * HexaToDecimal(sPadded.substr(at, 1)) + HexaToDecimal(sPadded.substr(at + 1, 1));
}

}  // namespace

int Hexa2RGB(Text& sHexa, int& iRouge, int& iVert, int& iBleu) {
  return Reporting(u"Hexa2RGB()", 0, [&] {
    if (sHexa.empty() || sHexa == u"0" || sHexa.size() > kDigits) return 0;
    sHexa = ToUpper(sHexa);
    if (!AllHexDigits(sHexa)) return 0;
    const Text sPadded = Text(kDigits - sHexa.size(), u'0') + sHexa;
    iBleu = Pair(sPadded, 0);
    iVert = Pair(sPadded, 2);
    iRouge = Pair(sPadded, 4);
    return iRouge + 256 * iVert + 65536 * iBleu;
  });
}

int HexaToDecimal(const Text& sChiffre) {
  return Reporting(u"HexaToDecimal()", -1, [&] {
    const Text sMajuscule = ToUpper(sChiffre);
    if (sMajuscule >= u"0" && sMajuscule <= u"9") {
      const double value = Val(sMajuscule);
      if (value > kLargest) throw RuntimeError(ErrorNumber::kOverflow, u"LIB_RGB");
      return static_cast<int>(value);
    }
    if (sMajuscule >= u"A" && sMajuscule <= u"F") return static_cast<int>(sMajuscule[0]) - 55;
    return -1;
  });
}

bool IsHexDigit(Text& sChiffre) {
  return Reporting(u"IsHexDigit()", false, [&] {
    if (sChiffre.empty()) return false;
    sChiffre = ToUpper(TextView(sChiffre).substr(0, 1));
    return kHexDigits.find(sChiffre[0]) != TextView::npos;
  });
}

Text sHexa(unsigned iCouleur) {
  Text sResultat;
  do {
    sResultat.insert(sResultat.begin(), kHexDigits[iCouleur % 16]);
    iCouleur /= 16;
  } while (iCouleur > 0);
  return sResultat;
}

}  // namespace trovex
