// What the user may not read or enter.
#include "Faults/Posix/PermissionTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(PermissionTest, ADirectoryThatMayNotBeReadIsToldAndTheRestIsCatalogued) {
  OnDisc("FERME/JEU.EXE", Game("Caché"));
  Allow("DISQUE/FERME", 0);
  const OrdinaryUser user;
  const Json catalogue = Catalogue(cli::kIncomplete);
  EXPECT_THAT(Places(catalogue), ElementsAre("Un jeu| D:\\Ouvert| Jeu.exe"));
  EXPECT_THAT(catalogue["unread"], ElementsAre("D:\\Ferme"));
  EXPECT_THAT(err_, HasSubstr(Argument("DISQUE/FERME")));
}

TEST_F(PermissionTest, ADirectoryThatMayBeEnteredButNotListedIsToldAsWell) {
  OnDisc("AVEUGLE/JEU.EXE", Game("Caché"));
  Allow("DISQUE/AVEUGLE", 0111);
  const OrdinaryUser user;
  EXPECT_THAT(Catalogue(cli::kIncomplete)["unread"], ElementsAre("D:\\Aveugle"));
}

TEST_F(PermissionTest, ADirectoryThatMayBeListedButNotEnteredShowsItsNames) {
  OnDisc("VITRINE/JEU.EXE", Game("Caché"));
  Allow("DISQUE/VITRINE", 0444);
  const OrdinaryUser user;
  const Json catalogue = Catalogue(cli::kIncomplete);
  EXPECT_THAT(Places(catalogue),
              ElementsAre("Un jeu| D:\\Ouvert| Jeu.exe",
                          "Ne contient pas de nom produit.| D:\\Vitrine| Jeu.exe"));
}

TEST_F(PermissionTest, AProgramThatMayNotBeReadHasItsRow) {
  OnDisc("FERME/JEU.EXE", Game("Caché"));
  Allow("DISQUE/FERME/JEU.EXE", 0);
  const OrdinaryUser user;
  const Json catalogue = Catalogue(cli::kIncomplete);
  EXPECT_THAT(Places(catalogue), ElementsAre("Ne contient pas de nom produit.| D:\\Ferme| Jeu.exe",
                                             "Un jeu| D:\\Ouvert| Jeu.exe"));
}

TEST_F(PermissionTest, ATextThatMayNotBeReadRaisesItsBox) {
  OnDisc("TEXTE/JEU.EXE", DosExecutable());
  OnDisc("TEXTE/README.TXT", "Jamais lu");
  Allow("DISQUE/TEXTE/README.TXT", 0);
  const OrdinaryUser user;
  Catalogue(cli::kIncomplete);
  EXPECT_GE(Errors("Ouverture impossibleD:\\Texte\\readme.txt"), 1) << err_;
}

}  // namespace
}  // namespace trovex::test
