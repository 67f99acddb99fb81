#include "Lib/LIB_INI.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/SettingsFile.h"
#include "Platform/Records/ProfileFile.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr std::uint32_t kValueBuffer = 255;  // characters, the terminator included

// Length in bytes; raises kFileNotFound.
long long LengthOf(const Text& sFichier) {
  FileStatus status;
  if (!CurrentPlatform().GetFileStatus(sFichier, status)) {
    throw RuntimeError(ErrorNumber::kFileNotFound);
  }
  return status.length;
}

bool IsGros(const std::string& bytes) {
  return bytes.size() >= static_cast<std::size_t>(kGrosFichier);
}

// What is left of an open file, or enough of it to be a large one.
std::string ReadBytes(FileHandle file) {
  constexpr std::size_t kPiece = 4096;
  std::string bytes;
  for (std::size_t read = kPiece; read == kPiece && !IsGros(bytes);) {
    const std::size_t size = bytes.size();
    bytes.resize(size + kPiece);
    read = CurrentPlatform().Read(file, bytes.data() + size, kPiece);
    bytes.resize(size + read);
  }
  return bytes;
}

bool OnCdRom(const Text& sFichier) {
  return iTypeLecteur(sFichier.substr(0, 2)) == DriveType::kCdRom;
}

// The common way of both writers. The file's name is a copy: it may be the settings file's, which
// can become another one meanwhile. `sSuite` is what the failure's report says behind the key.
void Put(const Text& sRoutine, const Text& sSection, const Text& sCle, const Text& sValeur,
         Text sFichier, const Text& sSuite) {
  if (OnCdRom(sFichier) || bReglagesSurCdRom(sFichier)) return;
  if (bFichierExiste(sFichier) && LengthOf(sFichier) >= kGrosFichier) {
    EcritIniGrosFichier(sSection, sCle, sValeur, sFichier);
    return;
  }
  Platform& platform = CurrentPlatform();
  if (platform.WritePrivateProfileString(sSection, sCle, sValeur, sFichier)) return;
  if (PasseAuFichierUtilisateur(sFichier)) {
    if (platform.WritePrivateProfileString(sSection, sCle, sValeur, sFichierIni)) return;
    RevientAuFichierDuProgramme();
  }
  MessageErreur(sRoutine + u" : " + ResString(StringId::kErreurEcriture) + sFichier + Text(kCrLf) +
                ResString(StringId::kItem) + sCle + sSuite);
}

}  // namespace

Text sFichierIni;
Text sDernierFichierIni;

std::string sOctetsIni(const FileInHand& oFichier) {
  const FileHandle file = oFichier.OpenRead();
  try {
    std::string bytes = ReadBytes(file);
    CurrentPlatform().Close(file);
    return bytes;
  } catch (const RuntimeError&) {
    oFichier.NoteUnread();
    CurrentPlatform().Close(file);
    throw;
  }
}

Text sLitIni(const Text& sSection, const Text& sCle, const Text& sDefaut, const Text& sFichier) {
  try {
    if (sFichier != sDernierFichierIni && !bFichierExiste(sFichier)) return sDefaut;
    sDernierFichierIni = sFichier;
    if (LengthOf(sFichier) >= kGrosFichier) {
      return sLitIniGrosFichier(sSection, sCle, sDefaut, sFichier);
    }
    Text buffer;
    const std::uint32_t n = CurrentPlatform().GetPrivateProfileString(
        sSection, sCle, sDefaut, buffer, kValueBuffer, sFichier);
    return n == 0 ? sDefaut : Trim(TextView(buffer).substr(0, n));
  } catch (const RuntimeError&) {
    return sDefaut;
  }
}

Text IniEnMain::sLitIni(const Text& sSection, const Text& sCle, const Text& sDefaut) {
  const Text sFichier = file_.Name();
  try {
    if (sFichier != sDernierFichierIni && !file_.Exists()) return sDefaut;
    sDernierFichierIni = sFichier;
    if (!bytes_) bytes_ = sOctetsIni(file_);
    if (IsGros(*bytes_)) return sLitIniGrosFichier(sSection, sCle, sDefaut, file_);
    Text buffer;
    const std::uint32_t n =
        records::ProfileAnswer(*bytes_, sSection, sCle, sDefaut, buffer, kValueBuffer);
    return n == 0 ? sDefaut : Trim(buffer);
  } catch (const RuntimeError&) {
    return sDefaut;
  }
}

bool bLitIni(const Text& sSection, const Text& sCle, bool bDefaut, const Text& sFichier) {
  const Text sValeur = sLitIni(sSection, sCle, bDefaut ? u"-1" : u"0", sFichier);
  const TextView sMot = Trimmed(sValeur);
  // What a person writes there, in either language; "False" and "Faux" are no numbers either.
  return EqualsNoCase(sMot, u"True") || EqualsNoCase(sMot, u"Vrai") || Val(sValeur) != 0;
}

void PutIniString(const Text& sSection, const Text& sCle, const Text& sValeur,
                  const Text& sFichier) {
  Put(u"PutIniString()", sSection, sCle, sValeur, sFichier, {});
}

void PutIniBoolean(const Text& sSection, const Text& sCle, bool bValeur, const Text& sFichier) {
  const Text sValeur = bValeur ? u"-1" : u"0";
  Put(u"PutIniBoolean()", sSection, sCle, sValeur, sFichier, u":" + sValeur);
}

Text sLitWinIni(const Text& sSection, const Text& sCle) {
  return sLitIni(sSection, sCle, {}, sRepertoireWindows() + u"WIN.INI");
}

Text vExtensionWinIni(const Text& sExtension) {
  if (Trimmed(sExtension).empty()) return {};
  return sGaucheDe(sLitWinIni(u"Extensions", sExtension), u"^");
}

}  // namespace trovex
