#include "Html/Lib_RGBForm.h"

#include <charconv>
#include <cmath>

#include "Html/LIB_RGB.h"
#include "Lib/Dialogs.h"
#include "Lib/Graphics.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Resources/RgbFormTable.h"
#include "Resources/Strings.h"
#include "Ui/Button.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

constexpr int kLeast = 1;
constexpr int kGreatest = 255;
constexpr std::size_t kLongestValue = 3;

constexpr int kPrecision = 15;  // digits of a number

// A number that may have decimals.
Text DecimalText(double value) {
  char digits[32];
  // No "-0": what is added makes it plain.
  const auto end = std::to_chars(std::begin(digits), std::end(digits), value + 0.0,
                                 std::chars_format::general, kPrecision);
  return Text(digits, end.ptr);
}

// The numeric value of the text again as text, three characters at most. Each replacement comes
// back here and settles at once.
void Normalise(TextBox& field) {
  Text sValeur = DecimalText(Val(Trimmed(field.GetText())));
  if (sValeur.size() > kLongestValue) sValeur.resize(kLongestValue);
  field.SetText(sValeur);
}

// Hands the field's value to the bar, or says what a value must be.
void TestValue(ScrollBar& bar, const TextBox& field) {
  const double value = Val(field.GetText());
  if (value >= 0 && value <= kGreatest) {
    bar.SetValue(static_cast<int>(std::nearbyint(value)));
  } else {
    MessageErreur(ResString(StringId::kValeurRgb) + Decimal(kGreatest));
  }
}

int InRange(int channel) {
  return channel < kLeast || channel > kGreatest ? kLeast : channel;
}

}  // namespace

Lib_RGBForm::Lib_RGBForm()
    : Form(kRgbFormSpec),
      HScroll_R(Get<ScrollBar>(u"HScroll_R")),
      HScroll_G(Get<ScrollBar>(u"HScroll_G")),
      HScroll_B(Get<ScrollBar>(u"HScroll_B")),
      R_Value(Get<TextBox>(u"R_Value")),
      G_Value(Get<TextBox>(u"G_Value")),
      B_Value(Get<TextBox>(u"B_Value")),
      PictureRGB(Get<PictureBox>(u"PictureRGB")),
      LabelRGB(Get<Label>(u"LabelRGB")),
      Reponse(Get<Label>(u"reponse")),
      Valider(Get<Button>(u"Valider")),
      Annuler(Get<Button>(u"Annuler")),
      PanelAide(Get<Panel>(u"PanelAide")) {
  BindChannel(HScroll_R, R_Value);
  BindChannel(HScroll_G, G_Value);
  BindChannel(HScroll_B, B_Value);
  on_help_line = [this](const Text& sTexte) { PanelAide.SetCaption(sTexte); };
  on_load = [this] {
    CurrentView().SetPointer(Pointer::kHourglass);
    CenterForm(*this);
  };
  on_activate = [this] {
    AfficheCouleur();
    CurrentView().SetPointer(Pointer::kDefault);
  };
  on_unload = [this] {
    if (Val(Tag()) != 0) FenetrePremierPlan(*this, false);
  };
  on_key_press = [this](int key) {
    if (key == kKeyEscape) Annuler.Press();
  };
  Valider.on_click = [this] { Answer(u"1"); };
  Annuler.on_click = [this] { Answer(u"0"); };
}

void Lib_RGBForm::BindChannel(ScrollBar& bar, TextBox& field) {
  bar.SetRange(kLeast, kGreatest);
  bar.SetValue(kGreatest);
  bar.on_change = bar.on_scroll = [this] { AfficheCouleur(); };
  field.on_change = [&field] { Normalise(field); };
  field.on_enter = field.on_lost_focus = [&bar, &field] { TestValue(bar, field); };
}

void Lib_RGBForm::AfficheCouleur() {
  const auto channel = [](const ScrollBar& bar) { return static_cast<unsigned>(bar.Value()); };
  PictureRGB.SetBackColor(Rgb(channel(HScroll_R), channel(HScroll_G), channel(HScroll_B)));
  R_Value.SetText(Decimal(HScroll_R.Value()));
  G_Value.SetText(Decimal(HScroll_G.Value()));
  B_Value.SetText(Decimal(HScroll_B.Value()));
  LabelRGB.SetCaption(sHexa(PictureRGB.BackColor()));
}

void Lib_RGBForm::Answer(const Text& tag) {
  Reponse.SetTag(tag);
  Hide();
}

Text sGetDialogRGBbyString(Text& sCouleur) {
  try {
    Text sResultat;
    Lib_RGBForm dialogue;
    dialogue.Load();
    if (!sCouleur.empty()) {
      if (sCouleur.starts_with(u'#')) sCouleur.erase(0, 1);
      int iRouge = 0, iVert = 0, iBleu = 0;
      const int iValeur = Hexa2RGB(sCouleur, iRouge, iVert, iBleu);
      dialogue.PictureRGB.SetBackColor(static_cast<unsigned>(iValeur));
      dialogue.HScroll_R.SetValue(InRange(iRouge));
      dialogue.HScroll_G.SetValue(InRange(iVert));
      dialogue.HScroll_B.SetValue(InRange(iBleu));
    }
    dialogue.ShowModal();
    if (Val(dialogue.Reponse.Tag()) == 1) sResultat = sHexa(dialogue.PictureRGB.BackColor());
    dialogue.Unload();
    return sResultat;
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(u"sGetDialogRGBbyString()");
    return {};
  }
}

}  // namespace trovex
