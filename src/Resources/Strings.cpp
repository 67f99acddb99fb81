#include "Resources/Strings.h"

#include <unordered_map>

namespace trovex {
namespace {

const std::unordered_map<StringId, Text>& Table() {
  static const std::unordered_map<StringId, Text> table = {
      {StringId::kLangue, u"FR"},
      {StringId::kTousLesFichiers, u"Tous les fichiers (*.*)|*.*"},
      {StringId::kErreurLecture, u"Erreur de lecture sur le fichier : "},
      {StringId::kOuvertureImpossible, u"Ouverture impossible"},
      {StringId::kErreurEcriture, u"Erreur d'écriture sur le fichier : "},
      {StringId::kFichierInexistant, u"Fichier inexistant : "},
      {StringId::kDestinationExiste, u"Le fichier de destination existe déjà : "},
      {StringId::kSouhaitezRemplacer, u"Souhaitez-vous le remplacer ?"},
      {StringId::kFichiersTexte, u"Fichiers TXT (*.txt)|*.txt"},
      {StringId::kFichierOuvert, u"Le fichier est ouvert, copie impossible : "},
      {StringId::kCopieImpossible, u"Copie du fichier impossible : "},
      {StringId::kConfirmeEffacement, u"Désirez-vous vraiment effacer le fichier ?"},
      {StringId::kTitreErreur, u"Error message"},
      {StringId::kTitreQuestion, u"Répondez à la question"},
      {StringId::kTitreInfo, u"Un message d'information"},
      {StringId::kTraitementEnCours, u"Traitement en cours, patientez s.v.p"},
      {StringId::kErreurMainMsg, u"Error in MainMsg()"},
      {StringId::kAllocationLigne, u"Allocation nouvelle ligne d'un tableau impossible : "},
      {StringId::kErreurChangeCaractere, u"Erreur de traitement sur :"},
      {StringId::kErreurExtraitChamp, u"Erreur lors de récupération sur la chaîne :"},
      {StringId::kErreurLectureSection, u"Erreur de lecture section"},
      {StringId::kErreurEcritureSection, u"Erreur d'écriture section"},
      {StringId::kItem, u"Item : "},
      {StringId::kDescription, u" Description"},
      {StringId::kEmplacement, u" Emplacement"},
      {StringId::kFichier, u" Fichier"},
      {StringId::kVersion, u" Version"},
      {StringId::kTailleEnKo, u" Taille en Ko"},
      {StringId::kDate, u" Date"},
      {StringId::kExplorationRepertoire, u"Exploration du répertoire : "},
      {StringId::kOctets, u"octets"},
      {StringId::kPasDeNomProduit, u"Ne contient pas de nom produit."},
      {StringId::kProgrammeAmorcage, u"Programme d'amorçage"},
      {StringId::kMsSetup, u"MS-Setup"},
      {StringId::kPasDeVersion, u"Ne contient pas de version"},
      {StringId::kTableInstallation, u"Fichiers d'installation Setup/Install"},
      {StringId::kTableExecutables, u"Fichiers Exécutable"},
      {StringId::kTableArchives, u"Archives ZIP"},
      {StringId::kRechercheLes,
       u"Recherche les procédures d'installation, les exécutables et les archives Zip à partir "
       u"d'un répertoire."},
  };
  return table;
}

}  // namespace

const Text& ResString(StringId id) { return Table().at(id); }

}  // namespace trovex
