// Read access to a few values of the registry. Nothing is written, but reading a class key creates
// the key where it is missing.
#pragma once

#include "Platform/Platform.h"

namespace trovex {

// Default value of a key below HKEY_CLASSES_ROOT, trimmed; empty where there is none. A key that
// does not exist is created, if the user has the right to. The key stays open to the end of the
// process.
Text sLireCleClasse(const Text& sCle);

// The shell's open command of a document class, cut at its first NUL and trimmed.
Text sCommandeOuverture(const Text& sClasse);

// A value below HKEY_LOCAL_MACHINE, cut at its first NUL and trimmed. Without a name, and unless
// `bToujours`, a status instead: "2" where the key could not be opened, else "0".
Text sLireCleMachine(const Text& sCle, const Text& sNom, bool bToujours = false);

// Reads a value as text: strings as they are, numbers in decimal, of several strings the first.
// 0 on success, otherwise the error code, or -1 for a type that is not read; `vValeur` is then
// empty.
long iLireValeur(RegistryKey hCle, const Text& sNom, Text& vValeur);

}  // namespace trovex
