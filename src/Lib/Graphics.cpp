#include "Lib/Graphics.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Resources/Strings.h"
#include "Ui/Colour.h"

namespace trovex {

void CenterForm(Form& form) {
  try {
    const Extent screen = CurrentView().ScreenSize();
    form.SetTop(screen.height / 2 - form.Height() / 2);
    form.SetLeft(screen.width / 2 - form.Width() / 2);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurCenterForm));
  }
}

void TraceLigne3D(Form& form, double x, double y, double longueur, bool bHorizontale) {
  View& view = CurrentView();
  if (bHorizontale) {
    view.DrawStroke(form, {x, y, x + longueur, y, kButtonShadowColour});
    view.DrawStroke(form, {x + longueur + 5, y + 20, x - 5, y + 20, kHighlightColour});
  } else {
    view.DrawStroke(form, {x + 10, y, x + 10, y + longueur, kButtonShadowColour});
    view.DrawStroke(form, {x + 20, y, x + 20, y + longueur, kHighlightColour});
  }
}

void TraceLigneVerticale3D(Form& form, const Line& ligne) {
  TraceLigne3D(form, ligne.X1(), ligne.Y1(), ligne.Y2() - ligne.Y1(), false);
}

void TraceLigneHorizontale3D(Form& form, const Line& ligne) {
  TraceLigne3D(form, ligne.X1(), ligne.Y1(), ligne.X2() - ligne.X1(), true);
}

}  // namespace trovex
