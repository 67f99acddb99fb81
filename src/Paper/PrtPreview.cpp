#include "Paper/PrtPreview.h"

#include <cmath>
#include <limits>

#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/Lib_Form.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr int kPortrait = 1, kPaysage = 2;
const Text kSource = u"PrtPreview";

// A whole number that must fit into a type of fewer bits.
template <typename Narrow>
std::int32_t Checked(double value) {
  if (!(value >= std::numeric_limits<Narrow>::min() &&
        value <= std::numeric_limits<Narrow>::max())) {
    throw RuntimeError(ErrorNumber::kOverflow, kSource);
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace

PrtPreview::PrtPreview() : surface_(MyPrintPreview()) {
  surface_.SetFichierTravail(sNomTempAppli());
  surface_.SetTitreAppli(ResString(StringId::kNomProgramme));
}

PrtPreview::~PrtPreview() {
  IgnoringErrors([&] {
    const Text sFichier = surface_.FichierTravail();
    if (bFichierExiste(sFichier)) bEffaceFichier(sFichier, false, false);
  });
  IgnoringErrors([] { Lib_Form().Unload(); });
}

// --- The page ---

void PrtPreview::InitDocument(const OptText& leLibelle, OptInt lOrientation, OptSize fntSize,
                              const OptText& fntName, std::optional<bool> bNumerotation) {
  if (bDocumentPret) return;
  try {
    PrepareDocument(leLibelle, lOrientation, fntSize, fntName, bNumerotation);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurApercu));
  }
}

void PrtPreview::PrepareDocument(const OptText& leLibelle, OptInt lOrientation, OptSize fntSize,
                                 const OptText& fntName, std::optional<bool> bNumerotation) {
  if (lOrientation) surface_.SetOrientation(*lOrientation);
  if (bNumerotation) bNumeroPage = *bNumerotation;
  if (bNumeroPage) surface_.NumeroterPages(1, 2);
  SetLanguage();
  surface_.SetLibellePage(leLibelle.value_or(u""));
  if (fntName) surface_.SetFontName(*fntName);
  if (fntSize) surface_.SetFontSize(*fntSize);
  bDocumentPret = true;
}

void PrtPreview::SetLanguage() {
  const Text sLangue = ToUpper(ResString(StringId::kLangue));
  if (sLangue == u"UK" || sLangue == u"US") {
    surface_.UseEnglish();
  } else {
    surface_.UseFrench();
  }
}

template <typename Step>
bool PrtPreview::FillsPages(Step step) {
  try {
    step();
    return true;
  } catch (const RuntimeError&) {
    if (!surface_.Full()) throw;
  }
  MessageErreur(ResString(StringId::kDocumentTropLong));
  return false;
}

// --- Whole documents ---

void PrtPreview::DisplayGrid(const Grid& laGrille, const OptText& leTitre, const OptText& leLibelle,
                             OptInt lOrientation, OptSize fntSize, const OptText& fntName) {
  InitDocument(leLibelle, lOrientation, fntSize, fntName, true);
  surface_.SetTitreDocument(leTitre.value_or(ResString(StringId::kTableauDesDonnees)));
  if (!FillsPages([&] { surface_.PrintGrid(laGrille); })) surface_.ShowPreview();
}

void PrtPreview::DisplayDBGrid(const Grid& laGrille, const OptText& leTitre,
                               const OptText& leLibelle, OptInt lOrientation, OptSize fntSize,
                               const OptText& fntName) {
  InitDocument(leLibelle, lOrientation, fntSize, fntName, true);
  surface_.SetTitreDocument(leTitre.value_or(ResString(StringId::kTableauDesDonnees)));
  if (!FillsPages([&] { surface_.PrintDBGrid(laGrille); })) surface_.ShowPreview();
}

void PrtPreview::DisplayGridLandscape(const Grid& laGrille, const OptText& leTitre,
                                      const OptText& libelle, OptSize newSize) {
  DisplayGrid(laGrille, leTitre, libelle, kPaysage, newSize);
}

void PrtPreview::DisplayDBGridLandscape(const Grid& laGrille, const OptText& leTitre,
                                        const OptText& libelle, OptSize newSize) {
  DisplayDBGrid(laGrille, leTitre, libelle, kPaysage, newSize);
}

