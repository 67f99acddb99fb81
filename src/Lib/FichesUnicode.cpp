#include "Lib/FichesUnicode.h"

#include "Lib/FileNumbers.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Lib/LIB_STRING.h"

namespace trovex {
namespace {

const Text kSection = u"Options";
const Text kCle = u"fiches_unicode";

bool fiches_unicode = false;

bool IsBlankOrComment(TextView line) {
  return line.empty() || line.front() == u';';
}

// Reads a settings file's lines until one says that there is more in it than the choice.
class Reader {
 public:
  // False at a line of somebody else.
  bool Take(const Text& sLigne) {
    const Text line = Trim(sChangeCaractere(sLigne, u"\t", u" "));
    if (IsBlankOrComment(line)) return true;
    if (line.front() == u'[') {
      inside_ = EqualsNoCase(line, u"[" + kSection + u"]");
      return true;
    }
    const bool choice = inside_ && EqualsNoCase(Trim(sGaucheDe(line, u"=")), kCle);
    chosen_ = chosen_ || choice;
    return choice;
  }
  bool Chosen() const { return chosen_; }

 private:
  bool inside_ = false;
  bool chosen_ = false;
};

bool HoldsTheChoiceAlone(const Text& sFichier) {
  const int iFichier = FreeFile();
  OpenInput(iFichier, sFichier);
  Reader reader;
  bool alone = true;
  try {
    while (alone && !AtEnd(iFichier)) alone = reader.Take(LineInput(iFichier));
  } catch (const RuntimeError&) {
    alone = false;
  }
  CloseFile(iFichier);
  return alone && reader.Chosen();
}

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
    return !HoldsTheChoiceAlone(sFichier);
  } catch (const RuntimeError&) {
    return true;  // what it holds cannot be told
  }
}

}  // namespace trovex
