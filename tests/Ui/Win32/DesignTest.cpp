#include "ViewTest.h"

namespace trovex::win32 {
namespace {

// What a window is made with, set when it is on the screen already.
class DesignTest : public ViewTest {
 protected:
  Form& Prepare() {
    Make({{ControlKind::kLabel, u"Titre", -1, {150, 150, 3000, 300}, u"Titre"},
          {ControlKind::kTextBox, u"Champ", -1, {150, 600, 3000, 300}, u"", {.text = u"texte"}},
          {ControlKind::kButton, u"Bouton", -1, {150, 1050, 900, 300}, u"Faire"}});
    Show();
    return TheForm();
  }

  static LONG HeightOf(HWND window) {
    LOGFONTW font = {};
    const auto handle = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    GetObjectW(handle, sizeof font, &font);
    return font.lfHeight;
  }
  DWORD StyleOf(const Control& control) const {
    return static_cast<DWORD>(GetWindowLongPtrW(Handle(control), GWL_STYLE));
  }

  Form& form = Prepare();
  TextBox& field = form.Get<TextBox>(u"Champ");
  Button& button = form.Get<Button>(u"Bouton");
};

TEST_F(DesignTest, AFontReachesTheWindow) {
  const LONG before = HeightOf(Handle(field));
  field.SetFont({u"Arial", 24});
  EXPECT_NE(HeightOf(Handle(field)), before);
  EXPECT_EQ(HeightOf(Handle(field)), -32);
}

TEST_F(DesignTest, AFieldBecomesLockedAndCentred) {
  field.SetLocked(true);
  field.SetAlignment(Alignment::kCentre);
  EXPECT_NE(StyleOf(field) & ES_READONLY, 0u);
  EXPECT_NE(StyleOf(field) & ES_CENTER, 0u);
  EXPECT_EQ(Shown(field), u"texte");
}

TEST_F(DesignTest, TheWindowMadeAnewStandsWhereTheFormerStood) {
  const RECT before = PlaceOf(field);
  const HWND above = GetWindow(Handle(field), GW_HWNDPREV);
  field.SetLocked(true);
  const RECT after = PlaceOf(field);
  EXPECT_TRUE(EqualRect(&before, &after));
  EXPECT_EQ(GetWindow(Handle(field), GW_HWNDPREV), above);
}

TEST_F(DesignTest, TheFocusStaysWhereItWas) {
  SetFocus(Handle(field));
  field.SetFont({u"Arial", 12});
  EXPECT_EQ(GetFocus(), Handle(field));
}

TEST_F(DesignTest, WhatTheUserDoesStillReachesTheModel) {
  int clicks = 0;
  button.on_click = Count(clicks);
  button.SetPicture(u"Quitter");
  Push(button);
  EXPECT_EQ(clicks, 1);
  field.SetFont({u"Arial", 12});
  SendMessageW(Handle(field), WM_CHAR, u'x', 0);
  Rest();
  EXPECT_NE(field.GetText().find(u'x'), Text::npos);
}

}  // namespace
}  // namespace trovex::win32
