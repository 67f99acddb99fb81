#include "Screen/Lib_AboutDlg.h"

#include "Platform/Encoding.h"
#include "Platform/PartScope.h"
#include "System/SystemTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AboutDlgTest : public SystemTest {
 protected:
  AboutDlgTest() { icon.SetPicture({Picture::Source::kResource, u"Trovex"}); }

  // Opens the window; `user` finds it open and must close it.
  void Open(std::function<void(Lib_AboutDlg&)> user, const Text& description = u"Une description") {
    bool came = false;
    view.AnswerForm([&](Form& form) {
      came = true;
      user(dynamic_cast<Lib_AboutDlg&>(form));
    });
    AfficheAbout(u"Titre", u"v1.2.3", icon, description);
    EXPECT_TRUE(came);
    EXPECT_THAT(LoadedForms(), IsEmpty());
  }
  static void Close(Lib_AboutDlg& form) { form.CommFermer.Press(); }

  Image icon;
};

TEST_F(AboutDlgTest, ShowsWhatItIsGiven) {
  Open([this](Lib_AboutDlg& form) {
    EXPECT_EQ(form.Caption(), u"A propos de Trovex");
    EXPECT_EQ(form.LabelNom.Caption(), u"Titre");
    EXPECT_EQ(form.LabelVersion.Caption(), u"v1.2.3");
    EXPECT_EQ(form.ImageAppli.GetPicture(), icon.GetPicture());
    EXPECT_EQ(form.LabelAccord.Caption(), u"Une description");
    EXPECT_TRUE(form.LabelAccord.Visible());
    Close(form);
  });
}

TEST_F(AboutDlgTest, AnEmptyDescriptionHidesItsLabel) {
  for (const Text& description : {Text(), Text(u"   ")}) {
    Open(
        [](Lib_AboutDlg& form) {
          EXPECT_FALSE(form.LabelAccord.Visible());
          Close(form);
        },
        description);
  }
}

TEST_F(AboutDlgTest, ADescriptionIsShownWithItsBlanks) {
  Open(
      [](Lib_AboutDlg& form) {
        EXPECT_EQ(form.LabelAccord.Caption(), u" deux mots ");
        Close(form);
      },
      u" deux mots ");
}

// --- Life ---------------------------------------------------------------------------------------

TEST_F(AboutDlgTest, LoadingCentresTheWindowAndLaysThePictureOverAllOfIt) {
  Lib_AboutDlg form;
  form.ImageFond.Move({10, 10, 20, 20});
  form.Load();
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  EXPECT_EQ(form.Left(), view.ScreenSize().width / 2 - form.Width() / 2);
  EXPECT_EQ(form.Top(), view.ScreenSize().height / 2 - form.Height() / 2);
  EXPECT_EQ(form.ImageFond.GetPlace(), (Place{0, 0, form.ScaleWidth(), form.ScaleHeight()}));
  EXPECT_EQ(form.ImageFond.GetPicture(), (Picture{Picture::Source::kBitmap, u"ImageFond"}));
}

TEST_F(AboutDlgTest, TheCaptionStoredInTheFormIsShorter) {
  const Lib_AboutDlg form;
  EXPECT_EQ(form.Caption(), u"A propos de...");
}

TEST_F(AboutDlgTest, ActivationBringsTheWindowToTheFrontAndTakesTheHourglassAway) {
  Open([this](Lib_AboutDlg& form) {
    EXPECT_EQ(view.Front(), &form);
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    Close(form);
  });
}

TEST_F(AboutDlgTest, EscClosesTheWindowFromAnyOfItsButtons) {
  for (const bool on_close_button : {true, false}) {
    Open([on_close_button](Lib_AboutDlg& form) {
      (on_close_button ? form.CommFermer : form.CommInfos).SetFocus();
      form.on_key_press(kKeyEscape);
      EXPECT_FALSE(form.Loaded());
    });
  }
}

TEST_F(AboutDlgTest, OtherKeysLeaveItOpen) {
  Open([](Lib_AboutDlg& form) {
    form.on_key_press(kKeyEnter);
    form.on_key_down(kKeyEscape + 1);
    EXPECT_TRUE(form.Loaded());
    Close(form);
  });
}

