#include "Html/HtmlTest.h"
#include "Html/LIB_HTML.h"
#include "Html/Lib_RGBForm.h"
#include "Platform/PartScope.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;

class OptionsTest : public HtmlTest {
 protected:
  using User = std::function<void(OptionsHTML&)>;

  // Opens the dialog for a user.
  void Open(const User& user) {
    view.AnswerForm([=](Form& form) { user(dynamic_cast<OptionsHTML&>(form)); });
    Options().ShowModal();
  }
  void Close() {
    Open([](OptionsHTML& options) { options.Fermer.Press(); });
  }
  // Each option's state as a letter, "+" on and "-" off, in the order of the settings file.
  std::string Boxes() {
    OptionsHTML& o = Options();
    std::string boxes;
    for (const CheckBox* box :
         {&o.CheckEntete, &o.CheckFin, &o.CheckFrame, &o.CheckCR, &o.CheckTitre, &o.CheckFond,
          &o.CheckBack, &o.CheckImage, &o.CheckSuffixe, &o.CheckRef}) {
      boxes += box->Value() ? '+' : '-';
    }
    return boxes;
  }
};

// --- Loading ------------------------------------------------------------------------------------

TEST_F(OptionsTest, TheDesignHoldsWithoutASettingsFile) {
  OptionsHTML& options = Options();
  EXPECT_EQ(Boxes(), "+++++-----");
  EXPECT_FALSE(options.OptionTag(0).Value());
  EXPECT_TRUE(options.OptionTag(1).Value());
  EXPECT_EQ(options.CheckCR.Tag(), u"1");
  EXPECT_EQ(options.TextTitre.GetText(), u"");
  EXPECT_EQ(options.CouleurRGB.GetText(), u"#FFFFFF");
  EXPECT_EQ(options.ImageBack.GetText(), u"");
  EXPECT_EQ(options.ImageDebut.GetText(), u"");
  EXPECT_EQ(options.TextSuffixe.GetText(), u"figure");
  EXPECT_EQ(options.RefHTML.GetText(), u"");
  EXPECT_TRUE(options.PanelAide.Visible());
}

TEST_F(OptionsTest, TheDesignShowsAndEnablesWhatItShould) {
  OptionsHTML& o = Options();
  for (const Control* control : std::initializer_list<const Control*>{
           &o.CheckFrame, &o.Limage, &o.LeFichier, &o.CheckSuffixe, &o.TextSuffixe, &o.CheckRef,
           &o.LabelFichier, &o.RefHTML, &o.FichierHTML}) {
    EXPECT_FALSE(control->Visible()) << ToUtf8(control->Name());
  }
  for (const Control* control : std::initializer_list<const Control*>{
           &o.CheckEntete, &o.CheckCR, &o.OptionTag(0), &o.OptionTag(1), &o.CheckFin, &o.CheckTitre,
           &o.TextTitre, &o.CheckFond, &o.CouleurRGB, &o.LaCouleur, &o.CheckBack, &o.LabelNom(0),
           &o.ImageBack, &o.CheckImage, &o.LabelNom(1), &o.ImageDebut, &o.Fermer}) {
    EXPECT_TRUE(control->Visible()) << ToUtf8(control->Name());
  }
  for (const Control* control : std::initializer_list<const Control*>{
           &o.CouleurRGB, &o.LabelNom(0), &o.ImageBack, &o.LabelNom(1), &o.ImageDebut,
           &o.TextSuffixe, &o.LabelFichier, &o.RefHTML}) {
    EXPECT_FALSE(control->Enabled()) << ToUtf8(control->Name());
  }
  EXPECT_TRUE(o.TextTitre.Enabled());
  EXPECT_TRUE(o.LaCouleur.Enabled());
}

