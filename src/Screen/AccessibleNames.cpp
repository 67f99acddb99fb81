#include "Screen/AccessibleNames.h"

namespace trovex {

// What a screen reader says for the controls that bear no text of their own.
void NameControls(MainForm& form) {
  form.ListeDrive.SetAccessibleName(u"Lecteur à explorer");
  form.ListeRepertoire.SetAccessibleName(u"Répertoire à explorer");
  form.TextInfo(4).SetAccessibleName(u"Libellé produit");
  form.TextInfo(1).SetAccessibleName(u"Copyright");
  form.TextInfo(2).SetAccessibleName(u"Nom interne");
  form.TextInfo(3).SetAccessibleName(u"Société de distribution");
  form.TextInfo(5).SetAccessibleName(u"Fichier sélectionné");
  form.TextInfo(6).SetAccessibleName(u"Nombre de lignes du tableau");
  form.TextInfo(0).SetAccessibleName(u"Texte du fichier accessible");
  form.ZoneDesTableaux.SetAccessibleName(u"Tableaux");
  form.GridLogiciel(0).SetAccessibleName(u"Procédures d'installation");
  form.GridLogiciel(1).SetAccessibleName(u"Autres exécutables");
  form.GridLogiciel(2).SetAccessibleName(u"Archives ZIP");
  form.ListFichier.SetAccessibleName(u"Fichiers accessibles");
  form.IconeFichier.SetAccessibleName(u"Icône du fichier");
  form.ImageSelect.SetAccessibleName(u"Image du fichier accessible");
  form.PrintTexte.SetAccessibleName(u"Imprimer le texte");
  form.PanelAide.SetAccessibleName(u"Aide");
}

}  // namespace trovex