TEST_F(AboutDlgTest, F1OpensTheHelpWithoutATopic) {
  disc.File("TROVEX.HLP", "aide");
  sFichierDAide = u"D:\\TROVEX.HLP";
  Open([](Lib_AboutDlg& form) {
    form.on_key_down(kKeyF1);
    EXPECT_TRUE(form.Loaded());
    Close(form);
    Lib_Form().Unload();
  });
  EXPECT_THAT(view.Helps(), ElementsAre(HeadlessView::HelpShown{u"D:\\TROVEX.HLP", 0, u""}));
}

TEST_F(AboutDlgTest, AButtonUnderTheMouseTakesTheFocus) {
  Open([this](Lib_AboutDlg& form) {
    for (Button* button : {&form.CommInfos, &form.CommFermer}) {
      Raise(button->on_mouse_move);
      EXPECT_EQ(view.Focus(), button);
    }
    Close(form);
  });
}

// --- The version record -------------------------------------------------------------------------

class VersionRecordBoxTest : public AboutDlgTest {
 protected:
  Text Box() {
    view.Answer(BoxAnswer::kOk);
    Open([](Lib_AboutDlg& form) {
      form.CommInfos.Press();
      EXPECT_TRUE(form.Loaded());
      Close(form);
    });
    return LastBox();
  }
};

TEST_F(VersionRecordBoxTest, ShowsTheRecordLineByLine) {
  disc.Directory("PROG");
  EXPECT_THAT(
      ToUtf8(Box()),
      testing::StartsWith("Trovex\r\n"
                          "Les marques citées appartiennent à leurs propriétaires.\r\n\r\n"
                          "Trovex, catalogue des logiciels d'un CD-ROM \r\n\r\n"
                          "Dresse le catalogue des logiciels d'un CD-ROM ou d'un répertoire.\r\n"
                          "Copyright © Les auteurs de Trovex\r\n\r\n"
                          "Les auteurs de Trovex\r\n\r\n"
                          "Version 1.0.0 - "));
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
  EXPECT_EQ(view.Boxes().back().title, u"Un message d'information");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(VersionRecordBoxTest, EndsWithTheDayOfTheProgramsDirectory) {
  class Dated : public ForwardingFiles {
   public:
    using ForwardingFiles::ForwardingFiles;
    bool GetFileStatus(const Text& name, FileStatus& status) override {
      if (name != u"D:\\PROG") return Target().GetFileStatus(name, status);
      status = {kAttributeDirectory, 0, {1998, 5, 17, 12, 30, 59}};
      return true;
    }
  } dated(system);
  const PartScope scope(dated);
  EXPECT_TRUE(Box().ends_with(u"Version 1.0.0 - 17/05/1998"));
}

TEST_F(VersionRecordBoxTest, HasNoDayWhereTheDirectoryCannotBeRead) {
  machine.program_directory = u"D:\\NULLEPART";
  EXPECT_TRUE(Box().ends_with(u"Version 1.0.0 - "));
}

TEST_F(VersionRecordBoxTest, StandsUnderNoHourglass) {
  view.on_box = [this](const trovex::Box&) { EXPECT_EQ(view.GetPointer(), Pointer::kDefault); };
  Box();
}

// --- The table ----------------------------------------------------------------------------------

TEST_F(AboutDlgTest, TheControlsStandAtTheirPlaces) {
  const Lib_AboutDlg form;
  EXPECT_EQ(form.ImageFond.GetPlace(), (Place{0, 0, form.ScaleWidth(), form.ScaleHeight()}));
  EXPECT_EQ(form.LabelNom.GetPlace(), (Place{2430, 450, 2850, 375}));
  EXPECT_EQ(form.LabelVersion.GetPlace(), (Place{3450, 825, 795, 285}));
  EXPECT_EQ(form.LabelAccord.GetPlace(), (Place{360, 3015, 3915, 225}));
  EXPECT_EQ(form.CommFermer.GetPlace(), (Place{4350, 1800, 735, 540}));
  EXPECT_EQ(form.CommInfos.GetPlace(), (Place{4320, 2970, 840, 870}));
  EXPECT_EQ(form.LabelNom.GetFont(), (Font{u"Times New Roman", 14.25, true}));
  EXPECT_EQ(form.LabelVersion.GetFont(), (Font{u"Times New Roman", 12, true}));
  EXPECT_EQ(form.LabelAccord.GetFont(), (Font{u"Times New Roman", 9.75, true}));
}

}  // namespace
}  // namespace trovex::test