TEST_F(OptionsTest, TheCaptionsComeWithTheLoading) {
  OptionsHTML& o = Options();
  EXPECT_EQ(o.Caption(), u"Options et configuration HTML");
  EXPECT_EQ(o.CheckEntete.Caption(), u"Insérer l'entête <HTML><HEAD>");
  EXPECT_EQ(o.CheckCR.Caption(), u"Remplacer les retours chariot du texte par :");
  EXPECT_EQ(o.OptionTag(0).Caption(), u"<BR>");
  EXPECT_EQ(o.OptionTag(1).Caption(), u"<P>");
  EXPECT_EQ(o.CheckFin.Caption(), u"Insérer la fin de fichier </BODY></HTML>");
  EXPECT_EQ(o.CheckFrame.Caption(), u"Autoriser l'utilisation de frame <FRAMESET>");
  EXPECT_EQ(o.CheckTitre.Caption(), u"Titre <TITLE> :");
  EXPECT_EQ(o.CheckFond.Caption(), u"Insérer une couleur de fond <BGCOLOR>, RGB Hexa :");
  EXPECT_EQ(o.LaCouleur.Caption(), u"Couleur...");
  EXPECT_EQ(o.CheckBack.Caption(), u"Image de fond <BACKGROUND> :");
  EXPECT_EQ(o.LabelNom(0).Caption(), u"Nom :");
  EXPECT_EQ(o.Limage.Caption(), u"...");
  EXPECT_EQ(o.CheckImage.Caption(), u"Image en début de fichier :");
  EXPECT_EQ(o.LabelNom(1).Caption(), u"Nom :");
  EXPECT_EQ(o.CheckSuffixe.Caption(),
            u"Préfixe des références aux images détectées <IMG SRC=...> :");
  EXPECT_EQ(o.CheckRef.Caption(), u"Lier les références bibliographiques :");
  EXPECT_EQ(o.LabelFichier.Caption(), u"Fichier :");
  EXPECT_EQ(o.Fermer.Caption(), u"Fermer");
}

TEST_F(OptionsTest, TheFirstUseLoadsItUnseenAndOnce) {
  EXPECT_TRUE(LoadedForms().empty());
  sBaliseBody();
  ASSERT_EQ(LoadedForms().size(), 1u);
  EXPECT_FALSE(LoadedForms()[0]->Visible());
  EXPECT_EQ(&Options(), LoadedForms()[0]);
  Settings({u"html_titre=plus tard"});
  EXPECT_EQ(Options().TextTitre.GetText(), u"") << "the settings are read once";
}

TEST_F(OptionsTest, ItOpensInTheMiddleWithTheUsualPointer) {
  Options();
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  Open([this](OptionsHTML& options) {
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    EXPECT_EQ(options.Left(), 15360 / 2.0 - options.Width() / 2);
    options.Fermer.Press();
  });
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(OptionsTest, WithoutASettingsFileTheHeadHasNoColourThoughTheFieldHoldsWhite) {
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\"\" BGCOLOR=\"\">");
  EXPECT_EQ(Options().CouleurRGB.GetText(), u"#FFFFFF");
}

TEST_F(OptionsTest, ASettingsFileWithoutAColourSwitchesTheWhiteOn) {
  Settings({u"html_entete=-1"});
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\"\" BGCOLOR=\"#FFFFFF\">");
  EXPECT_TRUE(Options().CouleurRGB.Enabled());
}

TEST_F(OptionsTest, AnEmptySettingsFileTurnsTitleOffAndColourOn) {
  Write(u"");
  EXPECT_EQ(Boxes(), "++++-+----");
  EXPECT_FALSE(Options().TextTitre.Enabled());
}

TEST_F(OptionsTest, EachOptionIsReadFromItsKey) {
  Settings({u"html_entete=0", u"html_fin=0", u"html_frame=0", u"html_cr=0", u"html_car=0",
            u"html_titre=Mon titre", u"html_couleur=#8040", u"html_back=fond.gif",
            u"html_image=logo.gif", u"html_prefixe=image", u"html_ref=ref.htm"});
  OptionsHTML& o = Options();
  EXPECT_EQ(Boxes(), "----++++++");
  EXPECT_TRUE(o.OptionTag(0).Value());
  EXPECT_FALSE(o.OptionTag(1).Value());
  EXPECT_FALSE(o.OptionTag(0).Enabled());
  EXPECT_EQ(o.TextTitre.GetText(), u"Mon titre");
  EXPECT_EQ(o.CouleurRGB.GetText(), u"#8040");
  EXPECT_EQ(o.ImageBack.GetText(), u"fond.gif");
  EXPECT_EQ(o.ImageDebut.GetText(), u"logo.gif");
  EXPECT_EQ(o.TextSuffixe.GetText(), u"image");
  EXPECT_EQ(o.RefHTML.GetText(), u"ref.htm");
  for (const Control* control : std::initializer_list<const Control*>{
           &o.TextTitre, &o.CouleurRGB, &o.LaCouleur, &o.LabelNom(0), &o.ImageBack, &o.LabelNom(1),
           &o.ImageDebut, &o.LabelFichier, &o.RefHTML}) {
    EXPECT_TRUE(control->Enabled()) << ToUtf8(control->Name());
  }
  EXPECT_TRUE(o.Limage.Visible());
  EXPECT_TRUE(o.LeFichier.Visible());
  EXPECT_TRUE(o.FichierHTML.Visible());
  EXPECT_FALSE(o.TextSuffixe.Enabled()) << "its hidden box moves nothing";
}

