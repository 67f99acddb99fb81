// Which window is active, what owns what, and where the focus is, before and behind the dialogs.
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/Lib_Form.h"
#include "Screen/HtmlExport.h"
#include "Screen/Lib_AboutDlg.h"
#include "WindowTest.h"
#include "support/Win32/OtherProgram.h"
#include "support/Win32/Steps.h"

namespace trovex::test {
namespace {

using Acts = std::deque<std::function<void()>>;

class ModalityTest : public WindowTest {
 protected:
  ModalityTest() {
    Main(form);
    form.ListeRepertoire.SetPath(u"D:\\");
    form.Explorer.Press();
    Rest();
  }

  // Presses a button by the keyboard; the user goes on with these acts in what comes up.
  void Press(Button& button, Acts acts) {
    Steps user(std::move(acts));
    button.SetFocus();
    button.Press();
    EXPECT_EQ(user.Left(), 0u);
  }
  // The visible form of the program above the main window; null if there is none.
  Form* Dialog() const {
    for (Form* loaded : LoadedForms()) {
      if (loaded != &form && loaded->Visible()) return loaded;
    }
    return nullptr;
  }
  HWND DialogHandle() const { return Dialog() == nullptr ? nullptr : Handle(*Dialog()); }
  void Key(WPARAM key) { PostMessageW(GetFocus(), WM_KEYDOWN, key, 1); }
  void ExpectModal() {
    ASSERT_NE(DialogHandle(), nullptr);
    EXPECT_EQ(GetActiveWindow(), DialogHandle());
    EXPECT_EQ(GetForegroundWindow(), DialogHandle());
    EXPECT_EQ(GetWindow(DialogHandle(), GW_OWNER), Handle(form));
    EXPECT_FALSE(IsWindowEnabled(Handle(form)));
    EXPECT_TRUE(IsWindowEnabled(Handle(Lib_Form()))) << "what is not on the screen needs no rest";
    EXPECT_TRUE(IsChild(DialogHandle(), GetFocus())) << "keys would go nowhere";
  }
  void ExpectMainWindowActive(const Control& focus) {
    EXPECT_TRUE(IsWindowEnabled(Handle(form)));
    EXPECT_EQ(GetActiveWindow(), Handle(form));
    EXPECT_EQ(GetForegroundWindow(), Handle(form));
    EXPECT_EQ(GetFocus(), Handle(focus));
  }

