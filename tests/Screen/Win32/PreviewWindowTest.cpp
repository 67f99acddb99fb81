// The preview in its real window.
#include <cstdlib>

#include "WindowTest.h"
#include "support/Win32/Steps.h"
#include "support/Win32/WindowPicture.h"

namespace trovex::test {
namespace {

class PreviewWindowTest : public WindowTest {
 protected:
  PreviewWindowTest() {
    Main(form);
    form.ListeRepertoire.SetPath(u"D:\\");
    form.Explorer.Press();
    Rest();
  }

  // Prints the table on show, and acts in the preview that comes up; it closes by itself.
  void Preview(std::deque<std::function<void()>> steps) {
    steps.push_back([this] { Key(VK_ESCAPE); });
    Steps user(std::move(steps));
    form.Imprimer.Press();
    EXPECT_EQ(user.Left(), 0u);
    EXPECT_EQ(Window(), nullptr) << "Esc closes it";
    EXPECT_TRUE(IsWindowEnabled(Handle(form)));
  }

  HWND Window() const { return FindWindowW(L"TrovexPreview", nullptr); }
  HWND Canvas() const { return FindWindowExW(Window(), nullptr, L"TrovexPreview", nullptr); }
  HWND Button(const wchar_t* caption) const {
    return FindWindowExW(Window(), nullptr, L"BUTTON", caption);
  }
  // The number of the page, as the window tells it.
  std::string Page() const {
    return ToUtf8(Shown(FindWindowExW(Window(), nullptr, L"STATIC", nullptr)));
  }
  void Key(WPARAM key) { PostMessageW(Canvas(), WM_KEYDOWN, key, 1); }
  void Press(const wchar_t* caption) {
    ASSERT_NE(Button(caption), nullptr);
    PostMessageW(Button(caption), BM_CLICK, 0, 0);
  }
  void Wheel(short delta) {
    PostMessageW(Canvas(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
  }
  void Picture(const char* name) {
    const char* directory = std::getenv("TROVEX_PICTURES");
    if (directory == nullptr) return;
    RedrawWindow(Window(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    WritePicture(Window(), std::filesystem::path(directory) / name);
  }

  MainForm form;
};

TEST_F(PreviewWindowTest, LeafsThroughThePages) {
  std::vector<std::string> pages;
  const auto note = [&] { pages.push_back(Page()); };
  Preview({note, [&] { Picture("Preview-page.png"); }, [&] { Key(VK_NEXT); }, note,
           [&] { Key(VK_HOME); }, note, [&] { Press(L">"); }, note, [&] { Wheel(120); }, note,
           [&] { Key(VK_END); }, note});
  EXPECT_EQ(pages, (std::vector<std::string>{"Page 1 sur 2", "Page 2 sur 2", "Page 1 sur 2",
                                             "Page 2 sur 2", "Page 1 sur 2", "Page 2 sur 2"}));
}

TEST_F(PreviewWindowTest, ShowsTwoPagesAndWidePages) {
  std::string two, wide;
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  Preview({[&] { Press(L"&2 pages"); }, [&] { two = Page(); }, [&] { Picture("Preview-two.png"); },
           [&] { Press(L"&1 page"); }, [&] { Press(L"&Largeur"); }, [&] { wide = Page(); },
           [&] { GetScrollInfo(Canvas(), SB_VERT, &info); },
           [&] { Picture("Preview-width.png"); }});
  EXPECT_EQ(two, "Page 1-2 sur 2");
  EXPECT_EQ(wide, "Page 1 sur 2");
  EXPECT_GE(info.nMax + 1, static_cast<int>(info.nPage)) << "as high as the page or higher";
}

TEST_F(PreviewWindowTest, TheFirstPageHasNoPreviousOne) {
  bool previous = true, next = false;
  Preview({[&] { previous = IsWindowEnabled(Button(L"<")); },
           [&] { next = IsWindowEnabled(Button(L">")); }});
  EXPECT_FALSE(previous);
  EXPECT_TRUE(next);
}

TEST_F(PreviewWindowTest, NoButtonCanBePushedOutOfTheWindow) {
  RECT client = {}, button = {};
  Preview({[&] {
    SetWindowPos(Window(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    GetClientRect(Window(), &client);
    GetWindowRect(Button(L"&Fermer"), &button);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&button), 2);
  }});
  EXPECT_LE(button.right, client.right);
  EXPECT_GT(client.bottom, button.bottom + 100) << "some of the page is to be seen";
}

TEST_F(PreviewWindowTest, FollowsTheResolutionOfItsMonitor) {
  constexpr UINT kDpiChanged = 0x02E0;
  RECT proposed = {20, 30, 1820, 1230}, at = {}, before = {}, button = {};
  Preview({[&] { GetClientRect(Button(L"&Fermer"), &before); },
           [&] {
             SendMessageW(Window(), kDpiChanged, MAKEWPARAM(192, 192),
                          reinterpret_cast<LPARAM>(&proposed));
             GetWindowRect(Window(), &at);
             GetClientRect(Button(L"&Fermer"), &button);
           },
           [&] { Picture("Preview-200.png"); }});
  EXPECT_TRUE(EqualRect(&at, &proposed));
  EXPECT_EQ(button.bottom, 2 * before.bottom);
}

TEST_F(PreviewWindowTest, WithoutAPrinterSaysSo) {
  boxes.Press(IDOK);
  Preview({[&] { Press(L"&Imprimer..."); }, [] {}});
  ASSERT_EQ(boxes.Boxes().size(), 1u);
  EXPECT_EQ(boxes.Boxes()[0].text, u"Aucune imprimante n'est installée sur cet ordinateur.");
}

TEST_F(PreviewWindowTest, ClosesByItsButton) {
  Steps user({[&] { Press(L"&Fermer"); }});
  form.Imprimer.Press();
  EXPECT_EQ(Window(), nullptr);
}

}  // namespace
}  // namespace trovex::test
