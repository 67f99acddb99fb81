#include "Lib/Lib_SelectDlg.h"

#include "Lib/Graphics.h"
#include "Resources/SelectDlgTable.h"

namespace trovex {
namespace {

constexpr int kOptions = 3;

}  // namespace

Lib_SelectDlg::Lib_SelectDlg() : Form(kSelectDlgSpec) {
  on_load = [this] { CenterForm(*this); };
  for (int i = 0; i < kOptions; ++i) {
    SelOptions(i).on_click = [this, i] { SelOptions(0).SetTag(Decimal(i)); };
  }
  Oui().on_click = [this] { Answer(u"1"); };
  Annuler().on_click = [this] { Answer(u"0"); };
  on_key_press = [this](int key) {
    if (key == kKeyEscape) Annuler().Press();
    if (key == kKeyEnter) Oui().Press();
  };
}

void Lib_SelectDlg::Preselect(int index) {
  for (int i = 0; i < kOptions; ++i) SelOptions(i).Preset(i == index);
}

void Lib_SelectDlg::Answer(const Text& tag) {
  Reponse().SetTag(tag);
  Hide();
}

}  // namespace trovex
