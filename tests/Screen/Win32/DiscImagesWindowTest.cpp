// A disc image dropped on the real window, with a picture where TROVEX_PICTURES names a directory.
#include <cstdlib>

#include "Image/DiscPlatform.h"
#include "Ui/Win32/Pictures.h"
#include "WindowTest.h"
#include "support/ExecutableBuilder.h"
#include "support/IsoBuilder.h"
#include "support/Win32/WindowPicture.h"

// Behind Windows.h, whose types it needs.
#include <shlobj.h>

namespace trovex::test {
namespace {

class DiscImagesWindowTest : public WindowTest {
 protected:
  DiscImagesWindowTest() : discs_scope_(discs_), platform_scope_(discs_) {
    IsoBuilder iso;
    iso.Label("GRENIER 1997");
    iso.File(
        "JEUX/DAMES.EXE",
        NeExecutable(VersionBlock8({{"FileDescription", "Jeu de dames"}, {"FileVersion", "1.20"}}),
                     Icon::kPresent));
    iso.File("JEUX/DAMES.TXT", "Le jeu de dames, pour deux joueurs.\r\n");
    disc.File("disque.iso", iso.Build(IsoFormat::kJoliet).bytes);
    machine.SetClass(u".exe", u"exefile");
    machine.SetClass(u"exefile\\defaulticon", u"%1");
    Main(form);
    Rest();
  }

  // What the system does when the user lets go of a file over the window.
  void Drop(const std::wstring& file) {
    const SIZE_T size = sizeof(DROPFILES) + (file.size() + 2) * sizeof(wchar_t);
    const HGLOBAL block = GlobalAlloc(GHND, size);
    auto* head = static_cast<DROPFILES*>(GlobalLock(block));
    head->pFiles = sizeof(DROPFILES);
    head->fWide = TRUE;
    file.copy(reinterpret_cast<wchar_t*>(head + 1), file.size());
    GlobalUnlock(block);
    PostMessageW(Handle(form), WM_DROPFILES, reinterpret_cast<WPARAM>(block), 0);
    Rest();
  }

  void TakePicture(const char* name) {
    const char* directory = std::getenv("TROVEX_PICTURES");
    if (directory == nullptr) return;
    SetWindowPos(Handle(form), HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE);
    RedrawWindow(Handle(form), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    Rest();
    WritePicture(Handle(form), std::filesystem::path(directory) / name);
  }

 private:
  DiscPlatform discs_{machine};
  DiscsScope discs_scope_;
  PlatformScope platform_scope_;

 protected:
  MainForm form;
};

TEST_F(DiscImagesWindowTest, TakesFiles) {
  EXPECT_TRUE(GetWindowLongPtrW(Handle(form), GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
}

TEST_F(DiscImagesWindowTest, AnImageDroppedIsADriveThatIsExplored) {
  Drop(L"D:\\disque.iso");
  EXPECT_EQ(form.ListeDrive.Drive(), u"e: [GRENIER 1997]");
  wchar_t shown[100] = {};
  Ask(form.ListeDrive, CB_GETLBTEXT, static_cast<WPARAM>(Ask(form.ListeDrive, CB_GETCURSEL)),
      reinterpret_cast<LPARAM>(shown));
  EXPECT_EQ(FromWide(shown), u"e: [GRENIER 1997]");
  Push(form.Explorer);
  form.ZoneDesTableaux.SetTab(1);
  Rest();
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 0), u"Jeu de dames");
  EXPECT_EQ(form.IconeFichier.GetPicture().name, u"E:\\Jeux\\Dames.exe");
  TakePicture("image-deposee.png");
}

TEST_F(DiscImagesWindowTest, TheIconOfAProgramInsideAnImageIsDrawn) {
  Drop(L"D:\\disque.iso");
  const Picture inside{Picture::Source::kIconOf, u"E:\\JEUX\\DAMES.EXE", 0};
  for (const int pixels : {16, 32, 48}) {
    const win32::OwnedIcon icon = win32::LoadPicture(inside, pixels);
    ASSERT_NE(icon.Get(), nullptr);
    ICONINFO drawn = {};
    ASSERT_TRUE(GetIconInfo(icon.Get(), &drawn));
    const win32::OwnedBitmap colours(drawn.hbmColor), mask(drawn.hbmMask);
    BITMAP bitmap = {};
    GetObjectW(colours.Get(), sizeof bitmap, &bitmap);
    EXPECT_EQ(bitmap.bmWidth, pixels);
    EXPECT_EQ(bitmap.bmHeight, pixels);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(dc, colours.Get());
    EXPECT_EQ(GetPixel(dc, pixels / 2, pixels / 2), RGB(0xFF, 0xFF, 0)) << "a yellow disc";
    SelectObject(dc, before);
    DeleteDC(dc);
  }
  const Picture without{Picture::Source::kIconOf, u"E:\\JEUX\\DAMES.TXT", 0};
  EXPECT_EQ(win32::LoadPicture(without, 32).Get(), nullptr);
}

TEST_F(DiscImagesWindowTest, TheMenuOfTheWindowHasTheEntry) {
  const HMENU menu = GetSystemMenu(Handle(form), FALSE);
  bool found = false;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    wchar_t caption[100] = {};
    GetMenuStringW(menu, static_cast<UINT>(i), caption, 100, MF_BYPOSITION);
    found = found || FromWide(caption) == u"Ou&vrir une image de disque...";
  }
  EXPECT_TRUE(found);
}

}  // namespace
}  // namespace trovex::test
