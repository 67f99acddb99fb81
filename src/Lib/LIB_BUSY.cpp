#include "Lib/LIB_BUSY.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr TextView kPanel = u"Msg";

StatusBar* panel_aide = nullptr;

}  // namespace

void RegisterPanelAide(StatusBar* pPanelAide) {
  panel_aide = pPanelAide;
}

void MainMsg(TextView sTexte) {
  if (panel_aide == nullptr) return;
  try {
    if (panel_aide->PanelText(kPanel) == sTexte) return;
    panel_aide->SetPanelText(kPanel, sTexte);
    panel_aide->Refresh();
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurMainMsg));
  }
}

void BusyOn(std::optional<TextView> sTexte) {
  CurrentView().SetPointer(Pointer::kHourglass);
  MainMsg(sTexte.value_or(ResString(StringId::kTraitementEnCours)));
}

void BusyOff() {
  CurrentView().SetPointer(Pointer::kDefault);
  MainMsg({});
}

}  // namespace trovex
