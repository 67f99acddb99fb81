// Every report to the user: the error, information and question boxes.
#pragma once

#include "Ui/View.h"

namespace trovex {

// The error box. Where a run-time error is pending its number, source and description, and the
// system's last error, follow the text; it is cleared. Takes the hourglass away.
void MessageErreur(TextView sTexte);

// What the system says of the pending run-time error, trimmed; empty where it has no part in it.
Text sMessageSysteme();

// The question with Yes, No and Cancel. An empty title stands for the usual one.
BoxAnswer iQuestion(TextView sTexte, TextView sTitre = {});

// The information box. An empty title stands for the usual one.
void MessageInfo(TextView sTexte, TextView sTitre = {});

}  // namespace trovex
