#include "Platform/SystemTexts.h"

namespace trovex {
namespace {

// Numbers that say the same as others: a scratched disc, for one, has five.
std::uint32_t UsualCode(std::uint32_t code) {
  switch (code) {
    case 14:  // no storage
      return kSystemOutOfMemory;
    case 23:  // checksum
    case 27:  // sector not found
    case 29:  // write fault
    case 30:  // read fault
    case 31:  // general failure
      return kSystemDeviceIo;
    case 39:  // disk full
      return kSystemDiskFull;
    case 1224:  // open and mapped
      return kSystemInUse;
    default:
      return code;
  }
}

}  // namespace

Text SystemText(std::uint32_t code) {
  switch (UsualCode(code)) {
    case kSystemFileNotFound:
      return u"Le fichier n'existe pas à cet endroit.";
    case kSystemPathNotFound:
      return u"Un dossier du chemin n'existe pas.";
    case kSystemTooManyFiles:
      return u"Trop de fichiers sont ouverts en même temps.";
    case kSystemAccessDenied:
      return u"L'accès est refusé.";
    case kSystemOutOfMemory:
      return u"La mémoire disponible ne suffit pas.";
    case kSystemInvalidDrive:
      return u"Ce lecteur n'existe pas.";
    case kSystemWriteProtected:
      return u"Le support est protégé contre l'écriture.";
    case kSystemNotReady:
      return u"Le lecteur n'est pas prêt.";
    case kSystemInUse:
      return u"Le fichier est utilisé par un autre programme.";
    case kSystemLocked:
      return u"Une partie du fichier est verrouillée par un autre programme.";
    case kSystemDiskFull:
      return u"Il n'y a plus de place sur le disque.";
    case kSystemInvalidName:
      return u"Ce nom de fichier n'est pas valable.";
    case kSystemNameTooLong:
      return u"Ce nom de fichier est trop long.";
    case kSystemFileTooLarge:
      return u"Le fichier est trop grand pour ce disque.";
    case kSystemDeviceIo:
      return u"Le périphérique n'a pas pu lire ou écrire.";
    default:
      return {};
  }
}

}  // namespace trovex
