#include "Screen/ConvertHTML.h"

#include "Lib/Dialogs.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"
#include "Screen/HtmlExport.h"

namespace trovex {
namespace {

const Text& R(StringId id) {
  return ResString(id);
}

// False where the user went back.
bool AskTables(HtmlExportWish& wish) {
  BusyOn();
  switch (iQuestion(R(StringId::kTousLesTableaux))) {
    case BoxAnswer::kYes:
      return true;
    case BoxAnswer::kNo:
      wish.iTableau =
          iChoix(true, R(StringId::kTableauAExporter) + u" : ", R(StringId::kTableInstallation),
                 R(StringId::kTableExecutables), 0, R(StringId::kTableArchives));
      return wish.iTableau >= 0;
    default:
      return false;
  }
}

bool AskDrive(HtmlExportWish& wish) {
  const BoxAnswer answer = iQuestion(R(StringId::kDerniereQuestion) + u" : " + Text(kCrLf) +
                                     Text(kCrLf) + R(StringId::kConserverLecteur));
  wish.bGarderLecteur = answer == BoxAnswer::kYes;
  return answer == BoxAnswer::kYes || answer == BoxAnswer::kNo;
}

}  // namespace

ExportOutcome ConvertHTML_Click(MainForm& form) {
  BusyOn();
  HtmlExportWish wish;
  wish.sFichier = sDialogueFichier(R(StringId::kFichierHtmlACreer), R(StringId::kFiltreHtml),
                                   u".htm", u"Fichier.htm");
  if (wish.sFichier.empty()) {
    BusyOff();
    return ExportOutcome::kCancelled;
  }
  // Going back from a question leaves the busy text in the status line.
  if (!AskTables(wish) || !AskDrive(wish)) return ExportOutcome::kCancelled;
  return ExportHtml(form, wish);
}

}  // namespace trovex
