// Centring a form on the screen, and engraved lines on a form. All measures in twips.
#pragma once

#include "Ui/Form.h"
#include "Ui/Line.h"

namespace trovex {

// A form larger than the screen gets a negative left or top. Reports an error by the error box.
void CenterForm(Form& form);

// An engraved line of two thin ones, in the desktop's colours of shadow and highlight.
void TraceLigne3D(Form& form, double x, double y, double longueur, bool bHorizontale);
// The same where a line of the form's table marks the place. Called while the form paints.
void TraceLigneVerticale3D(Form& form, const Line& ligne);
void TraceLigneHorizontale3D(Form& form, const Line& ligne);

}  // namespace trovex
