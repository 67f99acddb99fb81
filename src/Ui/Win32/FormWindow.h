// The window of one form.
#pragma once

#include <map>
#include <vector>

#include "Ui/Form.h"
#include "Ui/Win32/NativeControl.h"

namespace trovex::win32 {

class Win32View;

class FormWindow {
 public:
  FormWindow(Form& form, Win32View& view);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  Form& Model() const { return form_; }
  HWND Handle() const { return handle_; }
  Win32View& View() const { return view_; }
  Scale GetScale() const { return scale_; }
  Shared& GetShared() const;
  NativeControl* Of(const Control& control) const;
  NativeControl* Of(HWND window) const;

  // Mirrors a property of the form or of one of its controls.
  void Changed(Control& control, Property property);
  void Repaint(Control& control);
  // Shows what was put off.
  void Flush();
  void RequestFlush();
  // Draws while the form paints; at other times asks for a painting.
  void Draw(const Stroke& stroke);

  // A key message for the form or one of its controls; true if it is used up.
  bool OnKeyMessage(const MSG& message);
  // Runs the program's reaction to the user; a run-time error that no handler catches ends the
  // program.
  void Run(const Event& reaction);

  // Brush of the form's own background.
  HBRUSH Background() const { return background_; }

 private:
  // Posted to itself: the program has come to rest, what was put off is shown.
  static constexpr UINT kFlushMessage = WM_APP + 1;
  // Posted to itself: drives are to be read again.
  static constexpr UINT kDrivesMessage = WM_APP + 2;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT OnMessage(UINT message, WPARAM w, LPARAM l);
  bool Route(UINT message, WPARAM w, LPARAM l, LRESULT& result);

  void CreateWindowAndControls();
  void LowerContainers();
  void MirrorForm(Property property);
  void MakeAnew(NativeControl& former);
  void PlaceWindow();
  void OnSize(WPARAM kind);
  void OnMove();
  void OnDpiChanged(int dpi, const RECT& proposed);
  void OnPaint();
  void MoveFocus(bool backwards);
  void RequestDrives();
  RECT OuterRectangle() const;

  Form& form_;
  Win32View& view_;
  HWND handle_ = nullptr;
  Scale scale_;
  HBRUSH background_ = nullptr;
  std::vector<std::unique_ptr<NativeControl>> controls_;
  std::map<const Control*, NativeControl*> by_model_;
  HDC painting_ = nullptr;
  bool placing_ = false;
  bool flush_requested_ = false;
  bool drives_requested_ = false;
  bool left_ = false;  // another window was active since
};

}  // namespace trovex::win32
