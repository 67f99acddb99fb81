#include "Lib/LIB_STRING.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr std::size_t kLargest = 32767;

const Text kSource = u"LIB_STRING";

std::size_t abandoned = 0;

// What cannot stand in an anchor or a file name: accented letters, blank and tab, signs.
constexpr TextView kSpeciaux =
    u"ÆÁÂÀÅÃÄÇÐÉÊÈËÍÎÌÏÑÓÔÒØÕÖÞÚÛÙÜÝáâæàåãäçéêèðëíîìïñóôòøõößþúûùüýÿ"
    u" \t"
    u"'`()[]{}#~&|-²\\/@=°+$£¤%!?§^:;,.<>µ*\"";
static_assert(kSpeciaux.size() == 101);

void CheckLength(TextView sCherche) {
  if (sCherche.size() > kLargest) throw RuntimeError(ErrorNumber::kOverflow, kSource);
}

}  // namespace

Text sSautLigne;
Text sLigneTirets;
Text sSautLigneTirets;

void InitChaines() {
  sSautLigne = Text(1, u'\n');
  sLigneTirets = Text(76, u'-');
  sSautLigneTirets = Text(kCrLf) + sLigneTirets;
}

int iPosition(TextView sTexte, TextView sCherche) {
  CheckLength(sCherche);
  const std::size_t found = sCherche.empty() ? TextView::npos : sTexte.find(sCherche);
  if (found == TextView::npos) return 0;
  if (found + 1 > kLargest) throw RuntimeError(ErrorNumber::kOverflow, kSource);
  return static_cast<int>(found) + 1;
}

Text sTronqueAuNul(TextView sTexte) {
  const int p = iPosition(sTexte, TextView(u"\0", 1));
  return Text(p == 0 ? sTexte : sTexte.substr(0, static_cast<std::size_t>(p - 1)));
}

Text sChangeCaractere(TextView sTexte, TextView sCherche, TextView sRemplace) {
  Text sResultat;
  try {
    CheckLength(sCherche);
    if (sCherche.empty() || Trimmed(sTexte).empty()) return Text(sTexte);
    TextView rest = sTexte;
    while (const int p = iPosition(rest, sCherche)) {
      sResultat.append(rest, 0, static_cast<std::size_t>(p - 1));
      sResultat += sRemplace;
      rest.remove_prefix(static_cast<std::size_t>(p - 1) + sCherche.size());
    }
    return sResultat.append(rest);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    ++abandoned;
    MessageErreur(ResString(StringId::kErreurChangeCaractere) + sResultat + Text(kCrLf) +
                  u"sChangeCaractere(" + Text(sCherche) + u", " + Text(sRemplace) + u")");
    return {};
  }
}

std::size_t iTextesAbandonnes() {
  return abandoned;
}

Text sRemplaceCaracteresSpeciaux(TextView sTexte) {
  Text sResultat(sTexte);
  for (std::size_t i = 0; i < kSpeciaux.size() && !sResultat.empty(); ++i) {
    if (sResultat.find(kSpeciaux[i]) == Text::npos) continue;
    sResultat = sChangeCaractere(sResultat, kSpeciaux.substr(i, 1), u"_");
  }
  return sResultat;
}

Text sGaucheDe(TextView sTexte, TextView sSeparateur) {
  const int p = sTexte.empty() ? 0 : iPosition(sTexte, sSeparateur);
  return Text(p == 0 ? sTexte : sTexte.substr(0, static_cast<std::size_t>(p - 1)));
}

Text sDroiteDe(TextView sTexte, TextView sSeparateur, bool bVideSiAbsent) {
  if (sTexte.empty() || sSeparateur.empty()) return Text(sTexte);
  const int p = iPosition(sTexte, sSeparateur);
  if (p == 0) return bVideSiAbsent ? Text() : Text(sTexte);
  return Text(sTexte.substr(static_cast<std::size_t>(p - 1) + sSeparateur.size()));
}

Text sGaucheDernier(TextView sTexte, TextView sSeparateur) {
  if (sTexte.empty() || sSeparateur.empty()) return Text(sTexte);
  Text sGauche;
  TextView segment;
  TextView rest = sTexte;
  while (const int p = iPosition(rest, sSeparateur)) {
    if (!segment.empty()) sGauche.append(segment).append(sSeparateur);
    segment = rest.substr(0, static_cast<std::size_t>(p - 1));
    rest.remove_prefix(static_cast<std::size_t>(p - 1) + sSeparateur.size());
  }
  sGauche += segment;
  return sGauche.empty() ? Text(rest) : sGauche;
}

Text sDroiteDernier(TextView sTexte, TextView sSeparateur, int* pCompteur) {
  if (pCompteur != nullptr) *pCompteur = 0;
  if (sTexte.empty() || sSeparateur.empty()) return Text(sTexte);
  TextView previous;
  TextView rest = sTexte;
  while (const int p = iPosition(rest, sSeparateur)) {
    previous = rest;
    rest.remove_prefix(static_cast<std::size_t>(p - 1) + sSeparateur.size());
    if (pCompteur != nullptr) ++*pCompteur;
  }
  // One character is compared with the whole separator: only a separator of several characters can
  // differ, and a text ending in one keeps its last piece whole.
  const bool keeps_piece =
      rest.empty() && !previous.empty() && previous.substr(previous.size() - 1) != sSeparateur;
  return Text(keeps_piece ? previous : rest);
}

Text sExtraitChamp(Text& sListe, TextView sSeparateur) {
  if (Trimmed(sListe).empty()) return {};
  try {
    const int p = iPosition(sListe, sSeparateur);
    Text sChamp = p == 0 ? sListe : sListe.substr(0, static_cast<std::size_t>(p - 1));
    sListe.erase(0, p == 0 ? sListe.size() : sChamp.size() + sSeparateur.size());
    if (sChamp.starts_with(u'"')) sChamp.erase(0, 1);
    if (sChamp.ends_with(u'"')) sChamp.pop_back();
    return sChamp;
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurExtraitChamp) + Text(kCrLf) + sListe);
    return {};
  }
}

}  // namespace trovex
