#include "Ui/CommonDialog.h"
#include "ViewTest.h"
#include "support/Win32/BoxAnswerer.h"

namespace trovex::win32 {
namespace {

class SystemDialogsTest : public ViewTest {
 protected:
  SystemDialogsTest() {
    Make({});
    Show();
  }

  test::BoxAnswerer answerer;
};

TEST_F(SystemDialogsTest, ABoxShowsTitleAndTextAndGivesTheAnswer) {
  answerer.Press(IDNO);
  EXPECT_EQ(view.ShowBox({BoxStyle::kQuestion, u"Trovex", u"Été ?"}), BoxAnswer::kNo);
  ASSERT_EQ(answerer.Boxes().size(), 1u);
  EXPECT_EQ(answerer.Boxes()[0].title, u"Trovex");
  EXPECT_EQ(answerer.Boxes()[0].text, u"Été ?");
}

TEST_F(SystemDialogsTest, EachStyleHasItsAnswers) {
  answerer.Press(IDYES);
  answerer.Press(IDCANCEL);
  answerer.Press(IDOK);
  answerer.Press(IDOK);
  EXPECT_EQ(view.ShowBox({BoxStyle::kQuestion, u"T", u"?"}), BoxAnswer::kYes);
  EXPECT_EQ(view.ShowBox({BoxStyle::kQuestion, u"T", u"?"}), BoxAnswer::kCancel);
  EXPECT_EQ(view.ShowBox({BoxStyle::kErreur, u"T", u"!"}), BoxAnswer::kOk);
  EXPECT_EQ(view.ShowBox({BoxStyle::kInfo, u"T", u"."}), BoxAnswer::kOk);
}

TEST_F(SystemDialogsTest, ABoxBelongsToTheWindowInFront) {
  answerer.Press(IDOK);
  view.ShowBox({BoxStyle::kInfo, u"T", u"."});
  ASSERT_EQ(answerer.Boxes().size(), 1u);
  EXPECT_EQ(answerer.Boxes()[0].owner, FormHandle());
}

TEST_F(SystemDialogsTest, ACancelledFileDialogChangesNothing) {
  answerer.Press(IDCANCEL);
  CommonDialog dialog;
  dialog.file_name = u"D:\\*.htm";
  dialog.filter = u"HTML|*.htm";
  dialog.mode = CommonDialog::Mode::kSave;
  EXPECT_FALSE(view.ShowFileDialog(dialog));
  EXPECT_EQ(dialog.file_name, u"D:\\*.htm");
  EXPECT_EQ(answerer.Boxes().size(), 1u);
}

}  // namespace
}  // namespace trovex::win32