TEST_F(OptionsTest, AnyNumberButZeroSwitchesABoxOn) {
  Settings({u"html_entete=1", u"html_fin=oui", u"html_frame=-7"});
  EXPECT_EQ(Boxes().substr(0, 4), "+-++");
}

TEST_F(OptionsTest, ThePrefixIsNeverEmptyAfterLoading) {
  Settings({u"html_prefixe="});
  EXPECT_EQ(Options().TextSuffixe.GetText(), u"figure");
  EXPECT_FALSE(Options().CheckSuffixe.Value());
  Close();
  EXPECT_EQ(Saved(u"html_prefixe"), u"-");
  Forget();
  EXPECT_EQ(Options().TextSuffixe.GetText(), u"figure");
}

TEST_F(OptionsTest, AnImageOfBlanksAloneCountsAsNone) {
  // Only the path for large files keeps the blanks of a value.
  Write(u"[html]\r\nhtml_image=   \r\nhtml_back=   \r\n;" + Text(330000, u'x') + u"\r\n");
  EXPECT_EQ(Options().ImageDebut.GetText(), u"");
  EXPECT_FALSE(Options().CheckImage.Value());
  EXPECT_EQ(Options().ImageBack.GetText(), u"   ");
  EXPECT_TRUE(Options().CheckBack.Value());
}

TEST_F(OptionsTest, ATextThatIsNoColourIsTakenAsItStands) {
  Settings({u"html_couleur=bleu \"nuit\""});
  EXPECT_EQ(sBaliseBody(), u"<BODY BACKGROUND=\"\" BGCOLOR=\"bleu \"nuit\"\">");
  Close();
  EXPECT_EQ(Saved(u"html_couleur"), u"bleu \"nuit\"");
}

TEST_F(OptionsTest, TheHelpPanelIsShownOrNotByItsKey) {
  Write(u"[Options]\r\naffiche_aide=0\r\n");
  EXPECT_FALSE(Options().PanelAide.Visible());
  Forget();
  Write(u"[Options]\r\naffiche_aide=-1\r\n[html]\r\n");
  EXPECT_TRUE(Options().PanelAide.Visible());
  Forget();
  Settings({});
  EXPECT_TRUE(Options().PanelAide.Visible());
}

// --- The line-end tag ---------------------------------------------------------------------------

TEST_F(OptionsTest, ATagOfZeroIsSelectedAndSavedAgain) {
  Settings({u"html_car=0"});
  EXPECT_TRUE(Options().OptionTag(0).Value());
  EXPECT_FALSE(Options().OptionTag(1).Value());
  Close();
  EXPECT_EQ(Saved(u"html_car"), u"0");
}

TEST_F(OptionsTest, ATagOutsideZeroAndOneIsARunTimeErrorAtEachUse) {
  for (const char16_t* tag : {u"2", u"-1", u"99999999999999999999", u"1.6"}) {
    Forget();
    Settings({u"html_car=" + Text(tag), u"html_titre=Titre"});
    for (int use : {1, 2}) {
      EXPECT_EQ(ErrorOf([] { sBaliseBody(); }), kNoSuchElement) << ToUtf8(tag) << " " << use;
    }
  }
}

