// The window of one control.
#pragma once

#include <memory>

#include "Ui/Win32/Colours.h"
#include "Ui/Win32/Fonts.h"
#include "Ui/Win32/Pictures.h"

namespace trovex::win32 {

class FormWindow;

// What the windows of a view share.
struct Shared {
  Colours colours;
  Fonts fonts;
  ResourceIcons icons;
  ResourceBitmaps bitmaps;
};

// Creates the window, mirrors properties into it and hands the user's doings to the model. A mirror
// never raises the user's event: what the window itself reports meanwhile is passed over.
class NativeControl {
 public:
  NativeControl(Control& model, FormWindow& form) : model_(model), form_(form) {}
  virtual ~NativeControl();
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  Control& Model() const { return model_; }
  HWND Handle() const { return handle_; }
  // True if the Tab key may stop here.
  virtual bool TakesFocus() const { return true; }

  // Shows the property's new value.
  void Mirror(Property property);
  // Shows what was put off until the program comes to rest.
  virtual void Flush() {}
  // Place, font and pictures at the form's present scale.
  virtual void Rescale();
  // The system's colours are others now.
  virtual void Recolour();

  // Says what the control is to those who cannot see it.
  void TellName();

  // Messages that the form's procedure routes here. A result of false leaves the message alone.
  virtual void OnCommand(WORD /*code*/) {}
  virtual bool OnNotify(NMHDR& /*header*/, LRESULT& /*result*/) { return false; }
  // What a part of the control reports to it, a list view's header for instance; it has acted on
  // it.
  virtual void OnPartNotify(const NMHDR& /*header*/) {}
  virtual void OnScroll(WORD /*code*/) {}
  virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}
  // Colours of a static or edit window; null for the usual ones.
  virtual HBRUSH OnColour(HDC /*dc*/) { return nullptr; }
  // The left button or a key went down on the window, which has not acted on it yet.
  virtual void OnInput(UINT /*message*/) {}
  // A key pressed while the control has the focus; true if it is used up.
  virtual bool OnKey(WPARAM /*key*/) { return false; }

 protected:
  // Creates the child window, hidden or not by the model, with the given class and styles.
  void Create(const wchar_t* window_class, DWORD style, DWORD extended_style = 0);
  virtual void MirrorProperty(Property property) = 0;
  virtual Font ModelFont() const { return {}; }
  // The window's rectangle within the form's client area.
  virtual RECT Rectangle() const;
  // The Ctrl key alone, without the Alt that makes other characters with it.
  static bool ControlHeld() { return GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0; }
  bool Mirroring() const { return mirroring_; }
  // True while the window is told that it gets the focus.
  bool GettingFocus() const { return getting_focus_; }
  // For a text of that colour on the form itself: prepares the drawing, gives the background.
  HBRUSH OnSurface(HDC dc, unsigned text) const;
  FormWindow& Owner() const { return form_; }
  Scale GetScale() const;
  Shared& GetShared() const;
  LRESULT Send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(handle_, message, w, l);
  }

 private:
  static LRESULT CALLBACK Subclass(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                   DWORD_PTR data);
  void ApplyVisible();

  Control& model_;
  FormWindow& form_;
  HWND handle_ = nullptr;
  bool mirroring_ = false;
  bool getting_focus_ = false;
  POINT last_mouse_ = {-1, -1};
};

// The window for a control's kind; null for kinds that the form itself draws.
std::unique_ptr<NativeControl> CreateNativeControl(Control& model, FormWindow& form);

}  // namespace trovex::win32
