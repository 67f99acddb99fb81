// Ground of the tests of the Windows view: a form with a test's own controls in real windows.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/TestDisc.h"
#include "support/Win32/WindowUser.h"

namespace trovex::win32 {

class ViewTest : public ::testing::Test, protected test::WindowUser {
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
  Form& TheForm() { return *form_; }
  const FormSpec& TheSpec() const { return spec_; }
  HWND FormHandle() const { return Handle(*form_); }
  // A counter of an event's occurrences.
  Event Count(int& counter) {
    return [&counter] { ++counter; };
  }

  test::TestDisc disc;

 private:
  std::vector<ControlSpec> controls_;
  FormSpec spec_{};
  std::unique_ptr<Form> form_;
};

}  // namespace trovex::win32
