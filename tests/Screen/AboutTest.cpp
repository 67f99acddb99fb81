#include "Screen/Lib_AboutDlg.h"
#include "ScreenTest.h"

namespace trovex::test {
namespace {

class AboutTest : public ScreenTest {
 protected:
  AboutTest() { form.Show(); }
};

TEST_F(AboutTest, TheButtonShowsTitleVersionAndIconOfTheProgram) {
  view.AnswerForm([this](Form& window) {
    auto& about = dynamic_cast<Lib_AboutDlg&>(window);
    EXPECT_EQ(about.LabelNom.Caption(), u"Trovex");
    EXPECT_EQ(about.LabelVersion.Caption(), u"v1.0.0");
    EXPECT_EQ(about.LabelAccord.Caption(), u"Version 32 bits pour Windows");
    EXPECT_EQ(about.ImageAppli.GetPicture(), form.ImageAppli.GetPicture());
    EXPECT_NE(about.ImageAppli.GetPicture().source, Picture::Source::kNone);
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    about.CommFermer.Press();
  });
  Press(form.Apropos);
}

TEST_F(AboutTest, TheStatusLineStaysBusyWhenTheWindowCloses) {
  view.AnswerForm([this](Form& window) {
    EXPECT_EQ(Help(), u"Traitement en cours, patientez s.v.p");
    window.Unload();
  });
  Press(form.Apropos);
  EXPECT_EQ(Help(), u"Traitement en cours, patientez s.v.p");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  Raise(form.Quitter.on_mouse_move);
  EXPECT_EQ(Help(), u"Permet de quitter l'application");
}

}  // namespace
}  // namespace trovex::test
