#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class SystemMenuTest : public ViewTest {
 protected:
  SystemMenuTest() { Make({{ControlKind::kButton, u"B", -1, {150, 150, 900, 600}, u"bouton"}}); }

  HMENU Menu() const { return GetSystemMenu(FormHandle(), FALSE); }
  int Count() const { return GetMenuItemCount(Menu()); }
  // The caption of an entry; entries are counted from the last one, 0, upwards.
  Text Caption(int from_end) const {
    Text text(64, u'\0');
    text.resize(static_cast<std::size_t>(
        GetMenuStringW(Menu(), Place(from_end), Wide(text), 64, MF_BYPOSITION)));
    return text;
  }
  bool Checked(int from_end) const {
    return (GetMenuState(Menu(), Place(from_end), MF_BYPOSITION) & MF_CHECKED) != 0;
  }
  bool Separates(int from_end) const {
    return (GetMenuState(Menu(), Place(from_end), MF_BYPOSITION) & MF_SEPARATOR) != 0;
  }
  bool IsSystems(int from_end) const {
    return GetMenuItemID(Menu(), static_cast<int>(Place(from_end))) >= kFirstOfTheSystem;
  }
  // The user chooses an entry of the open menu.
  void Choose(int from_end) {
    PostMessageW(FormHandle(), WM_SYSCOMMAND,
                 GetMenuItemID(Menu(), static_cast<int>(Place(from_end))), 0);
    Rest();
  }

 private:
  static constexpr UINT kFirstOfTheSystem = 0xF000;

  UINT Place(int from_end) const { return static_cast<UINT>(Count() - 1 - from_end); }
};

TEST_F(SystemMenuTest, AFormWithoutEntriesHasTheMenuOfTheSystem) {
  Show();
  EXPECT_TRUE(IsSystems(0));
}

TEST_F(SystemMenuTest, EntriesStandBelowThoseOfTheSystemBehindALine) {
  TheForm().AddMenuEntry(u"&Premier");
  TheForm().AddMenuEntry(u"Été œuvre...").SetChecked(true);
  Show();
  EXPECT_EQ(Caption(1), u"&Premier");
  EXPECT_EQ(Caption(0), u"Été œuvre...");
  EXPECT_FALSE(Checked(1));
  EXPECT_TRUE(Checked(0));
  EXPECT_TRUE(Separates(2));
  EXPECT_TRUE(IsSystems(3));
}

TEST_F(SystemMenuTest, AnEntryAddedOrMarkedLaterIsShownOnce) {
  Show();
  const int system = Count();
  MenuEntry& entry = TheForm().AddMenuEntry(u"Marque");
  EXPECT_EQ(Count(), system + 2);
  entry.SetChecked(true);
  EXPECT_EQ(Count(), system + 2);
  EXPECT_TRUE(Checked(0));
  entry.SetChecked(false);
  EXPECT_FALSE(Checked(0));
}

TEST_F(SystemMenuTest, ChoosingAnEntryRaisesItsEventAlone) {
  std::vector<Text> chosen;
  TheForm().AddMenuEntry(u"un").on_click = [&] { chosen.push_back(u"un"); };
  MenuEntry& two = TheForm().AddMenuEntry(u"deux");
  two.on_click = [&] {
    chosen.push_back(u"deux");
    two.SetChecked(!two.Checked());
  };
  Show();
  Choose(0);
  EXPECT_TRUE(Checked(0));
  Choose(0);
  EXPECT_FALSE(Checked(0));
  Choose(1);
  EXPECT_EQ(chosen, (std::vector<Text>{u"deux", u"deux", u"un"}));
}

TEST_F(SystemMenuTest, TheCommandsOfTheSystemGoOnWorking) {
  TheForm().AddMenuEntry(u"un");
  Show();
  PostMessageW(FormHandle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  Rest();
  EXPECT_TRUE(TheForm().Minimised());
  PostMessageW(FormHandle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  Rest();
  EXPECT_FALSE(TheForm().Loaded());
}

TEST_F(SystemMenuTest, ARunTimeErrorOfAnEntryEndsTheLoop) {
  TheForm().AddMenuEntry(u"un").on_click = [] {
    throw RuntimeError(ErrorNumber::kPathNotFound, u"essai");
  };
  Show();
  PostMessageW(FormHandle(), WM_SYSCOMMAND, GetMenuItemID(Menu(), Count() - 1), 0);
  EXPECT_THROW(view.Run(), RuntimeError);
}

}  // namespace
}  // namespace trovex::win32
