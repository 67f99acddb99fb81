// Small, forgiving file operations: paths with or without a final backslash, existence tests that
// never raise, opening by number, copying and deleting with a confirmation, names of temporary
// files. Failures are reported by the error box, or silently where told so.
#pragma once

#include "Lib/Folder.h"
#include "Platform/Platform.h"
#include "Ui/TextBox.h"

namespace trovex {

// Directory of temporary files, filled on first need; and the last name given out.
extern Text sRepertoireTemp;
extern Text sDernierNomTemp;

// The path with a final backslash; empty where the path is blank throughout.
Text sAjouteBackslash(TextView sChemin);
// The path without one final backslash.
Text sEnleveBackslash(TextView sChemin);
// Directory of the program, with a final backslash.
Text sRepertoireAppli();
// What stands behind the last backslash, and before it.
Text sNomSeul(TextView sChemin);
Text sRepertoireSeul(TextView sChemin);
// Windows and system directory in upper case with a final backslash.
Text sRepertoireWindows();
Text sRepertoireSysteme();

// What an entry may not be to count as a plain file.
inline constexpr std::uint32_t kAttributesSpecial =
    kAttributeHidden | kAttributeSystem | kAttributeDirectory;

// True for a plain file that is neither hidden nor a system file. An empty name gives false.
bool bFichierExiste(const Text& sNom);
// True if a directory search for the name finds an entry that has no other special attribute than
// `iAttributs`. Every error gives false.
bool bExisteAttribut(const Text& sNom, std::uint32_t iAttributs);
bool bRepertoireExiste(TextView sChemin);
// True if neither is empty and what stands behind the last point of each is the same without
// regard to case. A name without a point compares whole.
bool bEstExtension(TextView sNom, TextView sExtension);

// "dd/mm/yyyy hh:mm:ss".
Text sFormatDate(const LocalTime& date);

// A number of an open file, or -1; the caller closes it.
int iOuvreLecture(const FileInHand& oFichier, bool bMessage = true, bool bCreer = false);
int iOuvreEcriture(const Text& sNom);

// True if the file was copied. `bConfirme` asks before it replaces, and reports failures.
bool bCopieFichier(const Text& sSource, const Text& sDestination, bool bConfirme);
// True unless the user refused. `bMessage` reports what could not be deleted.
bool bEffaceFichier(const Text& sNom, bool bConfirme, bool bMessage = true);

// Shows a text file in the box, line by line; with `bLimiter` its first 301 lines. Of a line it
// shows kLongestLine characters, of the whole text 4194304.
void ChargeTexte(const FileInHand& oFichier, TextBox& oTexte, bool bLimiter = false);

// Type of the drive that a letter, "X:" or "X:\" names. Any other text, and the letter P, asks
// about the current directory's drive.
DriveType iTypeLecteur(TextView sLecteur);

// A name for a temporary file that is most likely fresh: three are drawn at most.
Text sNomTemporaire(TextView sPrefixe);
Text sNomTempAppli();
// Fills sRepertoireTemp: the variable TMP, else TEMP, else the program's directory.
void RemplitRepertoireTemp();

// Codes of file errors that have a text of their own.
inline constexpr int kCodeLecture = -55;
inline constexpr int kCodeSansMessage = -50;
inline constexpr int kCodeOuverture = -45;
inline constexpr int kCodeEcriture = -40;
inline constexpr int kCodeInexistant = -30;
// The error box for a file error: the code's text and the name; for any other code the name alone.
void MessageErreurFichier(const Text& sNom, int iCode);

}  // namespace trovex
