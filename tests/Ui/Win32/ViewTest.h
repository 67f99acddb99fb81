// Ground of the tests of the Windows view: a form with a test's own controls in real windows, and a
// user who acts by messages to them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Win32/Names.h"
#include "Ui/Form.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/Win32View.h"
#include "support/TestDisc.h"

namespace trovex::win32 {

using trovex::test::TestDisc;

class ViewTest : public ::testing::Test {
 protected:
  ~ViewTest() override {
    if (form_) form_->Unload();
  }

  // A form with these controls, not yet loaded.
  Form& Make(std::vector<ControlSpec> controls) {
    controls_ = std::move(controls);
    spec_ = {u"Essai", u"Essai", 6000, 4500, true, 0xC0C0C0, controls_};
    form_ = std::make_unique<Form>(spec_);
    return *form_;
  }
  // The form on the screen, at rest.
  void Show() {
    form_->Load();
    form_->Show();
    Rest();
  }
  // The only control of a shown form.
  template <typename T>
  T& ShowOne(ControlKind kind, Place place = {150, 150, 3000, 1500}) {
    Make({{kind, u"Lui", -1, place, u"Texte"}});
    Show();
    return One<T>();
  }
  template <typename T>
  T& One() {
    return form_->Get<T>(u"Lui");
  }

  // Handles all messages that are waiting, and no more: the message that ends the loop comes last.
  void Rest() {
    PostQuitMessage(0);
    view.Run();
  }

  HWND FormHandle() const { return view.Of(*form_)->Handle(); }
  HWND Handle(const Control& control) const { return view.Of(*form_)->Of(control)->Handle(); }
  LRESULT Ask(const Control& control, UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(Handle(control), message, w, l);
  }
  Text Shown(HWND window) const {
    Text text(256, u'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, Wide(text), 256)));
    return text;
  }
  Text Shown(const Control& control) const { return Shown(Handle(control)); }
  // The window's place in the form's client area, in pixels.
  RECT PlaceOf(const Control& control) const {
    RECT at;
    GetWindowRect(Handle(control), &at);
    MapWindowPoints(nullptr, FormHandle(), reinterpret_cast<POINT*>(&at), 2);
    return at;
  }

  void Press(const Control& control, WPARAM key) {
    PostMessageW(Handle(control), WM_KEYDOWN, key, 1);
    PostMessageW(Handle(control), WM_KEYUP, key, 1);
    Rest();
  }
  void Click(const Control& control, int x, int y) {
    PostMessageW(Handle(control), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(Handle(control), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Rest();
  }
  void DoubleClick(const Control& control, int x, int y) {
    Click(control, x, y);
    PostMessageW(Handle(control), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(Handle(control), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Rest();
  }
  // A counter of an event's occurrences.
  Event Count(int& counter) {
    return [&counter] { ++counter; };
  }

  TestDisc disc;
  Win32View view;

 private:
  ViewScope view_scope_{view};
  std::vector<ControlSpec> controls_;
  FormSpec spec_{};
  std::unique_ptr<Form> form_;

 protected:
  Form& TheForm() { return *form_; }
};

}  // namespace trovex::win32
