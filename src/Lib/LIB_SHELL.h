// Everything that the program starts from outside, and the programs behind file types.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// Programs of three common kinds of documents, and the desktop's own browser; empty where unknown.
extern Text sAppliHtm;
extern Text sAppliDoc;
extern Text sAppliBmp;
extern Text sAppliExplorer;

// Runs a command line in the directory of its program, which it does not wait for. `iMode` is the
// window's state; 0 stands for 1, a normal one. -1 if a command was given, 0 if it was empty: a
// refused start goes unreported.
int iExecuteShellWin(const Text& sCommande, int iMode = 0);

// Runs the program that is associated with a file on that file. -1 if one was found, else 0, with a
// box if `bMessage`.
int iLanceParAssociation(const Text& sFichier, bool bMessage);

// Hands a document or address to the system. -1 on success, else 0, with an error box.
int iShellOuvrir(const Text& sDocument);

// Opens a document or address by `sProgramme`, or by the system where that is empty. Without a
// document nothing happens.
void OuvrirDocument(const Text& sDocument, const Text& sProgramme = {});

// Full command of the program associated with a file; empty if there is none.
Text sTrouveExecutable(const Text& sFichier, const Text& sRepertoire);

// Changes current drive and directory, if the directory exists. May raise.
void ChangeRepertoire(const Text& sRepertoire);

// Fills the programs' names and the directory of temporary files: from WIN.INI first, then from
// the registry.
void InitAssociations();

}  // namespace trovex
