#include "Html/Lib_OptionsHTML.h"

#include <cmath>
#include <memory>

#include "Lib/Dialogs.h"
#include "Lib/FichesUnicode.h"
#include "Lib/Graphics.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Resources/OptionsHtmlTable.h"
#include "Resources/Strings.h"
#include "Ui/Button.h"
#include "Ui/Label.h"

namespace trovex {
namespace {

const Text kSection = u"html";

}  // namespace

OptionsHTML::OptionsHTML()
    : Form(kOptionsHtmlSpec),
      CheckEntete(Get<CheckBox>(u"CheckEntete")),
      CheckCR(Get<CheckBox>(u"CheckCR")),
      CheckFin(Get<CheckBox>(u"CheckFin")),
      CheckFrame(Get<CheckBox>(u"CheckFrame")),
      CheckTitre(Get<CheckBox>(u"CheckTitre")),
      TextTitre(Get<TextBox>(u"TextTitre")),
      CheckFond(Get<CheckBox>(u"CheckFond")),
      CouleurRGB(Get<TextBox>(u"CouleurRGB")),
      LaCouleur(Get<Button>(u"LaCouleur")),
      CheckBack(Get<CheckBox>(u"CheckBack")),
      ImageBack(Get<TextBox>(u"ImageBack")),
      Limage(Get<Button>(u"Limage")),
      CheckImage(Get<CheckBox>(u"CheckImage")),
      ImageDebut(Get<TextBox>(u"ImageDebut")),
      LeFichier(Get<Button>(u"LeFichier")),
      CheckSuffixe(Get<CheckBox>(u"CheckSuffixe")),
      TextSuffixe(Get<TextBox>(u"TextSuffixe")),
      CheckRef(Get<CheckBox>(u"CheckRef")),
      LabelFichier(Get<Label>(u"LabelFichier")),
      RefHTML(Get<TextBox>(u"RefHTML")),
      FichierHTML(Get<Button>(u"FichierHTML")),
      Fermer(Get<Button>(u"Fermer")),
      PanelAide(Get<Panel>(u"PanelAide")) {
  CheckCR.SetTag(u"1");
  BindDependents();
  BindPickers();
  on_help_line = [this](const Text& sTexte) { PanelAide.SetCaption(sTexte); };
  on_load = [this] { Form_Load(); };
  on_activate = [] { CurrentView().SetPointer(Pointer::kDefault); };
  on_paint = [this] {
    for (int i : {0, 1, 2}) TraceLigneHorizontale3D(*this, Get<Line>(u"LigneGroupe", i));
  };
  on_unload = [this] { Form_Unload(); };
  Fermer.on_click = [this] { CloseAndSave(); };
  on_key_press = [this](int key) {
    if (key == kKeyEscape) Fermer.Press();
  };
}

void OptionsHTML::BindDependents() {
  CheckBack.on_click = [this] {
    LabelNom(0).SetEnabled(CheckBack.Value());
    ImageBack.SetEnabled(CheckBack.Value());
    Limage.SetVisible(CheckBack.Value());
  };
  CheckFond.on_click = [this] {
    CouleurRGB.SetEnabled(CheckFond.Value());
    LaCouleur.SetEnabled(CheckFond.Value());
  };
  CheckCR.on_click = [this] {
    OptionTag(0).SetEnabled(CheckCR.Value());
    OptionTag(1).SetEnabled(CheckCR.Value());
  };
  CheckTitre.on_click = [this] { TextTitre.SetEnabled(CheckTitre.Value()); };
  CheckImage.on_click = [this] {
    if (!CheckImage.Visible()) return;
    LabelNom(1).SetEnabled(CheckImage.Value());
    ImageDebut.SetEnabled(CheckImage.Value());
    LeFichier.SetVisible(CheckImage.Value());
  };
  // It drives the label and the button of its neighbour, which it has none of its own of.
  CheckSuffixe.on_click = [this] {
    if (!CheckSuffixe.Visible()) return;
    LabelNom(1).SetEnabled(CheckSuffixe.Value());
    TextSuffixe.SetEnabled(CheckSuffixe.Value());
    LeFichier.SetVisible(CheckSuffixe.Value());
  };
  CheckRef.on_click = [this] {
    LabelFichier.SetEnabled(CheckRef.Value());
    RefHTML.SetEnabled(CheckRef.Value());
    FichierHTML.SetVisible(CheckRef.Value());
  };
  for (int i : {0, 1}) {
    OptionTag(i).on_click = [this, i] { CheckCR.SetTag(Decimal(i)); };
  }
}

void OptionsHTML::Form_Load() {
  CurrentView().SetPointer(Pointer::kHourglass);
  CenterForm(*this);
  if (bAutresReglages(sFichierIni)) ReadSettings();
}

void OptionsHTML::Form_Unload() {
  if (Val(Tag()) != 0) FenetrePremierPlan(*this, false);
}

void OptionsHTML::ReadSettings() {
  PanelAide.SetVisible(bLitIni(u"Options", u"affiche_aide", true, sFichierIni));
  CheckEntete.SetValue(bLitIni(kSection, u"html_entete", CheckEntete.Value(), sFichierIni));
  CheckFin.SetValue(bLitIni(kSection, u"html_fin", CheckFin.Value(), sFichierIni));
  CheckFrame.SetValue(bLitIni(kSection, u"html_frame", CheckFrame.Value(), sFichierIni));
  CheckCR.SetValue(bLitIni(kSection, u"html_cr", CheckCR.Value(), sFichierIni));
  SelectTag(sLitIni(kSection, u"html_car", CheckCR.Tag(), sFichierIni));

  const auto read = [](const Text& sCle, CheckBox& box, TextBox& field) {
    box.SetValue(true);
    field.SetText(sLitIni(kSection, sCle, field.GetText(), sFichierIni));
    if (field.GetText().empty()) box.SetValue(false);
  };
  read(u"html_titre", CheckTitre, TextTitre);
  read(u"html_couleur", CheckFond, CouleurRGB);
  ReadImageSettings();
  CheckSuffixe.SetValue(true);
  TextSuffixe.SetText(sLitIni(kSection, u"html_prefixe", {}, sFichierIni));
  if (TextSuffixe.GetText().empty()) {
    TextSuffixe.SetText(u"figure");
    CheckSuffixe.SetValue(false);
  }
  read(u"html_ref", CheckRef, RefHTML);
}

void OptionsHTML::SelectTag(const Text& sNumero) {
  const double n = std::nearbyint(Val(sNumero));
  if (n != 0 && n != 1) throw RuntimeError(ErrorNumber::kNoSuchElement, Name());
  OptionTag(static_cast<int>(n)).SetValue(true);
}

void OptionsHTML::ReadImageSettings() {
  ImageBack.SetText(sLitIni(kSection, u"html_back", ImageBack.GetText(), sFichierIni));
  CheckBack.SetValue(!ImageBack.GetText().empty());
  if (CheckBack.Value()) CheckBack.on_click();
  ImageDebut.SetText(sLitIni(kSection, u"html_image", ImageDebut.GetText(), sFichierIni));
  const bool bImage = !Trimmed(ImageDebut.GetText()).empty();
  if (!bImage) ImageDebut.SetText({});
  CheckImage.SetValue(bImage);
  if (!bImage) return;
  LabelNom(1).SetEnabled(true);
  ImageDebut.SetEnabled(true);
  LeFichier.SetVisible(true);
}

void OptionsHTML::SaveText(const Text& sCle, const CheckBox& box, const TextBox& field) {
  PutIniString(kSection, sCle, box.Value() ? field.GetText() : Text(), sFichierIni);
}

void OptionsHTML::CloseAndSave() {
  CurrentView().SetPointer(Pointer::kHourglass);
  PutIniBoolean(kSection, u"html_entete", CheckEntete.Value(), sFichierIni);
  PutIniBoolean(kSection, u"html_fin", CheckFin.Value(), sFichierIni);
  PutIniBoolean(kSection, u"html_frame", CheckFrame.Value(), sFichierIni);
  PutIniBoolean(kSection, u"html_cr", CheckCR.Value(), sFichierIni);
  PutIniString(kSection, u"html_car", CheckCR.Tag(), sFichierIni);
  SaveText(u"html_titre", CheckTitre, TextTitre);
  SaveText(u"html_couleur", CheckFond, CouleurRGB);
  SaveText(u"html_back", CheckBack, ImageBack);
  SaveText(u"html_image", CheckImage, ImageDebut);
  SaveText(u"html_prefixe", CheckSuffixe, TextSuffixe);
  SaveText(u"html_ref", CheckRef, RefHTML);
  Hide();
  CurrentView().SetPointer(Pointer::kDefault);
}

OptionsHTML& Lib_OptionsHTML() {
  static std::unique_ptr<OptionsHTML> form;
  if (!form || !form->Loaded()) {
    auto fresh = std::make_unique<OptionsHTML>();
    // One that could not be loaded is not kept: half of the settings would be saved over all.
    fresh->Load();
    form = std::move(fresh);
  }
  return *form;
}

}  // namespace trovex
