#include "Screen/HelpLine.h"

#include "Lib/LIB_BUSY.h"
#include "Resources/Strings.h"
#include "Screen/Launching.h"

namespace trovex {
namespace {

void Tell(Control& control, const Text& sTexte) {
  control.on_mouse_move = [sTexte] { MainMsg(sTexte); };
}

void Tell(Control& control, StringId id) {
  Tell(control, ResString(id));
}

// A button under the mouse takes the focus, so that the highlight follows.
void TellAndFocus(Button& button, const Text& sTexte) {
  button.on_mouse_move = [&button, sTexte] {
    button.SetFocus();
    MainMsg(sTexte);
  };
}

void TellAndFocus(Button& button, StringId id) {
  TellAndFocus(button, ResString(id));
}

}  // namespace

void BindHelpLine(MainForm& form) {
  TellAndFocus(form.Apropos, StringId::kAideApropos);
  TellAndFocus(form.CommandOption, Text());
  TellAndFocus(form.ConvertHTML, StringId::kAideConvertHtml);
  TellAndFocus(form.Explorer, StringId::kAideExplorer);
  TellAndFocus(form.Exporter, StringId::kAideExporter);
  TellAndFocus(form.Imprimer, StringId::kAideImprimer);
  TellAndFocus(form.PrintTexte, StringId::kAidePrintTexte);
  TellAndFocus(form.Quitter, StringId::kAideQuitter);
  Tell(form.ListeRepertoire, StringId::kAideListeRepertoire);
  Tell(form.ListFichier, StringId::kAideListFichier);
  Tell(form.PanelAide, StringId::kAidePanel);
  for (int i = 1; i <= 4; ++i) Tell(form.TextInfo(i), Text());
  Tell(form.TextInfo(0), StringId::kAideTexte);
  Tell(form.TextInfo(5), StringId::kAideFichier);
  Tell(form.TextInfo(6), StringId::kAideNombre);
  Tell(form, Text());
  Tell(form.ZoneDesTableaux, Text());
  for (int i = 0; i < kTableCount; ++i) {
    form.GridLogiciel(i).on_mouse_move = [i] { GridLogiciel_MouseMove(i); };
  }
}

}  // namespace trovex
