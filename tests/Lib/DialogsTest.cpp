#include "Lib/Dialogs.h"

#include "Lib/HelpBrowser.h"
#include "Lib/Lib_SelectDlg.h"
#include "Platform/Encoding.h"
#include "Resources/HelpPages.h"
#include "support/MachineTest.h"

namespace trovex::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class DialogsTest : public MachineTest {
 protected:
  using User = std::function<void(Lib_SelectDlg&)>;

  // What the selection gives after this user's doings.
  int Choice(const User& user, int preselected = 1, const std::optional<Text>& third = {}) {
    view.AnswerForm([=](Form& form) { user(dynamic_cast<Lib_SelectDlg&>(form)); });
    return iChoix(true, u"Que faire ?", u"Rien", u"Tout", preselected, third);
  }
};

TEST_F(DialogsTest, TheChoiceShowsItsTexts) {
  Choice([](Lib_SelectDlg& dialog) {
    EXPECT_EQ(dialog.Caption(), u"Faites votre choix");
    EXPECT_EQ(dialog.Libelle().Caption(), u"Que faire ?");
    EXPECT_TRUE(dialog.Libelle().Visible());
    EXPECT_EQ(dialog.Oui().Caption(), u"Valider");
    EXPECT_EQ(dialog.Annuler().Caption(), u"Annuler");
    EXPECT_EQ(dialog.SelOptions(0).Caption(), u"Rien");
    EXPECT_EQ(dialog.SelOptions(1).Caption(), u"Tout");
    EXPECT_FALSE(dialog.SelOptions(2).Visible());
    EXPECT_FALSE(dialog.SelOptions(0).Value());
    EXPECT_TRUE(dialog.SelOptions(1).Value());
    EXPECT_EQ(dialog.Left(), 15360 / 2.0 - dialog.Width() / 2);
    dialog.Annuler().Press();
  });
}

TEST_F(DialogsTest, AThirdOptionShowsWhereItIsGiven) {
  const auto user = [](Lib_SelectDlg& dialog) {
    EXPECT_TRUE(dialog.SelOptions(2).Visible());
    EXPECT_TRUE(dialog.SelOptions(2).Value());
    EXPECT_EQ(dialog.SelOptions(2).Caption(), u"Un peu");
    dialog.SelOptions(2).SetValue(false);
    dialog.SelOptions(2).SetValue(true);
    dialog.Oui().Press();
  };
  EXPECT_EQ(Choice(user, 2, u"Un peu"), 2);
}

TEST_F(DialogsTest, TheOptionClickedLastIsTheChoice) {
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) {
              dialog.SelOptions(0).SetValue(true);
              dialog.SelOptions(1).SetValue(true);
              EXPECT_FALSE(dialog.SelOptions(0).Value());
              dialog.Oui().Press();
            }),
            1);
}

TEST_F(DialogsTest, ACancelledChoiceIsMinusOne) {
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) {
              dialog.SelOptions(0).SetValue(true);
              dialog.Annuler().Press();
            }),
            -1);
}

TEST_F(DialogsTest, EscCancelsTheChoice) {
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) { dialog.on_key_press(kKeyEscape); }), -1);
}

TEST_F(DialogsTest, OtherKeysLeaveTheChoiceOpen) {
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) {
              dialog.on_key_press(u'a');
              EXPECT_TRUE(dialog.Visible());
              dialog.Oui().Press();
            }),
            0);
}

TEST_F(DialogsTest, AcceptedWithoutAClickTheChoiceIsZeroWhateverWasPreselected) {
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) { dialog.Oui().Press(); }, 1), 0);
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) { dialog.Oui().Press(); }, 2, u"Un peu"), 0);
}

