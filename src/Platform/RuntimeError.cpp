#include "Platform/RuntimeError.h"

#include <utility>

namespace trovex {

RuntimeError::RuntimeError(ErrorNumber number, Text source)
    : RuntimeError(number, std::move(source), ErrorDescription(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, Text source, Text description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

RuntimeError RuntimeError::OfSystem(ErrorNumber number, std::uint32_t code) {
  RuntimeError error(number);
  error.system_code_ = code;
  return error;
}

Text ErrorDescription(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::kInvalidCall:
      return u"Argument ou appel de procédure incorrect";
    case ErrorNumber::kOverflow:
      return u"Dépassement de capacité";
    case ErrorNumber::kOutOfMemory:
      return u"Mémoire insuffisante";
    case ErrorNumber::kTypeMismatch:
      return u"Incompatibilité de type";
    case ErrorNumber::kBadFileNumber:
      return u"Nom ou numéro de fichier incorrect";
    case ErrorNumber::kFileNotFound:
      return u"Fichier introuvable";
    case ErrorNumber::kFileAlreadyOpen:
      return u"Fichier déjà ouvert";
    case ErrorNumber::kDeviceIo:
      return u"Erreur d'entrée/sortie de périphérique";
    case ErrorNumber::kDiskFull:
      return u"Disque plein";
    case ErrorNumber::kEndOfFile:
      return u"Lecture au-delà de la fin du fichier";
    case ErrorNumber::kTooManyFiles:
      return u"Trop de fichiers ouverts";
    case ErrorNumber::kDeviceUnavailable:
      return u"Périphérique non disponible";
    case ErrorNumber::kPermissionDenied:
      return u"Permission refusée";
    case ErrorNumber::kPathFileAccess:
      return u"Erreur dans le chemin d'accès";
    case ErrorNumber::kPathNotFound:
      return u"Chemin d'accès introuvable";
    case ErrorNumber::kNoSuchElement:
      return u"L'élément du groupe de contrôles n'existe pas";
    case ErrorNumber::kInvalidProperty:
      return u"Valeur de propriété incorrecte";
    case ErrorNumber::kInvalidPicture:
      return u"Image incorrecte";
    case ErrorNumber::kInvalidRow:
      return u"Valeur de ligne incorrecte";
    case ErrorNumber::kInvalidCol:
      return u"Valeur de colonne incorrecte";
  }
  return {};
}

void PendingError::Set(const RuntimeError& error) {
  number = error.Number();
  line = 0;
  system_code = error.SystemCode();
  source = error.Source();
  description = error.Description();
}

void PendingError::Clear() {
  *this = PendingError();
}

PendingError& Err() {
  static PendingError pending;
  return pending;
}

}  // namespace trovex