TEST_F(OptionsTest, WhatCouldNotBeLoadedIsNotSaved) {
  Settings({u"html_car=7", u"html_titre=Titre", u"html_couleur=#808080"});
  EXPECT_EQ(ErrorOf([this] { Close(); }), kNoSuchElement);
  view.ForgetAnswers();
  EXPECT_EQ(Saved(u"html_titre"), u"Titre");
  EXPECT_EQ(Saved(u"html_couleur"), u"#808080");
  Settings({u"html_car=1", u"html_titre=Titre"});
  EXPECT_EQ(Options().TextTitre.GetText(), u"Titre") << "a settings file made good is read";
}

TEST_F(OptionsTest, ATagThatIsNoNumberIsZero) {
  Settings({u"html_car=abc"});
  EXPECT_TRUE(Options().OptionTag(0).Value());
}

TEST_F(OptionsTest, AClickOnATagIsKeptInTheTagOfItsBox) {
  Options().OptionTag(0).SetValue(true);
  EXPECT_EQ(Options().CheckCR.Tag(), u"0");
  Options().OptionTag(1).SetValue(true);
  EXPECT_EQ(Options().CheckCR.Tag(), u"1");
}

// --- Dependent controls -------------------------------------------------------------------------

TEST_F(OptionsTest, EachBoxEnablesAndShowsWhatBelongsToIt) {
  OptionsHTML& o = Options();
  for (bool on : {true, false}) {
    for (CheckBox* box :
         {&o.CheckBack, &o.CheckFond, &o.CheckCR, &o.CheckTitre, &o.CheckImage, &o.CheckRef}) {
      box->SetValue(!on);
      box->SetValue(on);
    }
    for (const Control* control : std::initializer_list<const Control*>{
             &o.LabelNom(0), &o.ImageBack, &o.CouleurRGB, &o.LaCouleur, &o.OptionTag(0),
             &o.OptionTag(1), &o.TextTitre, &o.LabelNom(1), &o.ImageDebut, &o.LabelFichier,
             &o.RefHTML}) {
      EXPECT_EQ(control->Enabled(), on) << ToUtf8(control->Name());
    }
    EXPECT_EQ(o.Limage.Visible(), on);
    EXPECT_EQ(o.LeFichier.Visible(), on);
    EXPECT_EQ(o.FichierHTML.Visible(), on);
  }
}

TEST_F(OptionsTest, HeadEndAndFramesHaveNoAction) {
  OptionsHTML& o = Options();
  for (const CheckBox* box : {&o.CheckEntete, &o.CheckFin, &o.CheckFrame}) {
    EXPECT_FALSE(box->on_click);
  }
}

TEST_F(OptionsTest, ThePrefixDrivesTheImagesLabelAndButtonOnceItIsVisible) {
  OptionsHTML& o = Options();
  o.CheckSuffixe.SetValue(true);
  EXPECT_FALSE(o.TextSuffixe.Enabled());
  EXPECT_FALSE(o.LeFichier.Visible());
  o.CheckSuffixe.SetValue(false);
  o.CheckSuffixe.SetVisible(true);
  o.CheckSuffixe.SetValue(true);
  EXPECT_TRUE(o.TextSuffixe.Enabled());
  EXPECT_TRUE(o.LabelNom(1).Enabled());
  EXPECT_TRUE(o.LeFichier.Visible());
}

TEST_F(OptionsTest, TheImageBoxWorksOnlyWhileItIsVisible) {
  OptionsHTML& o = Options();
  o.CheckImage.SetVisible(false);
  o.CheckImage.SetValue(true);
  EXPECT_FALSE(o.ImageDebut.Enabled());
  EXPECT_FALSE(o.LeFichier.Visible());
}

// --- Pickers ------------------------------------------------------------------------------------

TEST_F(OptionsTest, AFileChosenGoesIntoItsField) {
  OptionsHTML& o = Options();
  const auto pick = [&](Button& button, TextBox& field) {
    view.AnswerFile(u" D:\\CHOISI.X ");
    button.Press();
    EXPECT_EQ(field.GetText(), u"D:\\CHOISI.X");
  };
  pick(o.Limage, o.ImageBack);
  pick(o.LeFichier, o.ImageDebut);
  pick(o.FichierHTML, o.RefHTML);
  EXPECT_EQ(view.FileDialogs(),
            (std::vector<Text>{u"Sélection d'une image GIF.", u"Sélection d'une image GIF.",
                               u"Sélection d'un nom de fichier HTML."}));
}

