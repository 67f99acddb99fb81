#include "Screen/FileViewer.h"

#include "Lib/Dialogs.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"
#include "Screen/DiscImages.h"

namespace trovex {
namespace {

Text ChosenFile(MainForm& form) {
  return sAjouteBackslash(form.ListFichier.Tag()) + form.ListFichier.GetText();
}

// Length in bytes, 0 where the file cannot be found. Only its 32 low bits count: from 2 GiB on it
// may be negative, and such a text is refused.
std::int32_t LengthOf(const FileInHand& oFichier) {
  FileStatus status;
  const bool found = oFichier.Exists() && oFichier.GetFileStatus(status);
  return found ? static_cast<std::int32_t>(status.length) : 0;
}

void ShowIcon(MainForm& form, const Text& sFichier) {
  form.ImageSelect.SetPicture({});
  IgnoringErrors([&] {
    if (FileInHand(form.DossierEnMain(), sFichier).ExtractIconEx(0) > 0) {
      form.ImageSelect.SetPicture({Picture::Source::kFile, sFichier});
    }
  });
  form.LabelInfo(2).SetVisible(false);
  form.TextInfo(0).SetVisible(false);
  form.PrintTexte.SetVisible(false);
  form.ImageSelect.SetVisible(true);
}

void RefuseText(MainForm& form, const Text& sFichier, std::int32_t lTaille) {
  form.LabelInfo(2).SetVisible(false);
  form.TextInfo(0).SetVisible(false);
  MessageInfo(ResString(StringId::kAffichageAnnule) + Text(kCrLf) + sFichier + Text(kCrLf) +
              ResString(StringId::kCarTaille) + u" " + Decimal(lTaille) +
              ResString(StringId::kMajOctets));
}

void ShowText(MainForm& form, Text sFichier) {
  form.PrintTexte.SetVisible(false);
  form.TextInfo(0).SetText({});
  FileInHand oFichier(form.DossierEnMain(), sFichier);
  std::int32_t lTaille = LengthOf(oFichier);
  if (!oFichier.Exists()) {
    // The list may have been read from another disk directory than the row's own.
    const Text sAutre =
        sAjouteBackslash(sRepertoireSeul(form.TextInfo(5).GetText())) + form.ListFichier.GetText();
    if (bFichierExiste(sAutre)) {
      sFichier = sAutre;
      oFichier = FileInHand(sAutre);
      lTaille = LengthOf(oFichier);
    }
  }
  if (lTaille <= 0) return RefuseText(form, sFichier, lTaille);
  BusyOn(ResString(StringId::kPatientezChargement) + sFichier + u" - " + Decimal(lTaille) +
         ResString(StringId::kMajOctets));
  IgnoringErrors([&] { ChargeTexte(oFichier, form.TextInfo(0), true); });
  form.ImageSelect.SetVisible(false);
  form.LabelInfo(2).SetVisible(true);
  form.TextInfo(0).SetVisible(true);
  form.PrintTexte.SetVisible(true);
}

}  // namespace

void ListFichier_Click(MainForm& form) {
  BusyOn();
  const Text& sNom = form.ListFichier.GetText();
  const Text sFichier = ChosenFile(form);
  IgnoringErrors([&] {
    if (bEstExtension(sNom, u".diz") || bEstExtension(sNom, u".txt")) {
      ShowText(form, sFichier);
    } else if (bEstExtension(sNom, u".ico")) {
      ShowIcon(form, sFichier);
    } else if (CurrentPlatform().IsInsideImage(sFichier)) {
      // No other program can open it; who insists with a double click is told so.
    } else if (bEstExtension(sNom, u".hlp")) {
      AfficheAide({}, sFichier);
    } else {
      iLanceParAssociation(sFichier, true);
    }
  });
  BusyOff();
}

// The system would answer for a help file that it cannot show with a page of its own.
void ListFichier_DblClick(MainForm& form) {
  const Text sFichier = ChosenFile(form);
  if (bRefuseDansImage(sFichier)) return;
  const bool help = bEstExtension(form.ListFichier.GetText(), u".hlp");
  if (help && !CurrentPlatform().HasHelpEngine()) return AfficheAide({}, sFichier);
  iLanceParAssociation(sFichier, true);
}

}  // namespace trovex