  MainForm form;
};

TEST_F(ModalityTest, AtTheStartTheFirstStopOfTheTabKeyHasTheFocus) {
  ExpectMainWindowActive(form.Explorer);
}

TEST_F(ModalityTest, TheOptionsAreOwnedByTheMainWindowWhichIsActiveAfterThem) {
  OtherProgram other;
  Press(form.CommandOption, {[&] { ExpectModal(); }, [&] { Key(VK_ESCAPE); }});
  ExpectMainWindowActive(form.CommandOption);
  Press(form.CommandOption, {[&] { ExpectModal(); }, [&] { Key(VK_ESCAPE); }});
  ExpectMainWindowActive(form.CommandOption);
}

TEST_F(ModalityTest, TheAboutWindowIsOwnedByTheMainWindowWhichIsActiveAfterIt) {
  OtherProgram other;
  Press(form.Apropos, {[&] { ExpectModal(); }, [&] { Key(VK_ESCAPE); }});
  ExpectMainWindowActive(form.Apropos);
}

TEST_F(ModalityTest, ABoxOfADialogIsOwnedByThatDialog) {
  boxes.Press(IDOK);
  HWND about = nullptr, behind = nullptr;
  Press(form.Apropos, {[&] { about = DialogHandle(); },
                       [&] { static_cast<Lib_AboutDlg*>(Dialog())->CommInfos.Press(); },
                       [&] { behind = GetActiveWindow(); }, [&] { Key(VK_ESCAPE); }});
  ASSERT_EQ(boxes.Boxes().size(), 1u);
  EXPECT_EQ(boxes.Boxes()[0].owner, about);
  EXPECT_EQ(behind, about);
  ExpectMainWindowActive(form.Apropos);
}

TEST_F(ModalityTest, TheSaveDialogBehindTheChoiceOfAFormatIsOwnedByTheMainWindow) {
  OtherProgram other;
  boxes.Press(IDCANCEL);
  Press(form.Exporter, {[&] { ExpectModal(); }, [&] { Key(VK_RETURN); }});
  ASSERT_EQ(boxes.Boxes().size(), 1u);
  EXPECT_EQ(boxes.Boxes()[0].owner, Handle(form));
  ExpectMainWindowActive(form.Exporter);
}

TEST_F(ModalityTest, APreviewIsOwnedByTheMainWindowWhichIsActiveAfterIt) {
  OtherProgram other;
  HWND owner = nullptr;
  BOOL beneath = TRUE;
  const auto preview = [] { return FindWindowW(L"TrovexPreview", nullptr); };
  Press(form.Imprimer, {[&] { owner = GetWindow(preview(), GW_OWNER); },
                        [&] { beneath = IsWindowEnabled(Handle(form)); },
                        [&] { EXPECT_EQ(GetActiveWindow(), preview()); }, [&] { Key(VK_ESCAPE); }});
  EXPECT_EQ(owner, Handle(form));
  EXPECT_FALSE(beneath);
  ExpectMainWindowActive(form.Imprimer);
}

TEST_F(ModalityTest, AfterABoxTheFocusIsWhereItWas) {
  boxes.Press(IDOK);
  form.ListFichier.SetFocus();
  MessageInfo(u"Une boîte.");
  Rest();
  EXPECT_EQ(boxes.Boxes().at(0).owner, Handle(form));
  ExpectMainWindowActive(form.ListFichier);
}

TEST_F(ModalityTest, ABoxIsOwnedByTheMainWindowThoughAnotherProgramIsInFront) {
  OtherProgram other;
  boxes.Press(IDOK);
  SetForegroundWindow(other.Window());
  MessageInfo(u"Une boîte.");
  EXPECT_EQ(boxes.Boxes().at(0).owner, Handle(form));
}

TEST_F(ModalityTest, TheFocusComesBackWithTheWindow) {
  OtherProgram other;
  form.GridLogiciel(1).SetFocus();
  SetForegroundWindow(other.Window());
  Rest();
  EXPECT_NE(GetForegroundWindow(), Handle(form));
  SetForegroundWindow(Handle(form));
  Rest();
  ExpectMainWindowActive(form.GridLogiciel(1));
}

TEST_F(ModalityTest, TheFocusLeavesAControlThatGoesOrIsDisabled) {
  form.Exporter.SetFocus();
  form.Exporter.SetEnabled(false);
  Rest();
  EXPECT_TRUE(IsChild(Handle(form), GetFocus()));
  EXPECT_NE(GetFocus(), Handle(form.Exporter));
  form.GridLogiciel(1).SetFocus();
  form.ZoneDesTableaux.SetTab(0);
  Rest();
  EXPECT_TRUE(IsChild(Handle(form), GetFocus()));
  EXPECT_TRUE(IsWindowVisible(GetFocus()));
}

TEST_F(ModalityTest, EscLeavesTheMainWindowOpen) {
  WindowUser::Press(form.Explorer, VK_ESCAPE);
  WindowUser::Press(form.GridLogiciel(1), VK_ESCAPE);
  PostMessageW(Handle(form), WM_KEYDOWN, VK_ESCAPE, 1);
  Rest();
  EXPECT_TRUE(form.Loaded());
  EXPECT_TRUE(IsWindowVisible(Handle(form)));
}

TEST_F(ModalityTest, TheEndOfTheSessionUnloadsTheMainWindowAndStopsTheProgram) {
  const HWND window = Handle(form);
  EXPECT_TRUE(SendMessageW(window, WM_QUERYENDSESSION, 0, 0));
  SendMessageW(window, WM_ENDSESSION, FALSE, 0);
  EXPECT_TRUE(form.Loaded()) << "another program has refused";
  SendMessageW(window, WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(form.Loaded());
}

TEST_F(ModalityTest, TheEndOfTheSessionFindsADialogOpen) {
  Press(form.Apropos, {[&] { SendMessageW(DialogHandle(), WM_ENDSESSION, TRUE, 0); },
                       [&] { SendMessageW(Handle(form), WM_ENDSESSION, TRUE, 0); }});
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(LoadedForms().empty());
}

// What waits in the queue before a long command, for buttons that only count.
class HeldThreadTest : public ModalityTest {
 protected:
  HeldThreadTest() {
    form.Quitter.on_click = form.Apropos.on_click = [this] { ++clicks_; };
    const HWND quitter = Handle(form.Quitter);
    PostMessageW(quitter, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    PostMessageW(quitter, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    PostMessageW(Handle(form.Apropos), WM_KEYDOWN, VK_RETURN, 1);
    PostMessageW(Handle(form), WM_SYSKEYDOWN, VK_F4, 1 << 29);
  }
  void ExpectLost() {
    Rest();
    EXPECT_EQ(clicks_, 0);
    EXPECT_TRUE(form.Loaded());
    WindowUser::Press(form.Apropos, VK_RETURN);
    EXPECT_EQ(clicks_, 1) << "the user is heard again";
  }

 private:
  int clicks_ = 0;
};

TEST_F(HeldThreadTest, WhatIsClickedAndTypedDuringAScanIsLost) {
  form.Explorer.Press();
  ExpectLost();
}

TEST_F(HeldThreadTest, WhatIsClickedAndTypedDuringAnExportToHtmlIsLostButNotTheAnswerToItsBox) {
  disc.Directory("SITE");
  boxes.Press(IDNO);
  EXPECT_EQ(ExportHtml(form, {.sFichier = u"D:\\SITE\\A.htm", .iTableau = 2}),
            ExportOutcome::kWritten);
  EXPECT_EQ(boxes.Boxes().size(), 1u);
  ExpectLost();
}

}  // namespace
}  // namespace trovex::test
