#include "Html/LIB_HTML.h"

#include "Html/Entities.h"
#include "Html/Lib_OptionsHTML.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Version.h"

namespace trovex {
namespace {

constexpr int kLastPosition = 32767;  // positions are 16-bit numbers

char16_t CharAt(const Text& s, int i) {
  return s[static_cast<std::size_t>(i - 1)];
}

int Next(int i) {
  if (i >= kLastPosition) throw RuntimeError(ErrorNumber::kOverflow, u"LIB_HTML");
  return i + 1;
}

// Where an address that begins at `p` ends: at a blank or "<" behind it, or at the text's end.
int EndOfAddress(const Text& s, int p) {
  const auto length = static_cast<long long>(s.size());
  for (int i = Next(p);;) {
    if (CharAt(s, i) == u' ' || CharAt(s, i) == u'<') return i;
    i = Next(i);
    if (i > length) return static_cast<int>(length);
  }
}

// Both ends included, as the positions of texts count.
Text Between(const Text& s, int p, int e) {
  return s.substr(static_cast<std::size_t>(p - 1), static_cast<std::size_t>(e - p + 1));
}
Text Before(const Text& s, int p) {
  return s.substr(0, static_cast<std::size_t>(p - 1));
}
Text From(const Text& s, int p) {
  return s.substr(static_cast<std::size_t>(p - 1));
}

Text Link(const Text& sAdresse, const Text& U) {
  return u" <A HREF=\"" + sAdresse + u"\">" + U + u"</A>";
}

// The character that ends the address is used up, and a blank stands in front of the link.
void LinkWeb(Text& s, TextView sDebut) {
  const int p = iPosition(s, sDebut);
  if (p == 0) return;
  const int e = EndOfAddress(s, p);
  const Text U = Trim(Between(s, p, e));
  s = Before(s, p) + Link(U, U) + From(s, e + 1);
}

// The address reaches back to a blank or ">", which falls away or into it; what ends it stays.
void LinkMail(Text& s) {
  int p = iPosition(s, u"@");
  while (p > 0 && CharAt(s, p) != u' ' && CharAt(s, p) != u'>') --p;
  if (p == 0) return;
  const int e = EndOfAddress(s, p);
  const Text U = Trim(Between(s, p, e - 1));
  s = Before(s, p) + Link(u"mailto:" + U, U) + From(s, e);
}

Text AnchorOf(const Text& sTexte, const std::optional<Text>& vAncre) {
  return ToUpper(sRemplaceCaracteresSpeciaux(vAncre.value_or(sTexte)));
}

// The title that the user typed wins, the caller's stands in for it; without the option there is
// none.
Text TitleOf(const std::optional<Text>& vTitre) {
  OptionsHTML& options = Lib_OptionsHTML();
  const bool bTitre = options.CheckTitre.Value();
  const Text S = Trim(options.TextTitre.GetText());
  Text T;
  if (vTitre) T = sTexteVersHTML(bTitre ? *vTitre : Text());
  if (T.empty()) return bTitre ? sTexteVersHTML(S) : Text();
  return sTexteVersHTML(bTitre && !S.empty() ? S : T);
}

}  // namespace

Text sTexteVersHTML(const Text& sTexte) {
  if (sTexte.empty()) return {};
  Text s = sTexte;
  for (const Entity& entity : kEntities) {
    if (s.find(entity.character) == Text::npos) continue;
    s = sChangeCaractere(s, entity.character, entity.entity);
  }
  LinkWeb(s, u"http://");
  LinkWeb(s, u"ftp://");
  LinkMail(s);
  return s;
}

Text sEnteteHTML(const std::optional<Text>& vTitre) {
  const Text T = TitleOf(vTitre);
  OptionsHTML& options = Lib_OptionsHTML();
  const Text sImage = options.CheckImage.Value() ? options.ImageDebut.GetText() : Text();
  const Text sVersion = Text(kVersionNumbers);
  const Text sFin(kCrLf);
  return u"<!-- DOCUMENT HTML GENERE PAR L'APPLICATION (c) " + Text(kTitle) + u" " + sVersion +
         u" - 1999 -->" + sFin + u"<!-- DOCTYPE HTML SYSTEM \"html.dtd\" -->" + sFin +
         u"<HTML><HEAD><TITLE>" + T + u"</TITLE></HEAD>" + sFin + sBaliseBody() +
         sBaliseImage(sImage, true) + sFin;
}

Text sBaliseBody() {
  OptionsHTML& options = Lib_OptionsHTML();
  const Text sFond = options.CheckBack.Value() ? options.ImageBack.GetText() : Text();
  const Text sCouleur = options.CheckFond.Value() ? options.CouleurRGB.GetText() : Text();
  return u"<BODY BACKGROUND=\"" + sFond + u"\" BGCOLOR=\"" + sCouleur + u"\">";
}

Text sBaliseImage(const Text& sSource, bool bCommentaire) {
  const Text sBalise = u"IMG SRC=\"" + sSource + u"\" ALIGN=\"MIDDLE\"";
  return bCommentaire ? u"<!--" + sBalise + u"-->" : u"<" + sBalise + u">";
}

Text sFinHTML() {
  return u"</BODY>" + Text(kCrLf) + u"</HTML>";
}

Text sAncreNom(const Text& sTexte, bool bGras, bool bAvecTexte, const std::optional<Text>& vAncre) {
  if (sTexte.empty()) return {};
  Text sAncre = u"<A NAME=\"" + AnchorOf(sTexte, vAncre) + u"\">";
  if (!bAvecTexte) return sAncre;
  const Text sContenu = sTexteVersHTML(sTexte);
  return sAncre + (bGras ? u"<B>" + sContenu + u"</B>" : sContenu);
}

Text sLienAncre(const Text& sTexte, const Text& sFichier, const Text& sAttributs,
                const std::optional<Text>& vAncre) {
  if (sTexte.empty()) return {};
  // The quote behind the attributes comes whatever they hold: that is the format.
  return u"<A HREF=\"" + sFichier + u"#" + AnchorOf(sTexte, vAncre) + u"\" " + sAttributs + u"\">" +
         sTexteVersHTML(sTexte) + u"</A>";
}

}  // namespace trovex
