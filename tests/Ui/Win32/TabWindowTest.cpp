#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class TabWindowTest : public ViewTest {
 protected:
  TabWindowTest() {
    Make({{ControlKind::kTabControl, u"Onglets", -1, {150, 150, 4500, 3000}},
          {ControlKind::kLabel,
           u"Page",
           0,
           {150, 600, 900, 300},
           u"un",
           {.container = u"Onglets", .page = 0}},
          {ControlKind::kLabel,
           u"Page",
           1,
           {150, 600, 900, 300},
           u"deux",
           {.container = u"Onglets", .page = 1}}});
    Tabs().SetCaptions({u"Un", u"Deux"});
    Show();
    Tabs().on_tab_click = [this](int former) { formers.push_back(former); };
  }

  TabControl& Tabs() { return TheForm().Get<TabControl>(u"Onglets"); }
  bool Seen(int page) { return IsWindowVisible(Handle(TheForm().Get<Label>(u"Page", page))); }

  std::vector<int> formers;
};

TEST_F(TabWindowTest, ShowsCaptionsAndThePageInFront) {
  ASSERT_EQ(Ask(Tabs(), TCM_GETITEMCOUNT), 2);
  wchar_t text[16] = {};
  TCITEMW item = {};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = 16;
  Ask(Tabs(), TCM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
  EXPECT_EQ(FromWide(item.pszText), u"Deux");
  EXPECT_TRUE(Seen(0));
  EXPECT_FALSE(Seen(1));
}

TEST_F(TabWindowTest, AnotherTabBringsItsPageToTheFront) {
  Tabs().SetTab(1);
  EXPECT_EQ(Ask(Tabs(), TCM_GETCURSEL), 1);
  EXPECT_FALSE(Seen(0));
  EXPECT_TRUE(Seen(1));
  EXPECT_EQ(formers, std::vector{0}) << "the model's, and no echo of the window's";
}

TEST_F(TabWindowTest, AControlOfAHiddenPageStaysHiddenWhenItIsMadeVisible) {
  Label& hidden = TheForm().Get<Label>(u"Page", 1);
  hidden.SetVisible(false);
  hidden.SetVisible(true);
  EXPECT_FALSE(Seen(1));
}

TEST_F(TabWindowTest, AClickAndTheArrowKeysChange) {
  RECT second;
  Ask(Tabs(), TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
  Click(Tabs(), second.left + 5, second.top + 5);
  EXPECT_EQ(Tabs().Tab(), 1);
  EXPECT_EQ(formers, std::vector{0});
  Tabs().SetFocus();
  Press(Tabs(), VK_LEFT);
  EXPECT_EQ(Tabs().Tab(), 0);
  EXPECT_TRUE(Seen(0));
}

TEST_F(TabWindowTest, TheTabInFrontClickedAgainRaisesNothing) {
  RECT first;
  Ask(Tabs(), TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
  Click(Tabs(), first.left + 5, first.top + 5);
  EXPECT_THAT(formers, testing::IsEmpty());
}

}  // namespace
}  // namespace trovex::win32
