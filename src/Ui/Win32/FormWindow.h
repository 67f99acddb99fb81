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
  // The window of a control; null for one that the form itself draws.
  NativeControl* Of(const Control& control);
  NativeControl* Of(HWND window) const;

  // Mirrors a property of the form or of one of its controls.
  void Changed(Control& control, Property property);
  void Repaint(Control& control);
  // Shows what was put off.
  void Flush();
  void RequestFlush();
  // Draws while the form paints; at other times asks for a painting.
  void Draw(const Stroke& stroke);

  // Gives a control the focus: at once, or when the form is the active one.
  void Focus(const Control& control);
  // A control of the form has got it.
  void Focused(NativeControl& control) { focused_ = &control; }
  // The option beside the given one in its group, of those that can be reached.
  NativeControl* NextOption(const NativeControl& option, bool forwards) const;
  // Finds the focus another place where its control cannot keep it.
  void MendFocus();
  // The form is gone: its window leaves the screen and touches neither form nor controls again.
  void Abandon();

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
  // Posted to itself: the form stands, a screen reader may be told of its controls.
  static constexpr UINT kNamesMessage = WM_APP + 3;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT OnMessage(UINT message, WPARAM w, LPARAM l);
  bool Route(UINT message, WPARAM w, LPARAM l, LRESULT& result);

  void CreateWindowOfForm();
  void NeedControls();
  // The same as Of, null also before the windows are made.
  NativeControl* Known(const Control& control) const;
  void LowerContainers();
  void MirrorForm(Property property);
  void MakeAnew(NativeControl& former);
  void PlaceWindow();
  bool FitsClient() const;
  void Appear();
  void Disappear();
  void OnSize(WPARAM kind);
  void OnMove();
  // The client area's measures go to the model.
  void TellSize();
  void OnDpiChanged(int dpi, const RECT& proposed);
  // The outer size that the form has at that resolution; false where the system decides.
  bool SizeAt(int dpi, SIZE& size) const;
  // The system's colours are others now.
  void Recolour();
  void OnPaint();
  // The controls at which the Tab key stops, in its order.
  std::vector<NativeControl*> InOrder() const;
  std::vector<NativeControl*> Stops() const;
  bool IsStop(const NativeControl& control) const;
  // The options of the control's group that can be reached, in the order of the form.
  std::vector<NativeControl*> GroupOf(const NativeControl& option) const;
  void MoveFocus(bool backwards);
  void RequestDrives();
  // The form itself has got the focus: the control that had it last gets it, or the next one.
  void PassFocusOn();
  void OnDropFiles(HDROP drop);
  RECT OuterRectangle() const;

  Form& form_;
  Win32View& view_;
  HWND handle_ = nullptr;
  Scale scale_;
  HBRUSH background_ = nullptr;
  std::vector<std::unique_ptr<NativeControl>> controls_;
  std::map<const Control*, NativeControl*> by_model_;
  NativeControl* focused_ = nullptr;  // had the focus last, since the form was shown
  HDC painting_ = nullptr;
  bool controls_made_ = false;
  bool placing_ = false;
  bool flush_requested_ = false;
  bool drives_requested_ = false;
  bool left_ = false;  // another window was active since
  bool abandoned_ = false;
};

}  // namespace trovex::win32
