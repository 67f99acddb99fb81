// The view of the Windows program.
#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "Ui/View.h"
#include "Ui/Win32/FormWindow.h"
#include "Ui/Win32/ModalLevel.h"
#include "Ui/Win32/PagePainter.h"

namespace trovex::win32 {

class PreviewWindow;

class Win32View : public View {
 public:
  Win32View();
  ~Win32View() override;

  // Runs until the program ends; rethrows the error that ended it.
  void Run();
  // Ends the loops, the modal ones too.
  void End() { ended_ = true; }
  // What an error that no handler catches does: the first one is told to the user while
  // everything still stands, and ends the program.
  void Fail(std::exception_ptr failure);
  bool Failed() const { return failure_ != nullptr; }
  // How the user is told; nothing by default.
  std::function<void(std::exception_ptr)> on_failure;

  Shared& GetShared() { return shared_; }
  PrintMeasure& Measure() { return measure_; }
  Pointer GetPointer() const { return pointer_; }
  FormWindow* Of(const Form& form) const;
  // A window is about to leave the screen: what waits beneath it is the user's again.
  void Leaves(HWND window);

  void Attach(Form& form) override;
  void Detach(Form& form) override;
  void Changed(Control& control, Property property) override;
  void Repaint(Control& control) override;
  void SetFocus(Control& control) override;
  void RunModal(Form& form) override;
  void SetTopmost(Form& form, bool topmost) override;
  void BringToFront(Form& form) override;
  void DrawStroke(Form& form, const Stroke& stroke) override;
  BoxAnswer ShowBox(const Box& box) override;
  bool ShowFileDialog(CommonDialog& dialog) override;
  void ShowHelp(CommonDialog& dialog) override;
  double TextWidth(TextView text, const Font& font) override;
  FontMeasure MeasureFont(const Font& font) override;
  void ShowPreview(const Preview& preview) override;
  void SetPointer(Pointer pointer) override;
  void IgnoreInput(bool ignore) override;
  Extent ScreenSize() override;

 private:
  FormWindow* WindowOf(Control& control) const;
  // The windows of forms on the screen, and that of a preview.
  std::vector<HWND> OnScreen() const;
  // Window that boxes and dialogs belong to: the one of those that lies above the others.
  HWND Owner() const;
  // Takes what the user did, and nobody has seen yet, out of the queue.
  static void DropInput();
  // Handles one message; false at the end of the program.
  bool PumpOne();
  void HandOut(MSG& message);
  // Shows a window above the present owner, which waits, and hands messages out while `open`.
  void RunAbove(HWND window, const std::function<void()>& show, const std::function<bool()>& open);

  Shared shared_;
  PrintMeasure measure_{shared_.fonts};
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  std::vector<std::unique_ptr<FormWindow>> gone_;  // detached while a message of theirs was handled
  Pointer pointer_ = Pointer::kDefault;
  PreviewWindow* preview_ = nullptr;  // while one is shown
  std::vector<ModalLevel*> levels_;   // of the loops that run, the outermost first
  int ignoring_ = 0;
  bool ended_ = false;
  std::exception_ptr failure_;
};

}  // namespace trovex::win32