TEST_F(OptionsTest, TheFileDialogsOfferTheirKindFirst) {
  OptionsHTML& o = Options();
  const CommonDialog& dialog = Lib_Form().DialogueCommun();
  for (Button* button : {&o.Limage, &o.LeFichier}) {
    view.AnswerFile(u"");
    button->Press();
    EXPECT_EQ(dialog.filter, u"Compuserve GIF (*.gif)|*.gif|Tous les fichiers (*.*)|*.*");
    EXPECT_EQ(dialog.default_extension, u".GIF");
    EXPECT_EQ(dialog.file_name, u"*.gif");
  }
  view.AnswerFile(u"");
  o.FichierHTML.Press();
  EXPECT_EQ(dialog.filter, u"Fichiers HTML (*.htm)|*.htm|Tous les fichiers (*.*)|*.*");
  EXPECT_EQ(dialog.default_extension, u".htm");
  EXPECT_EQ(dialog.file_name, u"*.htm");
}

TEST_F(OptionsTest, ACancelledPickerLeavesTheFieldWhateverItsTagHeld) {
  OptionsHTML& o = Options();
  const std::pair<Button*, TextBox*> pickers[] = {
      {&o.Limage, &o.ImageBack}, {&o.LeFichier, &o.ImageDebut}, {&o.FichierHTML, &o.RefHTML}};
  for (const auto& [button, field] : pickers) {
    field->SetText(u" ancien ");
    field->SetTag(u"d'avant");
    view.AnswerFile(u"");
    button->Press();
    EXPECT_EQ(field->GetText(), u" ancien ");
  }
  o.CouleurRGB.SetText(u"#ABCDEF");
  o.CouleurRGB.SetTag(u"d'avant");
  view.AnswerForm([](Form& form) { form.Close(); });
  o.LaCouleur.Press();
  EXPECT_EQ(o.CouleurRGB.GetText(), u"#ABCDEF");
}

TEST_F(OptionsTest, AColourChosenGetsItsSign) {
  OptionsHTML& o = Options();
  o.CouleurRGB.SetText(u"#FF");
  view.AnswerForm([](Form& form) { dynamic_cast<Lib_RGBForm&>(form).Valider.Press(); });
  o.LaCouleur.Press();
  EXPECT_EQ(o.CouleurRGB.GetText(), u"#101FF");
}

// --- Closing ------------------------------------------------------------------------------------

TEST_F(OptionsTest, NothingIsWrittenBeforeTheDialogIsClosed) {
  Options().TextTitre.SetText(u"Titre");
  sEnteteHTML();
  Forget();
  EXPECT_FALSE(SettingsExist());
}

TEST_F(OptionsTest, ClosingWritesEveryKeyInOrderAndHidesTheWindow) {
  Close();
  EXPECT_FALSE(Options().Visible());
  EXPECT_TRUE(Options().Loaded());
  EXPECT_EQ(Options().TextTitre.GetText(), u"");
  EXPECT_EQ(SettingsBytes(),
            "[html]\r\nhtml_entete=-1\r\nhtml_fin=-1\r\nhtml_frame=-1\r\nhtml_cr=-1\r\n"
            "html_car=1\r\nhtml_titre=\r\nhtml_couleur=\r\nhtml_back=\r\nhtml_image=\r\n"
            "html_prefixe=\r\nhtml_ref=\r\n");
}

TEST_F(OptionsTest, WhatIsOnIsWrittenWithItsText) {
  OptionsHTML& o = Options();
  for (CheckBox* box : {&o.CheckFond, &o.CheckBack, &o.CheckImage, &o.CheckSuffixe, &o.CheckRef}) {
    box->SetValue(true);
  }
  o.CheckFin.SetValue(false);
  o.TextTitre.SetText(u"Été");
  o.ImageBack.SetText(u"fond.gif");
  o.ImageDebut.SetText(u"logo.gif");
  o.RefHTML.SetText(u"ref.htm");
  Close();
  EXPECT_EQ(Saved(u"html_fin"), u"0");
  EXPECT_EQ(Saved(u"html_titre"), u"Été");
  EXPECT_EQ(Saved(u"html_couleur"), u"#FFFFFF");
  EXPECT_EQ(Saved(u"html_back"), u"fond.gif");
  EXPECT_EQ(Saved(u"html_image"), u"logo.gif");
  EXPECT_EQ(Saved(u"html_prefixe"), u"figure");
  EXPECT_EQ(Saved(u"html_ref"), u"ref.htm");
}

