#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Ui/Button.h"
#include "Ui/CommonDialog.h"
#include "Ui/ControlFactory.h"
#include "Ui/Headless/HeadlessView.h"
#include "Ui/Label.h"
#include "Ui/Picture.h"
#include "Ui/StatusBar.h"
#include "Ui/TabControl.h"
#include "Ui/TextBox.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

TEST(TextBoxTest, ANewTextRaisesTheChangeOnce) {
  TextBox box;
  int changes = 0;
  box.on_change = [&] { ++changes; };
  box.SetText(u"un");
  box.SetText(u"un");
  box.SetText(u"");
  EXPECT_EQ(changes, 2);
}

TEST(TextBoxTest, AppendingAddsAtTheEnd) {
  TextBox box;
  int changes = 0;
  box.on_change = [&] { ++changes; };
  box.Append(u"un");
  box.Append(u"");
  box.Append(u" deux");
  EXPECT_EQ(box.GetText(), u"un deux");
  EXPECT_EQ(changes, 2);
}

TEST(FrameTest, IsMadeFromItsTableWithItsCaption) {
  const ControlSpec spec = {ControlKind::kFrame, u"Zone", -1, {1, 2, 3, 4}, u" Titre "};
  const std::unique_ptr<Control> control = CreateControl(spec, Words(FormSpec{}));
  auto* frame = dynamic_cast<Frame*>(control.get());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->Caption(), u" Titre ");
}

TEST(TabControlTest, AnotherTabRaisesTheClickWithTheFormerOne) {
  TabControl tabs;
  tabs.SetCaptions({u"un", u"deux", u"trois"});
  std::vector<int> former;
  tabs.on_tab_click = [&](int previous) { former.push_back(previous * 10 + tabs.Tab()); };
  tabs.SetTab(2);
  tabs.SetTab(2);
  tabs.SetTab(1);
  EXPECT_THAT(former, ElementsAre(2, 21));
}

TEST(TabControlTest, ATabThatDoesNotExistIsAnError) {
  TabControl tabs;
  tabs.SetCaptions({u"un", u"deux"});
  EXPECT_THROW(tabs.SetTab(2), RuntimeError);
  EXPECT_THROW(tabs.SetTab(-1), RuntimeError);
  EXPECT_EQ(tabs.Tab(), 0);
}

TEST(StatusBarTest, PanelsAreKnownByTheirKeys) {
  StatusBar bar;
  bar.AddPanel(u"Msg", StatusBar::PanelStyle::kText);
  bar.AddPanel(u"Maj", StatusBar::PanelStyle::kCapsLock);
  bar.SetPanelText(u"Msg", u"bonjour");
  EXPECT_EQ(bar.PanelText(u"Msg"), u"bonjour");
  EXPECT_EQ(bar.PanelText(u"Maj"), u"");
  EXPECT_THROW(bar.PanelText(u"Non"), RuntimeError);
  EXPECT_THROW(bar.SetPanelText(u"Non", u"x"), RuntimeError);
}

TEST(PictureBoxTest, APictureIsAReference) {
  PictureBox box;
  EXPECT_EQ(box.GetPicture(), Picture());
  box.SetPicture({Picture::Source::kIconOf, u"D:\\A.EXE", 3});
  EXPECT_EQ(box.GetPicture().index, 3);
  box.SetPicture({});
  EXPECT_EQ(box.GetPicture().source, Picture::Source::kNone);
}

TEST(ButtonTest, APressRaisesTheClick) {
  Button button;
  button.Press();
  int clicks = 0;
  button.on_click = [&] { ++clicks; };
  button.Press();
  EXPECT_EQ(clicks, 1);
}

class CommonDialogTest : public testing::Test {
 protected:
  HeadlessView view{HeadlessView::Unexpected::kReport};
  ViewScope scope{view};
  CommonDialog dialog;
};

TEST_F(CommonDialogTest, AChosenNameReplacesTheOneGiven) {
  dialog.file_name = u"ancien";
  view.AnswerFile(u"nouveau");
  EXPECT_TRUE(dialog.ShowFile(CommonDialog::Mode::kSave));
  EXPECT_EQ(dialog.file_name, u"nouveau");
  EXPECT_EQ(dialog.mode, CommonDialog::Mode::kSave);
}

TEST_F(CommonDialogTest, ACancelledDialogLeavesTheName) {
  dialog.file_name = u"ancien";
  view.AnswerFile(u"");
  EXPECT_FALSE(dialog.ShowFile(CommonDialog::Mode::kOpen));
  EXPECT_EQ(dialog.file_name, u"ancien");
}

TEST_F(CommonDialogTest, HelpShowsFileCommandAndKey) {
  dialog.help_file = u"A.HLP";
  dialog.help_command = 257;
  dialog.help_key = u"sujet";
  dialog.ShowHelp();
  EXPECT_THAT(view.Helps(), ElementsAre(HeadlessView::HelpShown{u"A.HLP", 257, u"sujet"}));
}

TEST_F(CommonDialogTest, AnUnexpectedDialogIsReportedAndCancelled) {
  dialog.title = u"Titre";
  EXPECT_FALSE(dialog.ShowFile(CommonDialog::Mode::kOpen));
  EXPECT_THAT(view.Complaints(), ElementsAre(u"Titre"));
}

TEST(HeadlessViewTest, BoxesAreAnsweredInTheOrderOfTheQueue) {
  HeadlessView view(HeadlessView::Unexpected::kReport);
  view.Answer(BoxAnswer::kNo);
  view.Answer(BoxAnswer::kCancel);
  const Box question = {BoxStyle::kQuestion, u"Titre", u"Texte"};
  EXPECT_EQ(view.ShowBox(question), BoxAnswer::kNo);
  EXPECT_EQ(view.UnusedAnswers(), 1u);
  EXPECT_EQ(view.ShowBox(question), BoxAnswer::kCancel);
  EXPECT_THAT(view.Boxes(), ElementsAre(question, question));
  EXPECT_THAT(view.Complaints(), testing::IsEmpty());
}

TEST(HeadlessViewTest, ABoxWithoutAnswerGetsItsDefaultAndIsReportedWhereThatIsWanted) {
  HeadlessView strict(HeadlessView::Unexpected::kReport), lenient;
  EXPECT_EQ(strict.ShowBox({BoxStyle::kQuestion, u"", u"Texte"}), BoxAnswer::kYes);
  EXPECT_EQ(strict.ShowBox({BoxStyle::kErreur, u"", u"Faute"}), BoxAnswer::kOk);
  EXPECT_THAT(strict.Complaints(), ElementsAre(u"Texte", u"Faute"));
  lenient.ShowBox({BoxStyle::kInfo, u"", u"Texte"});
  EXPECT_THAT(lenient.Complaints(), testing::IsEmpty());
}

}  // namespace
}  // namespace trovex::test
