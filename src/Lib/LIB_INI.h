// Reading and writing INI files: through the platform's profile functions, and line by line for
// files of 320000 bytes or more, which those are not trusted with.
#pragma once

#include <optional>
#include <string>

#include "Lib/Folder.h"

namespace trovex {

// From this size in bytes on a file takes the line by line path.
inline constexpr long long kGrosFichier = 320000;

// Full name of the settings file.
extern Text sFichierIni;

// The file named in the last read: reading it again does not test its existence again.
extern Text sDernierFichierIni;

// The file's bytes, or enough of them to be a large one. Raises as the platform's OpenRead and
// Read.
std::string sOctetsIni(const FileInHand& oFichier);

// The value, trimmed of blanks on the profile path; the default where file, section, key or value
// is missing. Every error counts as a missing key.
Text sLitIni(const Text& sSection, const Text& sCle, const Text& sDefaut, const Text& sFichier);
// The same for a foreign file that is asked several things: its bytes are read with the first one.
class IniEnMain {
 public:
  explicit IniEnMain(FileInHand file) : file_(std::move(file)) {}
  Text sLitIni(const Text& sSection, const Text& sCle, const Text& sDefaut);

 private:
  FileInHand file_;
  std::optional<std::string> bytes_;
};

// The value as a Boolean: any number but 0 is true, as are the words True and Vrai.
bool bLitIni(const Text& sSection, const Text& sCle, bool bDefaut, const Text& sFichier);

// Write a value; a Boolean as -1 or 0. Nothing is written on a CD-ROM drive. A failure is reported
// by the error box.
void PutIniString(const Text& sSection, const Text& sCle, const Text& sValeur,
                  const Text& sFichier);
void PutIniBoolean(const Text& sSection, const Text& sCle, bool bValeur, const Text& sFichier);

// From WIN.INI in the Windows directory: a value, and the program of an extension, up to "^".
Text sLitWinIni(const Text& sSection, const Text& sCle);
Text vExtensionWinIni(const Text& sExtension);

// The path for large files. It does not notice the end of a section: a key of that name below a
// later section matches too. A file number that is passed along stays open. A reading that fails is
// reported and noted as unread.
Text sLitIniGrosFichier(const Text& sSection, const Text& sCle, const Text& sDefaut,
                        const FileInHand& oFichier, int hFichier = -1);
void EcritIniGrosFichier(const Text& sSection, const Text& sCle, const Text& sValeur,
                         const Text& sFichier, int hEntree = -1, int hSortie = -1);

}  // namespace trovex