TEST_F(OptionsTest, ATitleSwitchedOffIsForgottenAtTheNextStart) {
  Settings({u"html_titre=Mon titre"});
  Open([](OptionsHTML& options) {
    options.CheckTitre.SetValue(false);
    options.Fermer.Press();
  });
  EXPECT_EQ(Options().TextTitre.GetText(), u"Mon titre") << "the field shows it until then";
  EXPECT_THAT(SettingsBytes(), HasSubstr("\r\nhtml_titre=\r\n")) << "the key, without a value";
  Forget();
  EXPECT_EQ(Options().TextTitre.GetText(), u"");
  EXPECT_FALSE(Options().CheckTitre.Value());
}

TEST_F(OptionsTest, EscSavesTheTitleTyped) {
  Open([](OptionsHTML& options) {
    options.TextTitre.SetText(u"Mon titre");
    options.on_key_press(kKeyEscape);
  });
  EXPECT_FALSE(Options().Visible());
  EXPECT_EQ(Saved(u"html_titre"), u"Mon titre");
}

TEST_F(OptionsTest, TheCloseBoxSavesToo) {
  Open([](OptionsHTML& options) {
    options.TextTitre.SetText(u"Mon titre");
    options.Close();
  });
  EXPECT_EQ(Saved(u"html_titre"), u"Mon titre");
}

TEST_F(OptionsTest, OtherKeysLeaveItOpen) {
  Open([](OptionsHTML& options) {
    options.on_key_press(u'a');
    EXPECT_TRUE(options.Visible());
    options.Fermer.Press();
  });
}

TEST_F(OptionsTest, OtherKeysAndSectionsOfTheFileStay) {
  Write(u"; à moi\r\n[Options]\r\naffiche_aide=0\r\n[html]\r\nautre=1\r\nhtml_titre=Vieux\r\n");
  Open([](OptionsHTML& options) {
    options.TextTitre.SetText(u"Neuf");
    options.Fermer.Press();
  });
  EXPECT_EQ(Saved(u"autre"), u"1");
  EXPECT_EQ(Saved(u"html_titre"), u"Neuf");
  EXPECT_EQ(sLitIni(u"Options", u"affiche_aide", u"-", sFichierIni), u"0");
}

// Writing of some settings fails.
class ReadOnlySettings : public ForwardingProfiles {
 public:
  using ForwardingProfiles::ForwardingProfiles;
  bool WritePrivateProfileString(const Text&, const Text& key, const Text&, const Text&) override {
    asked.push_back(key);
    return false;
  }
  std::vector<Text> asked;
};

TEST_F(OptionsTest, AReadOnlySettingsFileIsReportedForEachKeyAndTheOptionsHold) {
  Settings({u"html_titre=Vieux"});
  ReadOnlySettings platform(CurrentPlatform());
  PartScope scope(platform);
  for (int key = 0; key < 11; ++key) view.Answer(BoxAnswer::kOk);
  Open([](OptionsHTML& options) {
    options.TextTitre.SetText(u"Neuf");
    options.Fermer.Press();
  });
  EXPECT_EQ(platform.asked.size(), 11u);
  EXPECT_EQ(view.Boxes()[0].text, u"PutIniBoolean() : Erreur d'écriture sur le fichier : " +
                                      sFichierIni + u"\r\nItem : html_entete:-1");
  EXPECT_EQ(LastBox(), u"PutIniString() : Erreur d'écriture sur le fichier : " + sFichierIni +
                           u"\r\nItem : html_ref");
  EXPECT_FALSE(Options().Visible());
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_THAT(ToUtf8(sEnteteHTML()), HasSubstr("<TITLE>Neuf</TITLE>"));
  EXPECT_EQ(Saved(u"html_titre"), u"Vieux");
}

