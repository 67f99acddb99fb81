#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Lib/LIB_REGISTRY.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/LIB_STRING.h"

namespace trovex {
namespace {

// A program named in WIN.INI, where it exists as named or in the Windows directory; else empty.
Text ExistingProgram(const Text& sNom) {
  if (sNom.empty() || bFichierExiste(sNom)) return sNom;
  const Text sDansWindows = sRepertoireWindows() + sNom;
  return bFichierExiste(sDansWindows) ? sDansWindows : Text();
}

Text FromWinIni(const Text& sExtension) {
  return ToUpper(Trim(vExtensionWinIni(sExtension)));
}

void ReadWinIni() {
  sAppliHtm = FromWinIni(u"htm");
  if (sAppliHtm.empty()) sAppliHtm = FromWinIni(u"HTML");
  sAppliDoc = FromWinIni(u"DOC");
  sAppliBmp = FromWinIni(u"bmp");
  for (Text* sAppli : {&sAppliHtm, &sAppliDoc, &sAppliBmp}) *sAppli = ExistingProgram(*sAppli);
}

Text OpenCommandOf(const Text& sExtension) {
  return sCommandeOuverture(sLireCleClasse(sExtension));
}

Text WithoutQuotes(Text sTexte) {
  if (sTexte.starts_with(u'"')) sTexte.erase(0, 1);
  if (sTexte.ends_with(u'"')) sTexte.pop_back();
  return sTexte;
}

bool IsBlank(const Text& sTexte) {
  return Trimmed(sTexte).empty();
}

void ReadRegistry() {
  if (sAppliDoc.empty()) {
    sAppliDoc = OpenCommandOf(u".doc");
    if (!IsBlank(sAppliDoc)) sAppliDoc = WithoutQuotes(sGaucheDe(sAppliDoc, u"/n"));
  }
  if (sAppliHtm.empty()) {
    sAppliHtm = OpenCommandOf(u".htm");
    if (!IsBlank(sAppliHtm)) {
      sAppliHtm = WithoutQuotes(sGaucheDe(sGaucheDe(sAppliHtm, u"-nohome"), u"\"%"));
    }
  }
  if (sAppliBmp.empty()) {
    sAppliBmp = OpenCommandOf(u".bmp");
    // The test looks at the other program: without one for HTML this command stays as it is.
    if (!IsBlank(sAppliHtm)) sAppliBmp = WithoutQuotes(sGaucheDe(sAppliBmp, u"/dde"));
  }
}

}  // namespace

Text sAppliHtm;
Text sAppliDoc;
Text sAppliBmp;
Text sAppliExplorer;

void InitAssociations() {
  RemplitRepertoireTemp();
  for (Text* sAppli : {&sAppliHtm, &sAppliDoc, &sAppliBmp, &sAppliExplorer}) sAppli->clear();
  if (bFichierExiste(sRepertoireWindows() + u"WIN.INI")) ReadWinIni();
  ReadRegistry();
  const Text sExplorer = sRepertoireWindows() + u"EXPLORER.EXE";
  if (bFichierExiste(sExplorer)) sAppliExplorer = sExplorer;
}

}  // namespace trovex
