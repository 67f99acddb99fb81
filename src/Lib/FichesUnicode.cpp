#include "Lib/FichesUnicode.h"

#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Platform/Records/ProfileFile.h"

namespace trovex {
namespace {

const Text kSection = u"Options";
const Text kCle = u"fiches_unicode";

bool fiches_unicode = false;

}  // namespace

bool bFichesUnicode() {
  return fiches_unicode;
}

void ChoisitFichesUnicode(bool bLire) {
  fiches_unicode = bLire;
}

void LitFichesUnicode() {
  fiches_unicode = bLitIni(kSection, kCle, false, sFichierIni);
}

void EnregistreFichesUnicode(bool bLire) {
  fiches_unicode = bLire;
  PutIniBoolean(kSection, kCle, bLire, sFichierIni);
}

bool bAutresReglages(const Text& sFichier) {
  if (!bFichierExiste(sFichier)) return false;
  try {
    return !records::HoldsKeyAlone(sOctetsIni(sFichier), kSection, kCle);
  } catch (const RuntimeError&) {
    return true;  // what it holds cannot be told
  }
}

}  // namespace trovex