void PrtPreview::DisplayGridPortrait(const Grid& laGrille, const OptText& leTitre,
                                     const OptText& leLibelle, OptSize fntSize,
                                     const OptText& fntName) {
  DisplayGrid(laGrille, leTitre, leLibelle, kPortrait, fntSize, fntName);
}

void PrtPreview::DisplayDBGridPortrait(const Grid& laGrille, const OptText& leTitre,
                                       const OptText& leLibelle, OptSize fntSize,
                                       const OptText& fntName) {
  DisplayDBGrid(laGrille, leTitre, leLibelle, kPortrait, fntSize, fntName);
}

void PrtPreview::DisplayTextBox(const TextBox& lesInfos, const OptText& leTitre, OptInt FlagType,
                                OptInt FlagAlign, OptSize fntSize, const OptText& fntName,
                                OptInt lOrientation, OptColour laColor) {
  InitDocument(leTitre, lOrientation, fntSize, fntName, true);
  FillsPages(
      [&] { PutTextBox(lesInfos, leTitre, FlagType, FlagAlign, fntSize, fntName, laColor); });
  Display();
}

void PrtPreview::DisplayTextBoxLandscape(const TextBox& lesInfos, const OptText& leTitre,
                                         OptInt FlagType, OptInt FlagAlign, OptSize fntSize,
                                         const OptText& fntName, OptColour laColor) {
  DisplayTextBox(lesInfos, leTitre, FlagType, FlagAlign, fntSize, fntName, kPaysage, laColor);
}

void PrtPreview::DisplayTextBoxPortrait(const TextBox& lesInfos, const OptText& leTitre,
                                        OptInt FlagType, OptInt FlagAlign, OptSize fntSize,
                                        const OptText& fntName, OptColour laColor) {
  DisplayTextBox(lesInfos, leTitre, FlagType, FlagAlign, fntSize, fntName, kPortrait, laColor);
}

void PrtPreview::DisplayImage(const Text& fichier, const OptText& unTitre, OptInt lOrientation,
                              OptDouble x, OptDouble Y) {
  InitDocument(unTitre, lOrientation, {}, {}, true);
  PutImage(fichier, x.value_or(0), Y.value_or(0));
  Display();
}

void PrtPreview::Display() {
  bDocumentPret = false;
  surface_.ShowPreview();
}

// --- Places ---

std::int32_t PrtPreview::CmToCo(double cm) {
  return Checked<std::int32_t>(std::floor(cm * kCoParCm));
}

double PrtPreview::GetCurrentCmX() {
  return CoToCm(surface_.CurrentX());
}

double PrtPreview::GetCurrentCmY() {
  return CoToCm(surface_.CurrentY());
}

std::int32_t PrtPreview::GetCurrentCoX() {
  return Checked<std::int16_t>(std::nearbyint(surface_.CurrentX()));
}

std::int32_t PrtPreview::GetCurrentCoY() {
  return Checked<std::int16_t>(std::nearbyint(surface_.CurrentY()));
}

void PrtPreview::SetCurrentCmXY(OptDouble x, OptDouble Y) {
  if (x) surface_.SetCurrentX(CmToCo(*x));
  if (Y) surface_.SetCurrentY(CmToCo(*Y));
}

void PrtPreview::SetCurrentCoXY(OptInt x, OptInt Y) {
  if (x) surface_.SetCurrentX(*x);
  if (Y) surface_.SetCurrentY(*Y);
}

void PrtPreview::PutNewPage(std::optional<bool> NumeroPage) {
  surface_.NewPage(7);
  if (NumeroPage) bNumeroPage = *NumeroPage;
  if (bNumeroPage) surface_.NumeroterPages(1, 2);
}

void PrtPreview::PutImage(const Text& fichier, double x, double Y) {
  if (bFichierExiste(fichier)) surface_.DrawImage(fichier, CmToCo(x), CmToCo(Y));
}

void PrtPreview::PutLine(double x1, double y1, OptDouble x2, OptDouble y2, OptColour laColor,
                         OptDouble epaisseur) {
  const double fin = x2.value_or(CoToCm(surface_.PageWidth()) - x1);
  surface_.DrawLine(CmToCo(x1), CmToCo(y1), CmToCo(fin), CmToCo(y2.value_or(y1)),
                    laColor.value_or(surface_.ForeColor()),
                    epaisseur.value_or(surface_.LineWidth()));
}

}  // namespace trovex
