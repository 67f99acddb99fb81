#include "Export/GridExport.h"

#include "Lib/Dialogs.h"
#include "Lib/FileNumbers.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr int kNotOpened = -1;

// A format of export: what the user is shown, and how its lines are made.
struct Format {
  const char16_t* sNom;
  StringId titre;
  StringId filtre;
  const char16_t* sExtension;
  std::optional<Text> sSeparateur;
  std::optional<Text> sGuillemet;
};

const Format& FormatOf(int iChoisi) {
  static const Format formats[] = {
      {u"CSV", StringId::kExportCsv, StringId::kFiltreCsv, u".csv", u",", u"\""},
      {u"PRN", StringId::kExportPrn, StringId::kFiltrePrn, u".prn", u" ", std::nullopt},
      {u"TXT", StringId::kExportTxt, StringId::kFichiersTexte, u".txt", std::nullopt, u"\""},
  };
  return formats[iChoisi];
}

void WriteLine(int hFichier, Grid& grid, int r, const Text& sSeparateur, const Text& sGuillemet) {
  Text sLigne;
  grid.SetRow(r);
  for (int c = 0; c < grid.Cols(); ++c) {
    grid.SetCol(c);
    if (c > 0) sLigne += sSeparateur;
    sLigne += sGuillemet + grid.GetText() + sGuillemet;
  }
  PrintLine(hFichier, sLigne);
}

}  // namespace

ExportOutcome GridExport(Grid& grid, const Text& sFichier, const std::optional<Text>& sSeparateur,
                         const std::optional<Text>& sGuillemet) {
  const int hFichier = iOuvreEcriture(sFichier);
  if (hFichier == kNotOpened) return ExportOutcome::kFailed;
  try {
    const Text sEntre = sSeparateur.value_or(u"\t");
    const Text sAutour = sGuillemet.value_or(u"");
    const int iLignes = grid.Rows();
    for (int r = 0; r < iLignes; ++r) WriteLine(hFichier, grid, r, sEntre, sAutour);
    CloseFile(hFichier);
    return ExportOutcome::kWritten;
  } catch (const RuntimeError& error) {
    IgnoringErrors([&] { CloseFile(hFichier); });
    Err().Set(error);
    MessageErreur(u"GridExport()");
    return ExportOutcome::kFailed;
  }
}

ExportOutcome GridExportAscii(Grid& grid) {
  const int iChoisi = iChoix(true, ResString(StringId::kChoixExport), FormatOf(0).sNom,
                             FormatOf(1).sNom, 0, FormatOf(2).sNom);
  if (iChoisi < 0 || iChoisi > 2) {
    BusyOff();
    return ExportOutcome::kCancelled;
  }
  const Format& format = FormatOf(iChoisi);
  const Text sFichier = sDialogueFichier(ResString(format.titre), ResString(format.filtre),
                                         format.sExtension, Text(u"Fichier") + format.sExtension);
  if (Trimmed(sFichier).empty()) return ExportOutcome::kCancelled;
  BusyOn();
  const ExportOutcome outcome = GridExport(grid, sFichier, format.sSeparateur, format.sGuillemet);
  BusyOff();
  return outcome;
}

}  // namespace trovex
