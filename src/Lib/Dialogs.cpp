#include "Lib/Dialogs.h"

#include "Lib/HelpBrowser.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "Lib/Lib_SelectDlg.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

// Ask before replacing a file; no box "read only".
constexpr unsigned kFileDialogFlags = 6;
constexpr int kHelpByKey = 257;

Text RunFileDialog(CommonDialog::Mode mode, const Text& sTitre, const Text& sFiltre,
                   const Text& sExtension, const Text& sNom) {
  CurrentView().SetPointer(Pointer::kHourglass);
  try {
    CommonDialog& dialogue = Lib_Form().DialogueCommun();
    dialogue.title = sTitre;
    dialogue.filter = sFiltre;
    dialogue.default_extension = sExtension;
    dialogue.flags = kFileDialogFlags;
    dialogue.file_name = sNom;
    CurrentView().SetPointer(Pointer::kDefault);
    return dialogue.ShowFile(mode) ? Trim(dialogue.file_name) : Text();
  } catch (const RuntimeError&) {
    return {};
  }
}

const Text& OrUsual(const Text& sTexte, const Text& sUsuel) {
  return sTexte.empty() ? sUsuel : sTexte;
}

}  // namespace

Text sFenetreDevant;
Text sFichierDAide = u"TROVEX.HLP";

int iChoix(bool bLibelle, const Text& sTitre, const Text& sOption1, const Text& sOption2,
           int iDefaut, const std::optional<Text>& sOption3) {
  Lib_SelectDlg dialogue;
  dialogue.Load();
  dialogue.Libelle().SetCaption(sTitre);
  dialogue.SetShowsLabel(bLibelle);
  dialogue.SelOptions(0).SetCaption(sOption1);
  dialogue.SelOptions(1).SetCaption(sOption2);
  if (sOption3) {
    dialogue.SelOptions(2).SetCaption(*sOption3);
    dialogue.SelOptions(2).SetVisible(true);
  }
  dialogue.Preselect(iDefaut);
  if (!sFenetreDevant.empty()) {
    dialogue.SetTag(u"-1");
    FenetrePremierPlan(dialogue, true);
  }
  dialogue.ShowModal();
  int iResultat = -1;
  if (dialogue.Reponse().Tag() == u"1") {
    iResultat = static_cast<int>(Val(dialogue.SelOptions(0).Tag()));
  }
  dialogue.Unload();
  return iResultat;
}

Text sDialogueFichier(const Text& sTitre, const Text& sFiltre, const Text& sExtension,
                      const Text& sNom) {
  return RunFileDialog(CommonDialog::Mode::kSave, sTitre, sFiltre, sExtension, sNom);
}

Text sChoixFichier(const Text& sTitre, const Text& sFiltre, const Text& sNom,
                   const Text& sExtension) {
  const Text sFiltreUsuel =
      ResString(StringId::kFichiersTexte) + u"|" + ResString(StringId::kTousLesFichiers);
  return RunFileDialog(CommonDialog::Mode::kOpen,
                       OrUsual(sTitre, ResString(StringId::kSelectionnezFichier)),
                       OrUsual(sFiltre, sFiltreUsuel), OrUsual(sExtension, u".txt"), sNom);
}

void ChercheFichierDAide() {
  if (bFichierExiste(sFichierDAide)) return;
  const Text sDernier = sNomSeul(sFichierDAide);
  for (const Text& sNom : {sRepertoireAppli() + sFichierDAide, sRepertoireAppli() + sDernier}) {
    if (!bFichierExiste(sNom)) continue;
    sFichierDAide = sNom;
    return;
  }
  sFichierDAide = sDernier;
}

void AfficheAide(const Text& sSujet, const Text& sFichierAide) {
  if (!CurrentPlatform().HasHelpEngine()) {
    if (sFichierAide.empty()) return AffichePageAide(sSujet);
    return MessageInfo(ResString(StringId::kAideImpossible) + sFichierAide + Text(kCrLf) +
                       Text(kCrLf) + ResString(StringId::kAideSansMoteur));
  }
  Text sFichier = sFichierAide;
  if (sFichier.empty()) {
    ChercheFichierDAide();
    if (sFichierDAide.empty()) return MessageInfo(ResString(StringId::kAideInaccessible));
    if (!bFichierExiste(sFichierDAide)) {
      return MessageInfo(ResString(StringId::kAideImpossible) + sFichierDAide);
    }
    sFichier = sFichierDAide;
  }
  CommonDialog& dialogue = Lib_Form().DialogueCommun();
  dialogue.help_file = sFichier;
  dialogue.help_command = sSujet.empty() ? 0 : kHelpByKey;
  dialogue.help_key = sSujet;
  dialogue.ShowHelp();
}

void FenetrePremierPlan(Form& form, bool bDevant) {
  CurrentView().SetTopmost(form, bDevant);
  if (bDevant) {
    if (sFenetreDevant.empty()) sFenetreDevant = form.Caption();
  } else if (sFenetreDevant == form.Caption()) {
    sFenetreDevant.clear();
  }
}

}  // namespace trovex
