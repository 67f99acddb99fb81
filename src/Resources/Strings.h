// The program's fixed texts, by number.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// Numbers of the string table. What the interface shows stands in the table; the numbers are the
// program's own.
enum class StringId : int {
  kLangue = 0,
  kTousLesFichiers = 200,
  kErreurLecture = 201,
  kOuvertureImpossible = 202,
  kErreurEcriture = 203,
  kFichierInexistant = 204,
  kDestinationExiste = 205,
  kSouhaitezRemplacer = 206,
  kFichiersTexte = 207,
  kFichierOuvert = 209,
  kCopieImpossible = 210,
  kConfirmeEffacement = 211,
  kTitreErreur = 220,
  kTitreQuestion = 221,
  kTitreInfo = 222,
  kTraitementEnCours = 223,
  kErreurMainMsg = 224,
  kAllocationLigne = 225,
  kErreurChangeCaractere = 226,
  kErreurExtraitChamp = 227,
  kErreurLectureSection = 228,
  kErreurEcritureSection = 229,
  kItem = 230,
  kDescription = 300,
  kEmplacement = 301,
  kFichier = 302,
  kVersion = 303,
  kTailleEnKo = 304,
  kDate = 305,
  kExplorationRepertoire = 310,
  kOctets = 311,
  kPasDeNomProduit = 312,
  kProgrammeAmorcage = 313,
  kMsSetup = 314,
  kPasDeVersion = 315,
  kTableInstallation = 320,
  kTableExecutables = 321,
  kTableArchives = 322,
  kRechercheLes = 10001,
};

// The text of that number.
const Text& ResString(StringId id);

}  // namespace trovex
