// A disc that is changed while the window stands: what its real controls then show.
#include "WindowTest.h"

// Behind Windows.h, whose types it needs.
#include <dbt.h>

namespace trovex::test {
namespace {

class ChangedDiscWindowTest : public WindowTest {
 protected:
  ChangedDiscWindowTest() {
    Main(form);
    form.ListeRepertoire.SetPath(u"D:\\Archives");
    Rest();
  }

  // Another disc: one directory, another label.
  void ChangeTheDisc() {
    machine.labels[u"D"] = u"CAVE";
    machine.gone = {u"D:\\ARCHIVES"};
    disc.Directory("Zoo");
  }
  Text Drive() {
    wchar_t text[64] = {};
    Ask(form.ListeDrive, CB_GETLBTEXT, static_cast<WPARAM>(Ask(form.ListeDrive, CB_GETCURSEL)),
        reinterpret_cast<LPARAM>(text));
    return FromWide(text);
  }
  bool Lists(const wchar_t* directory) {
    return Ask(form.ListeRepertoire, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
               reinterpret_cast<LPARAM>(directory)) != LB_ERR;
  }
  void ExpectTheNewDisc() {
    EXPECT_EQ(Drive(), u"d: [CAVE]");
    EXPECT_TRUE(Lists(L"Zoo"));
    EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
  }

  MainForm form;
};

TEST_F(ChangedDiscWindowTest, IsShownWhenADeviceComes) {
  EXPECT_EQ(Drive(), u"d: [GRENIER]");
  EXPECT_FALSE(Lists(L"Zoo"));
  ChangeTheDisc();
  SendMessageW(Handle(form), WM_DEVICECHANGE, DBT_DEVICEARRIVAL, 0);
  Rest();
  ExpectTheNewDisc();
}

TEST_F(ChangedDiscWindowTest, IsShownWhenTheDriveListDropsDown) {
  ChangeTheDisc();
  Ask(form.ListeDrive, CB_SHOWDROPDOWN, TRUE);
  ExpectTheNewDisc();
  Ask(form.ListeDrive, CB_SHOWDROPDOWN, FALSE);
  Rest();
}

TEST_F(ChangedDiscWindowTest, IsShownWhenTheUserComesBackToTheWindow) {
  const HWND other = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100,
                                     100, nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(other);
  Rest();
  ChangeTheDisc();
  SetActiveWindow(Handle(form));
  Rest();
  ExpectTheNewDisc();
  DestroyWindow(other);
}

TEST_F(ChangedDiscWindowTest, ADirectoryThatHasGoneIsNotScannedAndTheStatusLineSaysSo) {
  form.ListeRepertoire.SetPath(u"D:\\");
  Push(form.Explorer);
  const int rows = form.GridLogiciel(1).Rows();
  ASSERT_GT(rows, 2);
  form.ListeRepertoire.SetListIndex(0);
  const Text directory = form.ListeRepertoire.List(0);
  machine.gone = {ToUpper(directory)};
  Push(form.Explorer);
  EXPECT_EQ(form.PanelAide.PanelText(u"Msg"), u"Répertoire introuvable");
  EXPECT_EQ(form.GridLogiciel(1).Rows(), rows);
}

}  // namespace
}  // namespace trovex::test
