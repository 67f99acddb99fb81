#include "ScreenTest.h"

namespace trovex::test {
namespace {

class HelpLineTest : public ScreenTest {
 protected:
  HelpLineTest() { form.Show(); }

  // What the help line reads after the mouse has moved over the control.
  Text Over(Control& control) {
    MainMsg(u"texte d'avant");
    Raise(control.on_mouse_move);
    return Help();
  }
};

TEST_F(HelpLineTest, EveryButtonTellsWhatItDoes) {
  EXPECT_EQ(Over(form.Apropos), u"Affiche une fenêtre d'informations sur le logiciel");
  EXPECT_EQ(Over(form.CommandOption), u"");
  EXPECT_EQ(Over(form.ConvertHTML),
            u"Permet la construction de fichiers HTML à partir des données du tableau.");
  EXPECT_EQ(Over(form.Explorer),
            u"Lance l'exploration du répertoire sélectionné pour la recherche d'exécutables.");
  EXPECT_EQ(Over(form.Exporter),
            u"Exporte le contenu du tableau courant dans différents formats ASCII.");
  EXPECT_EQ(Over(form.Imprimer),
            u"Imprime le contenu la liste des informations du tableau courant.");
  EXPECT_EQ(Over(form.PrintTexte),
            u"Imprime le contenu de la zone d'affichage des fichiers ASCII ou la liste des "
            u"informations du tableau courant.");
  EXPECT_EQ(Over(form.Quitter), u"Permet de quitter l'application");
}

TEST_F(HelpLineTest, EveryListAndZoneTellsWhatItShows) {
  EXPECT_EQ(Over(form.ListeRepertoire),
            u"Liste des répertoires sélectionnables pour lancer l'exploration");
  EXPECT_EQ(Over(form.ListFichier),
            u"Liste de certains fichiers dans le même répertoire que l'exécutable.");
  EXPECT_EQ(Over(form.PanelAide),
            u"Zone d'affichage de l'aide liée aux déplacements du curseur de la souris");
  EXPECT_EQ(Over(form.TextInfo(0)), u"Zone d'affichage des fichiers ASCII sélectionnés");
  EXPECT_EQ(Over(form.TextInfo(5)),
            u"Zone d'affichage du fichier sélectionné avec son emplacement complet.");
  EXPECT_EQ(Over(form.TextInfo(6)), u"Zone d'affichage du nombre de ligne du tableau courant.");
}

TEST_F(HelpLineTest, EveryTableTellsWhatADoubleClickDoes) {
  EXPECT_EQ(Over(form.GridLogiciel(0)),
            u"Liste des procédures d'installation : Setup et Install. Double-cliquez pour lancer "
            u"l'exécution.");
  EXPECT_EQ(Over(form.GridLogiciel(1)),
            u"Liste des autres exécutables. Double-cliquez pour lancer le programme.");
  EXPECT_EQ(Over(form.GridLogiciel(2)),
            u"Liste des fichiers Archive ZIP. Double-cliquez pour lancer l'exécution du programme "
            u"associé à l'extension.");
}

TEST_F(HelpLineTest, TheFormTheTabsAndTheDetailBoxesClearTheLine) {
  EXPECT_EQ(Over(form), u"");
  EXPECT_EQ(Over(form.ZoneDesTableaux), u"");
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(Over(form.TextInfo(i)), u"") << i;
}

TEST_F(HelpLineTest, AControlWithoutHelpLeavesTheLineAlone) {
  EXPECT_EQ(Over(form.ListeDrive), u"texte d'avant");
  EXPECT_EQ(Over(form.IconeFichier), u"texte d'avant");
}

TEST_F(HelpLineTest, AButtonUnderTheMouseTakesTheFocus) {
  for (Button* button : {&form.Explorer, &form.ConvertHTML, &form.Exporter, &form.Imprimer,
                         &form.CommandOption, &form.Apropos, &form.Quitter, &form.PrintTexte}) {
    Raise(button->on_mouse_move);
    EXPECT_EQ(view.Focus(), button);
  }
  Raise(form.ListFichier.on_mouse_move);
  EXPECT_EQ(view.Focus(), &form.PrintTexte) << "lists leave the focus where it is";
}

TEST_F(HelpLineTest, ATextAlreadyShownIsNotPaintedAgain) {
  Raise(form.Quitter.on_mouse_move);
  const int painted = view.Repaints(form.PanelAide);
  Raise(form.Quitter.on_mouse_move);
  EXPECT_EQ(view.Repaints(form.PanelAide), painted);
  Raise(form.Explorer.on_mouse_move);
  EXPECT_EQ(view.Repaints(form.PanelAide), painted + 1);
}

}  // namespace
}  // namespace trovex::test
