// The dialogs beyond the plain boxes: a choice among options, file names, help, and the topmost
// mark of a form. All are modal.
#pragma once

#include <optional>

#include "Ui/Form.h"

namespace trovex {

// Caption of the form that stands as topmost, or empty.
extern Text sFenetreDevant;

// Index of the option chosen, -1 if the dialog was cancelled. The result is what a click on an
// option left behind: accepted without any click it is 0, whatever was preselected.
int iChoix(bool bLibelle, const Text& sTitre, const Text& sOption1, const Text& sOption2,
           int iDefaut, const std::optional<Text>& sOption3 = std::nullopt);

// The name chosen in the save dialog, trimmed; empty if it was cancelled or failed.
Text sDialogueFichier(const Text& sTitre, const Text& sFiltre, const Text& sExtension,
                      const Text& sNom);

// The name chosen in the open dialog, trimmed; empty if it was cancelled or failed. What is left
// empty gets the usual title, filter and extension.
Text sChoixFichier(const Text& sTitre = {}, const Text& sFiltre = {}, const Text& sNom = {},
                   const Text& sExtension = {});

// Opens the help viewer, at a topic if one is named; without a file on the program's own. Says so
// where that is missing. On a system without a help engine the program's own help opens in the
// browser, its file there or not, and for any other file a box says why it cannot be shown.
void AfficheAide(const Text& sSujet, const Text& sFichierAide = {});

// The program's help file: its name, and the search for it at start-up, which goes to the name's
// own place, the program's directory with the name, then with its last element; where none exists
// the last element alone stays.
extern Text sFichierDAide;
void ChercheFichierDAide();

// Takes a form into or out of the topmost order.
void FenetrePremierPlan(Form& form, bool bDevant);

}  // namespace trovex
