#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class CheckWindowTest : public ViewTest {
 protected:
  CheckBox& box = ShowOne<CheckBox>(ControlKind::kCheckBox);
};

TEST_F(CheckWindowTest, ShowsCaptionAndState) {
  EXPECT_EQ(Shown(box), u"Texte");
  EXPECT_EQ(Ask(box, BM_GETCHECK), BST_UNCHECKED);
  box.SetValue(true);
  EXPECT_EQ(Ask(box, BM_GETCHECK), BST_CHECKED);
}

TEST_F(CheckWindowTest, AClickTurnsIt) {
  int clicks = 0;
  box.on_click = Count(clicks);
  Ask(box, BM_CLICK);
  EXPECT_TRUE(box.Value());
  EXPECT_EQ(Ask(box, BM_GETCHECK), BST_CHECKED);
  Ask(box, BM_CLICK);
  EXPECT_FALSE(box.Value());
  EXPECT_EQ(clicks, 2);
}

TEST_F(CheckWindowTest, SpaceTurnsIt) {
  box.SetFocus();
  Press(box, VK_SPACE);
  EXPECT_TRUE(box.Value());
}

TEST_F(CheckWindowTest, AStateSetByTheProgramRaisesOneClick) {
  int clicks = 0;
  box.on_click = Count(clicks);
  box.SetValue(true);
  Rest();
  EXPECT_EQ(clicks, 1) << "the model's, and no echo of the window's";
}

class OptionWindowTest : public ViewTest {
 protected:
  OptionWindowTest() {
    Make({{ControlKind::kOptionButton, u"Choix", 0, {150, 150, 3000, 300}, u"Un"},
          {ControlKind::kOptionButton, u"Choix", 1, {150, 600, 3000, 300}, u"Deux"}});
    Show();
    for (int i = 0; i < 2; ++i) Option(i).on_click = Count(clicks);
  }

  OptionButton& Option(int index) { return TheForm().Get<OptionButton>(u"Choix", index); }
  bool Checked(int index) { return Ask(Option(index), BM_GETCHECK) == BST_CHECKED; }

  int clicks = 0;
};

TEST_F(OptionWindowTest, ShowsCaptionAndValue) {
  EXPECT_EQ(Shown(Option(1)), u"Deux");
  EXPECT_FALSE(Checked(0));
  Option(0).Preset(true);
  EXPECT_TRUE(Checked(0));
  EXPECT_EQ(clicks, 0) << "a preset is no choice of the user's";
}

TEST_F(OptionWindowTest, AClickReleasesTheOthers) {
  Ask(Option(0), BM_CLICK);
  Ask(Option(1), BM_CLICK);
  EXPECT_FALSE(Option(0).Value());
  EXPECT_FALSE(Checked(0));
  EXPECT_TRUE(Option(1).Value());
  EXPECT_TRUE(Checked(1));
  EXPECT_EQ(clicks, 2);
}

TEST_F(OptionWindowTest, AClickOnTheChosenOneIsAClickAllTheSame) {
  Ask(Option(0), BM_CLICK);
  Ask(Option(0), BM_CLICK);
  EXPECT_TRUE(Checked(0));
  EXPECT_EQ(clicks, 2);
}

TEST_F(OptionWindowTest, TheFocusAloneChoosesNothing) {
  Option(1).SetFocus();
  Rest();
  EXPECT_EQ(GetFocus(), Handle(Option(1)));
  EXPECT_FALSE(Option(1).Value());
  EXPECT_EQ(clicks, 0);
}

// Before Windows Vista a click is reported when the focus comes, whatever the option was told.
TEST_F(OptionWindowTest, ANotificationThatComesWithTheFocusIsNoClick) {
  constexpr UINT kDontClick = 0x00F8;
  Ask(Option(1), kDontClick, FALSE);
  Option(1).SetFocus();
  Rest();
  EXPECT_FALSE(Option(1).Value());
  EXPECT_EQ(clicks, 0);
}

TEST_F(OptionWindowTest, TheArrowKeysChooseAndGoRound) {
  Option(0).Preset(true);
  Option(0).SetFocus();
  Press(Option(0), VK_DOWN);
  EXPECT_TRUE(Option(1).Value());
  EXPECT_TRUE(Checked(1));
  EXPECT_EQ(GetFocus(), Handle(Option(1)));
  Press(Option(1), VK_RIGHT);
  EXPECT_TRUE(Option(0).Value());
  Press(Option(0), VK_UP);
  EXPECT_TRUE(Option(1).Value());
  Press(Option(1), VK_LEFT);
  EXPECT_TRUE(Option(0).Value());
  EXPECT_EQ(clicks, 4);
}

TEST_F(OptionWindowTest, TheSpaceBarChooses) {
  Option(1).SetFocus();
  Press(Option(1), VK_SPACE);
  EXPECT_TRUE(Option(1).Value());
  EXPECT_EQ(clicks, 1);
}

TEST_F(OptionWindowTest, AValueSetByTheProgramRaisesOneClick) {
  Option(1).SetValue(true);
  Rest();
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace trovex::win32
