#include "Scanner/TextLines.h"

#include "Lib/FileNumbers.h"
#include "Lib/LIB_FILE.h"
#include "Platform/Encoding.h"
#include "Resources/Strings.h"
#include "Scanner/VersionRecord.h"

namespace trovex {
namespace {

// Line `wanted` (1 or 2). The lines before it are passed over, not kept, and nothing is read behind
// what is wanted: a large file without line ends costs no more than a small one.
Text ReadLine(const Text& sFile, int wanted, std::size_t longest) {
  if (Trimmed(sFile).empty()) return {};
  const int iFichier = iOuvreLecture(sFile);
  if (iFichier == -1) return {};
  Text sLigne;
  try {
    for (int line = 1; line < wanted && !AtEnd(iFichier); ++line) LineInput(iFichier, 0);
    if (!AtEnd(iFichier)) sLigne = LineStart(iFichier, longest);
    CloseFile(iFichier);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    CloseFile(iFichier);
    MessageErreurFichier(sFile, kCodeOuverture);
  }
  return sLigne;
}

}  // namespace

Text sPremiereLigne(const Text& sFile, std::size_t longest) {
  return ReadLine(sFile, 1, longest);
}
Text sDeuxiemeLigne(const Text& sFile, std::size_t longest) {
  return ReadLine(sFile, 2, longest);
}

Text vNomProduit(const Text& sFile) {
  constexpr std::size_t kOffset = 12;  // the key, its NUL and no padding
  if (sFile.empty()) return {};
  try {
    const std::string record = ReadVersionRecord(sFile);
    const auto value = BehindKey(record, "ProductName", kOffset);
    if (value) return FromCp1252(*value);
  } catch (const RuntimeError&) {
    // The text held so far.
  }
  return ResString(StringId::kPasDeNomProduit);
}

}  // namespace trovex
