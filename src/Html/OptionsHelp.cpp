// Pickers and help texts of the dialog of the HTML options.
#include "Html/Lib_OptionsHTML.h"
#include "Html/Lib_RGBForm.h"
#include "Lib/Dialogs.h"
#include "Lib/HelpPanel.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

const Text& R(StringId id) {
  return ResString(id);
}

// Runs a dialog for a field: an answer that leaves it empty brings the old text back.
template <typename Dialog>
void Pick(TextBox& field, bool bTrim, Dialog dialog) {
  field.SetTag(field.GetText());
  field.SetText(dialog());
  const bool bVide = bTrim ? Trimmed(field.GetText()).empty() : field.GetText().empty();
  if (bVide) field.SetText(field.Tag());
}

Text PickImage() {
  return sChoixFichier(R(StringId::kSelectionImage),
                       R(StringId::kFiltreGif) + u"|" + R(StringId::kTousLesFichiers), u"*.gif",
                       u".GIF");
}

}  // namespace

void OptionsHTML::BindPickers() {
  Limage.on_click = [this] { Pick(ImageBack, true, PickImage); };
  LeFichier.on_click = [this] { Pick(ImageDebut, false, PickImage); };
  FichierHTML.on_click = [this] {
    Pick(RefHTML, false, [] {
      return sDialogueFichier(R(StringId::kSelectionHtml),
                              R(StringId::kFiltreHtml) + u"|" + R(StringId::kTousLesFichiers),
                              u".htm", u"*.htm");
    });
  };
  LaCouleur.on_click = [this] {
    CouleurRGB.SetTag(CouleurRGB.GetText());
    Text sCouleur = CouleurRGB.GetText();
    const Text sChoisie = sGetDialogRGBbyString(sCouleur);
    CouleurRGB.SetText(sChoisie.empty() ? CouleurRGB.Tag() : u"#" + sChoisie);
  };
}

void OptionsHTML::BindHelp() {
  const auto tell = [this](Control& control, const Text& sTexte) {
    TellInPanel(PanelAide, control, sTexte);
  };
  tell(*this, {});
  tell(CheckEntete, R(StringId::kAideEntete));
  tell(CheckCR, R(StringId::kAideRetours));
  tell(CheckFin, R(StringId::kAideFin));
  tell(OptionTag(0), R(StringId::kAideTag) + R(StringId::kRetourChariot));
  tell(OptionTag(1), R(StringId::kAideTag) + R(StringId::kParagraphe));
  tell(CheckFrame, R(StringId::kAideFrame));
  tell(CheckTitre, R(StringId::kAideTitre));
  tell(CheckFond, R(StringId::kAideFond));
  tell(CheckBack, R(StringId::kAideFond));
  tell(CouleurRGB, R(StringId::kAideCouleur));
  tell(LaCouleur, R(StringId::kAideLaCouleur));
  tell(ImageBack, R(StringId::kAideTexture));
  tell(Limage, R(StringId::kAideLimage));
  tell(CheckImage, R(StringId::kAideImage));
  tell(CheckSuffixe, R(StringId::kAideImage));
  tell(ImageDebut, R(StringId::kAideImageDebut));
  tell(LeFichier, R(StringId::kAideLeFichier));
  tell(CheckRef, R(StringId::kAideRef));
  tell(RefHTML, R(StringId::kAideRefHtml));
  tell(FichierHTML, R(StringId::kAideFichierHtml));
  tell(Fermer, R(StringId::kAideFermer));
  tell(PanelAide, R(StringId::kAidePanel));
}

}  // namespace trovex
