#include "support/SampleDisc.h"

#include <fstream>
#include <string>
#include <vector>

#include "support/SampleDiscMedia.h"
#include "support/SampleDiscWriter.h"

namespace trovex::test {
namespace {

constexpr std::string_view kMark = "DISQUE.ID";
constexpr std::string_view kMarkLine = "LE GRENIER A LOGICIELS - DISQUE D'EXEMPLE";

const std::string kStarter = "Programme d'amorçage de l'installation";

VersionStrings Starter() {
  return {{"FileDescription", kStarter}, {"FileVersion", "4.00.954"}};
}

std::string Row(std::size_t length, char character) {
  return std::string(length, character);
}

// A line of exactly `length` characters, numbered words all the way.
std::string LongLine(std::size_t length) {
  std::string line;
  for (int word = 1; line.size() < length; ++word) line += "mot" + std::to_string(word) + " ";
  line.resize(length);
  line.back() = '.';
  return line;
}

void Root(SampleDiscWriter& disc) {
  disc.Date(1997, 6, 2);
  disc.TextFile(kMark, {std::string(kMarkLine), "Tous les noms de ce disque sont imaginaires."});
  disc.TextFile("LISEZMOI.TXT",
                {"Été 1997 : le septième disque du Grenier à logiciels", "",
                 "Bienvenue ! Lancez INSTALL.EXE ou parcourez les répertoires.",
                 "Courrier : grenier@exemple.fr", "Serveur : http://www.exemple.fr/grenier/"});
  disc.TextFile("SOMMAIRE.HTM", {"<HTML><HEAD><TITLE>Sommaire</TITLE></HEAD>",
                                 "<BODY><H1>Le Grenier &agrave; logiciels</H1></BODY></HTML>"});
  disc.File("GRENIER.GIF", GifPicture());
  disc.Ne("INSTALL.EXE",
          FullRecord("Éditions du Grenier", "Installation du Grenier", "7.0", "GRENIER",
                     "Le Grenier à logiciels"),
          Icon::kPresent);
  disc.Pe("Menu.exe", FullRecord("Éditions du Grenier", "Menu", "7.0", "MENU", "Le Grenier"),
          Icon::kPresent);
}

// Setup programs that say nothing of what they install, and the lists beside them that do.
void StarterGames(SampleDiscWriter& disc) {
  disc.Date(1995, 3, 17);
  disc.Ne("JEUX/ZOUK/SETUP.EXE", Starter(), Icon::kPresent);
  disc.TextFile("JEUX/ZOUK/SETUP.LST", {"[Setup]", "Title=Zoukbille 2", "[Files]",
                                        "File1=1,,ZOUKBIL.EX_,ZOUKBIL.EXE,$(AppPath)"});
  disc.Ne("JEUX/LABY/SETUP.EXE", Starter());
  disc.TextFile("JEUX/LABY/SETUP.LST",
                {"; sans section Setup", "[Params]", "WndTitle=\"Installation de Labyrintouche\"",
                 "WndMess=Patientez..."});
  disc.Ne("JEUX/TAROTINE/SETUP.EXE", Starter());
  disc.TextFile("JEUX/TAROTINE/SETUP.LST",
                {"[Params]", "WndTitle=", "[Windows 95 Params]", "WndTitle = Tarotine pour 95"});
  disc.Ne("JEUX/ANONYME/SETUP.EXE", Starter());
  disc.TextFile("JEUX/ANONYME/SETUP.LST", {"[Setup]", "Langue=33"});
  disc.Ne("JEUX/MUET/SETUP.EXE", Starter());
  disc.TextFile("JEUX/MUET/SETUP.LST", {"[Setup]", "Title="});
  disc.TextFile("JEUX/MUET/README.TXT", {Row(60, '*')});
  disc.Ne("JEUX/PROPRE/SETUP.EXE", FullRecord("Atelier Cornemousse", "Cornemousse à cheval", "1.03",
                                              "CORNEM", "Cornemousse"));
  disc.TextFile("JEUX/PROPRE/SETUP.LST", {"[Setup]", "Title=Titre qui ne sert pas"});
}

void DosGames(SampleDiscWriter& disc) {
  disc.Date(1994, 2, 9);
  disc.Dos("JEUX/DOS/PAVES/PAVES.EXE");
  disc.Dos("JEUX/DOS/PAVES/INSTALL.EXE");
  disc.TextFile("JEUX/DOS/PAVES/INSTALL.TXT", {"Installation des Pavés sonores", "Tapez INSTALL."});
  disc.TextFile("JEUX/DOS/PAVES/A.TXT", {"Autre texte, qui ne doit pas passer devant."});
  disc.Dos("JEUX/DOS/COULEUVR/COULEUVR.EXE");
  disc.TextFile("JEUX/DOS/COULEUVR/FILE_ID.DIZ",
                {Row(40, '-'), "Couleuvre 1.2 - jeu d'arcade pour MS-DOS", Row(40, '-')});
  disc.TextFile("JEUX/DOS/COULEUVR/LOGICIEL.TXT", {"Titre : Couleuvre", "Version : 1.2"});
  disc.Dos("JEUX/DOS/BOUSSOLE/BOUSSOLE.EXE");
  disc.TextFile("JEUX/DOS/BOUSSOLE/logiciel.txt", {"Boussole folle", "2.0 du 3 mai"});
  disc.TextFile("JEUX/DOS/BOUSSOLE/readme.txt", {"\tBoussole\tfolle\t", "jeu de hasard"});
}

// Installers of the second family: SETUP.INI, INSTALL.INF, and the tools that they bring along.
void Utilities(SampleDiscWriter& disc) {
  disc.Date(1996, 9, 24);
  disc.Pe("UTIL/WIN95/FICHADOC/SETUP.EXE",
          FullRecord("Pôle Fichadoc", "Fichadoc Setup", "3.0.1", "SETUP", "Fichadoc"),
          Icon::kPresent);
  disc.TextFile("UTIL/WIN95/FICHADOC/SETUP.INI", {"[Startup]", "AppName=Fichadoc 95"});
  disc.Ne("UTIL/WIN95/FICHADOC/_ISDEL.EXE");
  disc.File("UTIL/WIN95/FICHADOC/DATA.Z", std::string(600, '\x5A'));
  disc.Pe("UTIL/WIN95/REVEIL/SETUP.EXE");
  disc.TextFile("UTIL/WIN95/REVEIL/SETUP.INI", {"[Startup]", "AppName=Jamais affiché"});
  disc.TextFile("UTIL/WIN95/REVEIL/FILE_ID.DIZ", {"Réveil des marmottes, horloge de bureau"});
  disc.Ne("UTIL/WIN3/SONNETTE/SETUP.EXE", {{"FileVersion", "1.5"}, {"ProductName", ""}});
  disc.TextFile("UTIL/WIN3/SONNETTE/SETUP.INI", {"[Startup]", "AppName=Sonnette de concierge"});
  disc.Ne("UTIL/WIN3/CALEPIN/INSTALL.EXE", {{"FileVersion", "2.11"}, {"ProductName", "Calepinou"}});
  disc.TextFile("UTIL/WIN3/CALEPIN/INSTALL.INF", {"[INSTALL]", "APPNAME=Calepinou pour Windows 3"});
  disc.Ne("UTIL/WIN3/CALEPIN/EXPAND.EXE");
  for (const char* tool : {"_ISDEL", "_ISETUP", "_MSSETUP", "_MSTEST", "EXPAND"}) {
    disc.Ne("UTIL/OUTILS/" + std::string(tool) + ".EXE", {{"FileDescription", "Outil muet"}});
  }
  disc.Zip("UTIL/OUTILS/_ISDEL.ZIP", 4321);
  disc.Dos("UTIL/OUTILS/SETUP.EXE/CONTENU.EXE");
  disc.Ne("UTIL/WIN32S/METEO/METEO.EXE",
          FullRecord("Météopince", "Baromètre de poche", "1.4", "METEO", "Météopince"),
          Icon::kPresent);
  disc.File("UTIL/WIN32S/METEO/METEO.ICO", IconFile());
  disc.Pe("UTIL/WINNT/VEILLEUR/VEILLEUR.EXE", {}, Icon::kPresent);
  disc.TextFile("UTIL/WINNT/VEILLEUR/LisezMoi.txt", {"Veilleur de nuit : surveille un serveur"});
  disc.Pe("UTIL/WIN95/RESEAU/CLIENT/FRANCAIS/BINAIRES/Client.exe");
  disc.Pe("UTIL/WIN95/RESEAU/CLIENT/FRANCAIS/BINAIRES/Notes.V2.exe");
  disc.TextFile("UTIL/WIN95/RESEAU/CLIENT/FRANCAIS/BINAIRES/Notes.txt",
                {"Réseau des voisins", "Une corde, deux gobelets."});
}

// Sets of several disks, one directory each.
void Disks(SampleDiscWriter& disc) {
  disc.Date(1995, 11, 6);
  disc.Ne("BUREAU/COMPTA/DISK1/SETUP.EXE", Starter());
  disc.TextFile("BUREAU/COMPTA/DISK1/SETUP.LST", {"[Setup]", "Title=Comptabillon 4"});
  disc.TextFile("BUREAU/COMPTA/DISK2/LISEZMOI.TXT", {"Comptabillon : comptabilité à la bougie"});
  disc.File("BUREAU/COMPTA/DISK2/COMPTA.CA_", std::string(3000, '\x43'));
  disc.File("BUREAU/COMPTA/DISK3/COMPTA.CB_", std::string(2500, '\x42'));
  disc.Ne("BUREAU/FACTURE/DISK1/SETUP.EXE",
          FullRecord("Factur'Amie", "Factur'Amie", "2.5", "FACTAMIE", ""));
  disc.File("BUREAU/FACTURE/DISK2/FACT2.DA_", std::string(1500, '\x46'));
  disc.TextFile("BUREAU/FACTURE/DISK3/README.TXT", {"Factur'Amie, troisième disquette"});
  disc.Ne("BUREAU/ORPHELIN/DISK1/SETUP.EXE", {{"FileDescription", "Disquettes perdues"}});
  disc.Dos("BUREAU/AGENDA/D1/INSTALL.EXE");
  disc.TextFile("BUREAU/AGENDA/D2/LISEZMOI.TXT", {"Agenda perpétuel, deuxième disquette"});
  disc.TextFile("BUREAU/AGEND2/NOTES.TXT", {"Notes trouvées là où personne ne les cherche."});
}

// First lines of every kind: very long ones, and the rows of characters that decorate them.
void Texts(SampleDiscWriter& disc) {
  disc.Date(1997, 1, 20);
  disc.Pe("INTERNET/COURRIEL/COURRIEL.EXE", {}, Icon::kPresent);
  disc.TextFile("INTERNET/COURRIEL/README.TXT", {LongLine(200), "Courrielo"});
  disc.Pe("INTERNET/MODEM/Modem.exe");
  disc.TextFile("INTERNET/MODEM/LISEZMOI.TXT", {LongLine(200), "Modemette"});
  disc.TextFile("INTERNET/MODEM/FILE.TXT", {});
  disc.Dos("TEXTES/NEUF/NEUF.EXE");
  disc.TextFile("TEXTES/NEUF/README.TXT", {Row(9, '*') + " Neuf étoiles " + Row(9, '*'), "deux"});
  disc.Dos("TEXTES/DIX/DIX.EXE");
  disc.TextFile("TEXTES/DIX/README.TXT", {Row(10, '*') + " JEU " + Row(10, '*'), "Dix étoiles"});
  disc.Dos("TEXTES/DIESES/DIESES.EXE");
  disc.TextFile("TEXTES/DIESES/FILE_ID.DIZ", {Row(45, '#'), "\tGribouillard\tvectoriel"});
  disc.Dos("TEXTES/EGAUX/EGAUX.EXE");
  disc.TextFile("TEXTES/EGAUX/lisezmoi.txt", {Row(70, '='), "  Solfeggione, cours de flûte  "});
  disc.Dos("TEXTES/SOULIGNE/SOULIGNE.EXE");
  disc.TextFile("TEXTES/SOULIGNE/README.TXT", {Row(60, '_'), Row(60, '_'), "trop tard"});
  disc.Dos("TEXTES/VIDE/VIDE.EXE");
  disc.TextFile("TEXTES/VIDE/FILE_ID.DIZ", {});
  disc.Dos("TEXTES/LONG/LONG.EXE");
  std::vector<std::string> lines;
  for (int i = 1; i <= 400; ++i) lines.push_back("Ligne " + std::to_string(i) + " sur 400");
  disc.TextFile("TEXTES/LONG/LONG.TXT", lines);
}

// What version records alone decide: lengths, and the product name of the first file.
void Records(SampleDiscWriter& disc) {
  disc.Date(1996, 5, 30);
  for (const std::size_t length : {50, 51, 95, 120}) {
    disc.Ne("FICHES/LONG" + std::to_string(length) + ".EXE", {{"FileDescription", LongLine(length)},
                                                              {"FileVersion", LongLine(length)},
                                                              {"ProductName", "Règle graduée"}});
  }
  disc.Ne("FICHES/PREMIER/AVANT.EXE", {{"ProductName", "Le produit du deuxième fichier"}});
  disc.Dos("FICHES/PREMIER/APRES.EXE");
  disc.Dos("FICHES/PREMIER/ZOE.EXE");
  disc.Ne("FICHES/SUIVANT/AVANT.EXE", {{"ProductName", "Une suite"}, {"FileVersion", "0.9"}});
  disc.Dos("FICHES/SUIVANT/ENCORE.EXE");
  disc.Ne("FICHES/NOTICE/NOTICE.EXE", {{"FileVersion", "0"}, {"ProductName", ""}});
  disc.TextFile("FICHES/NOTICE/INSTALL.TXT", {Row(20, '='), "Notice à découper"});
  disc.TextFile("FICHES/NOTICE/LOGICIEL.TXT", {"Notice", "Version : 3.14"});
  disc.Ne("FICHES/PRODUIT.EXE", {{"FileDescription", "Produit sans nom interne"},
                                 {"ProductName", "Produit"},
                                 {"FileVersion", "1.0"}});
}

// Archives of every class of size, with and without files of the same name beside them.
void Archives(SampleDiscWriter& disc) {
  disc.Date(1998, 4, 1);
  for (const std::size_t size : {22, 55, 99, 100, 999, 1000, 1999, 9999, 10000, 123456}) {
    disc.Zip("ARCHIVES/TAILLES/O" + std::to_string(size) + ".ZIP", size);
  }
  disc.Zip("ARCHIVES/TAILLES/SETUP.ZIP", 1234567);
  disc.TextFile("ARCHIVES/TAILLES/LISTE.TXT", {"Une archive par taille"});
  disc.Zip("ARCHIVES/TEXTES/MON JEU.ZIP", 5120);
  disc.TextFile("ARCHIVES/TEXTES/MON JEU.TXT", {"Mon jeu, par une main inconnue"});
  disc.TextFile("ARCHIVES/TEXTES/MON JEU.DOC", {"Mode d'emploi de mon jeu"});
  disc.Zip("ARCHIVES/IMAGES/Phare.zip", 20480);
  disc.File("ARCHIVES/IMAGES/Phare.bmp", BmpPicture());
  disc.File("ARCHIVES/IMAGES/Phare.gif", GifPicture());
  disc.File("ARCHIVES/IMAGES/Phare.ico", IconFile());
  disc.Zip("ARCHIVES/SONS/CLOCHE.ZIP", 7777);
  disc.File("ARCHIVES/SONS/CLOCHE.WAV", WavSound());
  disc.File("ARCHIVES/SONS/CLOCHE.HLP", HlpFile());
  disc.Zip("ARCHIVES/SEULE/SEULE.ZIP", 2048);
  disc.TextFile("ARCHIVES/SEULE/FILE_ID.DIZ", {"Description d'une archive seule"});
}

// Names that are hard to write, and directories that mislead.
void Names(SampleDiscWriter& disc) {
  disc.Date(1996, 12, 24);
  disc.Ne(
      "Économie et gestion/Relevé d'été.exe",
      FullRecord("Banque Hérissonne & Cie", "Relevé d'été <comptes>", "1.0", "RELEVE", "Relevés"));
  disc.TextFile("Économie et gestion/lisezmoi.txt", {"Relevés de comptes à l'ancienne"});
  disc.Dos("mixte CASSE/pRoGrAmMe.ExE");
  disc.TextFile("mixte CASSE/ReadMe.Txt", {"Mélange de minuscules et de CAPITALES"});
  disc.Pe("mixte CASSE/setup.exe");
  disc.Dos("DOSSIER/X.EXE");
  disc.File("DOSSIER/X.ICO", IconFile());
  disc.Dos("OS2/HORLOGE/HORLOGE.EXE");
  disc.TextFile("OS2/HORLOGE/README.TXT", {"Horloge à coucou pour OS/2"});
  disc.Dos("OS2/DOS/HORLOGE.EXE");
  disc.TextFile("DOCS/SANS PROGRAMME.TXT", {"Ici, rien à cataloguer."});
  disc.Directory("VIDE");
}

}  // namespace

void WriteSampleDisc(const std::filesystem::path& root) {
  SampleDiscWriter disc(root);
  for (const auto chapter :
       {Root, StarterGames, DosGames, Utilities, Disks, Texts, Records, Archives, Names}) {
    chapter(disc);
  }
  disc.Finish();
}

bool IsSampleDisc(const std::filesystem::path& root) {
  std::ifstream mark(root / kMark, std::ios::binary);
  std::string line;
  return std::getline(mark, line) && line == std::string(kMarkLine) + "\r";
}

}  // namespace trovex::test