TEST_F(DialogsTest, AClosedChoiceIsMinusOneAndNoFormStays) {
  EXPECT_EQ(Choice([](Lib_SelectDlg& dialog) { dialog.Unload(); }), -1);
  EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(DialogsTest, AChoiceStandsInFrontWhereAFormAlreadyDoes) {
  Choice([&](Lib_SelectDlg& dialog) {
    EXPECT_TRUE(view.TopmostForms().empty());
    EXPECT_EQ(dialog.Tag(), u"");
    dialog.Annuler().Press();
  });
  sFenetreDevant = u"Informations";
  Choice([&](Lib_SelectDlg& dialog) {
    EXPECT_THAT(view.TopmostForms(), ElementsAre(&dialog));
    EXPECT_EQ(dialog.Tag(), u"-1");
    dialog.Annuler().Press();
  });
  EXPECT_EQ(sFenetreDevant, u"Informations");
}

TEST_F(DialogsTest, TheFirstFormInFrontGivesItsCaptionUntilItStepsBack) {
  Lib_SelectDlg first, second;
  first.Load();
  second.Load();
  first.SetCaption(u"Première");
  second.SetCaption(u"Deuxième");
  FenetrePremierPlan(first, true);
  FenetrePremierPlan(second, true);
  EXPECT_THAT(view.TopmostForms(), ElementsAre(&first, &second));
  EXPECT_EQ(sFenetreDevant, u"Première");
  FenetrePremierPlan(second, false);
  EXPECT_EQ(sFenetreDevant, u"Première");
  FenetrePremierPlan(first, false);
  EXPECT_EQ(sFenetreDevant, u"");
  EXPECT_TRUE(view.TopmostForms().empty());
}

TEST_F(DialogsTest, TheNameForSavingComesBackTrimmed) {
  view.AnswerFile(u"  D:\\EXPORT.HTM ");
  EXPECT_EQ(sDialogueFichier(u"Titre", u"HTML (*.htm)|*.htm", u"htm", u"EXPORT"),
            u"D:\\EXPORT.HTM");
  EXPECT_THAT(view.FileDialogs(), ElementsAre(u"Titre"));
  const CommonDialog& dialog = Lib_Form().DialogueCommun();
  EXPECT_EQ(dialog.filter, u"HTML (*.htm)|*.htm");
  EXPECT_EQ(dialog.default_extension, u"htm");
  EXPECT_EQ(dialog.flags, 6u);
  EXPECT_EQ(dialog.mode, CommonDialog::Mode::kSave);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(DialogsTest, TheNameForSavingStartsFromTheOneGiven) {
  view.AnswerFile(u"");
  EXPECT_EQ(sDialogueFichier(u"Titre", u"", u"", u"EXPORT"), u"") << "cancelled";
  EXPECT_EQ(Lib_Form().DialogueCommun().file_name, u"EXPORT");
}

TEST_F(DialogsTest, ChoosingAFileHasItsDefaults) {
  view.AnswerFile(u"D:\\A.TXT");
  EXPECT_EQ(sChoixFichier(), u"D:\\A.TXT");
  EXPECT_THAT(view.FileDialogs(), ElementsAre(u"Sélectionnez un fichier"));
  const CommonDialog& dialog = Lib_Form().DialogueCommun();
  EXPECT_EQ(dialog.filter, u"Fichiers TXT (*.txt)|*.txt|Tous les fichiers (*.*)|*.*");
  EXPECT_EQ(dialog.default_extension, u".txt");
  EXPECT_EQ(dialog.mode, CommonDialog::Mode::kOpen);
}

TEST_F(DialogsTest, ChoosingAFileTakesWhatIsGiven) {
  view.AnswerFile(u"");
  EXPECT_EQ(sChoixFichier(u"Titre", u"F|*.f", u"NOM", u".f"), u"");
  const CommonDialog& dialog = Lib_Form().DialogueCommun();
  EXPECT_EQ(dialog.filter + dialog.file_name + dialog.default_extension, u"F|*.fNOM.f");
}

class HelpTest : public DialogsTest {};

TEST_F(HelpTest, ANamedFileOpensWithoutSearch) {
  AfficheAide(u"", u"D:\\ABSENT.HLP");
  EXPECT_THAT(view.Helps(), ElementsAre(HeadlessView::HelpShown{u"D:\\ABSENT.HLP", 0, u""}));
}

TEST_F(HelpTest, ATopicIsLookedUpByKey) {
  disc.File("PROG/TROVEX.HLP", "?");
  AfficheAide(u"Options");
  EXPECT_THAT(view.Helps(),
              ElementsAre(HeadlessView::HelpShown{u"D:\\PROG\\TROVEX.HLP", 257, u"Options"}));
}

TEST_F(HelpTest, ATopicIsForgottenByTheNextCall) {
  AfficheAide(u"Options", u"D:\\A.HLP");
  AfficheAide(u"", u"D:\\A.HLP");
  EXPECT_EQ(view.Helps().back(), (HeadlessView::HelpShown{u"D:\\A.HLP", 0, u""}));
}

TEST_F(HelpTest, AMissingFileIsReportedByName) {
  view.Answer(BoxAnswer::kOk);
  AfficheAide(u"");
  EXPECT_EQ(LastBox(), u"Affichage de l'aide impossible, le fichier d'aide : TROVEX.HLP");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
  EXPECT_TRUE(view.Helps().empty());
}

// A system without a help engine, as Windows is from Vista on.
class BrowserHelpTest : public HelpTest {
 protected:
  BrowserHelpTest() {
    machine.help_engine = false;
    disc.Directory("TMP");
    sRepertoireTemp = u"D:\\TMP";
  }
  // The page that was opened, with the folder that it stands in.
  Text Opened() { return machine.shelled.empty() ? Text() : machine.shelled.back().file; }
  std::string Page(const Text& name) {
    std::string bytes(20000, '\0');
    const FileHandle file = machine.OpenRead(u"D:\\TMP\\~TrvxAide\\" + name);
    bytes.resize(machine.Read(file, bytes.data(), bytes.size()));
    machine.Close(file);
    return bytes;
  }
};

TEST_F(BrowserHelpTest, TheContentsPageOpensInTheBrowserWhetherTheHelpFileIsThereOrNot) {
  AfficheAide(u"");
  EXPECT_EQ(Opened(), u"D:\\TMP\\~TrvxAide\\index.html");
  EXPECT_THAT(Page(u"index.html"), HasSubstr("<title>"));
  EXPECT_THAT(Page(u"options.html"), HasSubstr("</html>"));
  disc.File("PROG/TROVEX.HLP", "?");
  AfficheAide(u"");
  EXPECT_EQ(machine.shelled.size(), 2u);
  EXPECT_TRUE(view.Helps().empty());
}

TEST_F(BrowserHelpTest, ATopicOpensItsPage) {
  AfficheAide(u"Options");
  EXPECT_EQ(Opened(), u"D:\\TMP\\~TrvxAide\\options.html");
  AfficheAide(u"archive zip");
  EXPECT_EQ(Opened(), u"D:\\TMP\\~TrvxAide\\tableaux.html");
  AfficheAide(u"un sujet que personne ne connaît");
  EXPECT_EQ(Opened(), u"D:\\TMP\\~TrvxAide\\index.html");
}

TEST_F(BrowserHelpTest, EveryKeywordLeadsToAPage) {
  ASSERT_GT(HelpKeywords().size(), 20u);
  for (const HelpKeyword& keyword : HelpKeywords()) {
    const auto pages = HelpPages();
    EXPECT_TRUE(std::any_of(pages.begin(), pages.end(),
                            [&](const HelpPage& page) { return page.name == keyword.page; }));
    EXPECT_NE(sPageAide(Text(keyword.text)), u"") << ToUtf8(keyword.text);
  }
}

TEST_F(BrowserHelpTest, WhatStandsThereIsWrittenAnew) {
  disc.File("TMP/~TrvxAide/index.html", std::string(19000, 'x'));
  AfficheAide(u"");
  EXPECT_THAT(Page(u"index.html"), AllOf(StartsWith("<!DOCTYPE"), EndsWith("</html>\n")));
}

TEST_F(BrowserHelpTest, PagesThatCannotBeWrittenAreReportedAndNothingOpens) {
  machine.write_protected = {u"D:\\TMP"};
  view.Answer(BoxAnswer::kOk);
  AfficheAide(u"");
  EXPECT_EQ(LastBox(),
            u"Affichage de l'aide impossible, le fichier d'aide : D:\\TMP\\~TrvxAide\r\n\r\n"
            u"Les pages de l'aide n'ont pas pu être écrites.");
  EXPECT_TRUE(machine.shelled.empty());
}

TEST_F(BrowserHelpTest, AnotherHelpFileGetsABoxThatSaysWhyItCannotBeShown) {
  view.Answer(BoxAnswer::kOk);
  AfficheAide(u"", u"D:\\JEU\\JEU.HLP");
  EXPECT_EQ(LastBox(),
            u"Affichage de l'aide impossible, le fichier d'aide : D:\\JEU\\JEU.HLP\r\n\r\n"
            u"Depuis Vista, Windows ne sait plus afficher les fichiers d'aide .hlp.");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
  EXPECT_TRUE(machine.shelled.empty());
  EXPECT_TRUE(view.Helps().empty());
}

TEST_F(HelpTest, WithoutAnyNameTheHelpIsOutOfReach) {
  sFichierDAide.clear();
  view.Answer(BoxAnswer::kOk);
  AfficheAide(u"");
  EXPECT_EQ(LastBox(),
            u"Affichage de l'aide impossible, le fichier d'aide (HELP) est inaccessible.");
}

TEST_F(HelpTest, TheSearchGoesFromTheNamesOwnPlaceToTheProgramsDirectory) {
  disc.File("AIDE/TROVEX.HLP", "?");
  disc.File("PROG/TROVEX.HLP", "?");
  sFichierDAide = u"D:\\AIDE\\TROVEX.HLP";
  ChercheFichierDAide();
  EXPECT_EQ(sFichierDAide, u"D:\\AIDE\\TROVEX.HLP");
  disc.File("PROG/AIDE/TROVEX.HLP", "?");
  sFichierDAide = u"AIDE\\TROVEX.HLP";
  ChercheFichierDAide();
  EXPECT_EQ(sFichierDAide, u"D:\\PROG\\AIDE\\TROVEX.HLP");
}

TEST_F(HelpTest, TheLastElementInTheProgramsDirectoryIsTheLastPlace) {
  disc.File("PROG/TROVEX.HLP", "?");
  sFichierDAide = u"D:\\AILLEURS\\TROVEX.HLP";
  ChercheFichierDAide();
  EXPECT_EQ(sFichierDAide, u"D:\\PROG\\TROVEX.HLP");
}

TEST_F(HelpTest, WithNoFileAtAnyPlaceTheLastElementAloneStays) {
  sFichierDAide = u"D:\\AILLEURS\\TROVEX.HLP";
  ChercheFichierDAide();
  EXPECT_EQ(sFichierDAide, u"TROVEX.HLP");
}

}  // namespace
}  // namespace trovex::test
