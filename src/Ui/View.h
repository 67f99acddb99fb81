// The port through which a window system shows the forms. A view holds no rule and no text of its
// own: it creates, mirrors and reports.
#pragma once

#include <vector>

#include "Platform/Text.h"

namespace trovex {

class Control;
class Form;
class CommonDialog;
struct Font;
struct Preview;

// What of a control has changed.
enum class Property {
  kText,  // text, caption or a status panel
  kVisible,
  kEnabled,
  kPlace,  // left, top, width or height
  kColour,
  kPicture,
  kList,       // entries of a list, rows of a grid
  kSelection,  // ListIndex, current cell, tab, value of an option
  kCell,       // the text of a grid's current cell
  kMenu,       // entries of a form's window menu
  kDesign,     // what a window is made with: font, styles, tool tip, place in the order of Tab
  kOther,
};

// Styles of the platform's message box, and its answers.
enum class BoxStyle { kErreur = 16, kQuestion = 35, kInfo = 64 };
enum class BoxAnswer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

// A message box as data: every view shows the same.
struct Box {
  BoxStyle style = BoxStyle::kInfo;
  Text title;
  Text text;
  bool operator==(const Box&) const = default;
};

// Values of the mouse pointer.
enum class Pointer { kDefault = 0, kHourglass = 11 };

// Width and height in twips.
struct Extent {
  double width = 0;
  double height = 0;
};

// A straight line on a form, in twips; colours as the system writes them (0x80000010 and the like
// stand for colours of the desktop).
struct Stroke {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  unsigned colour = 0;
  bool operator==(const Stroke&) const = default;
};

// How lines of a font stand: from a line's top to what its letters stand on, and from line to line,
// in twips.
struct FontMeasure {
  double ascent = 0;
  double line = 0;
};

class View {
 public:
  virtual ~View() = default;

  // A form was loaded or is about to be unloaded; it is hidden at both moments.
  virtual void Attach(Form& form) = 0;
  virtual void Detach(Form& form) = 0;
  // A property of a control on an attached form (or the form's own) has a new value. Mirroring it
  // raises no event of the user's.
  virtual void Changed(Control& control, Property property) = 0;
  // Paints a control or form at once.
  virtual void Repaint(Control& control) = 0;
  // Gives a control the input focus.
  virtual void SetFocus(Control& control) = 0;
  // Shows a loaded form, which is hidden, before the one that the user has in front, which waits
  // beneath it; runs until the form is hidden or unloaded.
  virtual void RunModal(Form& form) = 0;
  // Takes a form out of or into the topmost order.
  virtual void SetTopmost(Form& form, bool topmost) = 0;
  // Puts a form before all others that are not topmost.
  virtual void BringToFront(Form& form) = 0;
  // Draws a line on the form's surface, while the form paints.
  virtual void DrawStroke(Form& form, const Stroke& stroke) = 0;

  // Modal boxes and dialogs of the system.
  virtual BoxAnswer ShowBox(const Box& box) = 0;
  // Lets the user choose a file; false if that was cancelled.
  virtual bool ShowFileDialog(CommonDialog& dialog) = 0;
  // Opens the help viewer on the dialog's help file, command and key.
  virtual void ShowHelp(CommonDialog& dialog) = 0;

  // Measures of printed text, in twips: not rounded to the pixels of a screen, and the same for a
  // document's whole life.
  virtual double TextWidth(TextView text, const Font& font) = 0;
  virtual FontMeasure MeasureFont(const Font& font) = 0;
  // Shows a document's pages and prints them as the user likes; returns when the user has seen
  // enough.
  virtual void ShowPreview(const Preview& preview) = 0;

  virtual void SetPointer(Pointer pointer) = 0;
  // Between true and false what the user does with mouse and keyboard is lost, but for answers to
  // boxes. Calls nest.
  virtual void IgnoreInput(bool ignore) = 0;
  virtual Extent ScreenSize() = 0;
};

// The view of the process. It must have been set.
View& CurrentView();

// Puts a view in place for a time; the former one comes back at the end. The caller owns it.
class ViewScope {
 public:
  explicit ViewScope(View& view);
  ~ViewScope();
  ViewScope(const ViewScope&) = delete;
  ViewScope& operator=(const ViewScope&) = delete;

 private:
  View* former_;
};

// A command that holds the program's one thread for long: what the user does meanwhile must not be
// done behind it.
class InputBreak {
 public:
  InputBreak() : view_(CurrentView()) { view_.IgnoreInput(true); }
  ~InputBreak() { view_.IgnoreInput(false); }
  InputBreak(const InputBreak&) = delete;
  InputBreak& operator=(const InputBreak&) = delete;

 private:
  View& view_;
};

}  // namespace trovex