TEST_F(OptionsTest, SettingsOnACdRomDriveAreDroppedWithoutAWord) {
  Settings({u"html_titre=Vieux"});
  machine.types[u"D"] = DriveType::kCdRom;
  Open([](OptionsHTML& options) {
    options.TextTitre.SetText(u"Neuf");
    options.Fermer.Press();
  });
  EXPECT_EQ(Saved(u"html_titre"), u"Vieux");
  EXPECT_THAT(ToUtf8(sEnteteHTML()), HasSubstr("<TITLE>Neuf</TITLE>")) << "for this run they hold";
}

// --- Help, lines, foreground --------------------------------------------------------------------

TEST_F(OptionsTest, TheMouseShowsTheHelpOfEachControl) {
  OptionsHTML& o = Options();
  const std::pair<Control*, TextView> helps[] = {
      {&o.CheckEntete, u"Insère ou non les codes HTML de début de page."},
      {&o.CheckCR, u"Valide ou non le remplacement des retours chariot."},
      {&o.CheckFin, u"Insère ou non les codes HTML de fin de page."},
      {&o.OptionTag(0), u"Tag HTML : retour chariot"},
      {&o.OptionTag(1), u"Tag HTML : paragraphe"},
      {&o.CheckFrame,
       u"Autorise ou non l'utilisation éventuelle de <FRAME> dans la génération de code HTML"},
      {&o.CheckTitre, u"Valide ou non l'insertion d'un titre."},
      {&o.CheckFond, u"Valide ou non l'insertion d'une couleur de fond."},
      {&o.CheckBack, u"Valide ou non l'insertion d'une couleur de fond."},
      {&o.CouleurRGB, u"Champ de saisie de la couleur RGB."},
      {&o.ImageBack, u"Champ de saisie de la texture en fond de page."},
      {&o.CheckImage, u"Valide ou non l'insertion d'une image en début de page HTML."},
      {&o.CheckSuffixe, u"Valide ou non l'insertion d'une image en début de page HTML."},
      {&o.ImageDebut, u"Champ de saisie du chemin et du nom d'une image GIF."},
      {&o.CheckRef,
       u"Génère ou non le fichier HTML des Bibliographies avec les liens sur le fichier HTML "
       u"Mémo."},
      {&o.RefHTML, u"Champ de saisie du fichier HTML des Bibliographies à générer."},
      {&o.PanelAide, u"Zone d'affichage de l'aide liée aux déplacements du curseur de la souris"},
      {&o, u""}};
  for (const auto& [control, help] : helps) {
    Raise(control->on_mouse_move);
    EXPECT_EQ(o.PanelAide.Caption(), help) << ToUtf8(control->Name());
    EXPECT_EQ(view.Focus(), nullptr) << ToUtf8(control->Name());
  }
}

TEST_F(OptionsTest, TheMouseGivesButtonsTheFocusAsWell) {
  OptionsHTML& o = Options();
  const std::pair<Button*, TextView> helps[] = {
      {&o.LaCouleur, u"Sélectionner une couleur RGB."},
      {&o.Limage, u"Permet de sélection un fichier texture au format GIF."},
      {&o.LeFichier, u"Sélectionner un fichier au format GIF."},
      {&o.FichierHTML, u"Bouton permettant de sélection un nom de fichier dans l'arborescence."},
      {&o.Fermer, u"Ferme la fenêtre."}};
  for (const auto& [button, help] : helps) {
    Raise(button->on_mouse_move);
    EXPECT_EQ(o.PanelAide.Caption(), help);
    EXPECT_EQ(view.Focus(), button);
  }
}

TEST_F(OptionsTest, ThreeEngravedLinesPartTheGroups) {
  Raise(Options().on_paint);
  EXPECT_EQ(view.Strokes().size(), 6u) << "a line is a dark and a light stroke";
}

TEST_F(OptionsTest, ATopmostWindowGivesThatUpOnUnloading) {
  Options().SetTag(u"-1");
  FenetrePremierPlan(Options(), true);
  Forget();
  EXPECT_TRUE(view.TopmostForms().empty());
}

}  // namespace
}  // namespace trovex::test
