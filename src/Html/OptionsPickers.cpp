// Pickers of the dialog of the HTML options.
#include "Html/Lib_OptionsHTML.h"
#include "Html/Lib_RGBForm.h"
#include "Lib/Dialogs.h"
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

}  // namespace trovex
