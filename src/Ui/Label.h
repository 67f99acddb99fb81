// Controls that show a caption or a picture and hold little else.
#pragma once

#include "Ui/Alignment.h"
#include "Ui/Control.h"
#include "Ui/Font.h"

namespace trovex {

// Shared by the kinds that show one line of text: label, button, option button, panel, frame.
class Captioned : public Control {
 public:
  using Control::Control;

  const Text& Caption() const { return caption_; }
  void SetCaption(TextView caption);
  unsigned ForeColor() const { return fore_color_; }
  void SetForeColor(unsigned colour);
  const Font& GetFont() const { return font_; }
  void SetFont(Font font) { font_ = std::move(font); }
  Alignment GetAlignment() const { return alignment_; }
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }

 private:
  Text caption_;
  unsigned fore_color_ = 0;
  Font font_;
  Alignment alignment_ = Alignment::kLeft;
};

class Label : public Captioned {
 public:
  Label() : Captioned(ControlKind::kLabel) {}
};

// Carries a text with a frame around it.
class Panel : public Captioned {
 public:
  Panel() : Captioned(ControlKind::kPanel) {}
};

// Drawn around a group of controls, with its caption in the upper edge. What it surrounds stands
// beside it on the form, not in it.
class Frame : public Captioned {
 public:
  Frame() : Captioned(ControlKind::kFrame) {}
};

// A command button, with a picture over its caption where the form names one.
class Button : public Captioned {
 public:
  Button() : Captioned(ControlKind::kButton) {}

  const Text& Picture() const { return picture_; }
  void SetPicture(Text name) { picture_ = std::move(name); }
  // What a click of the user's does.
  void Press() { Raise(on_click); }

 private:
  Text picture_;
};

// One of a group: choosing one releases the others of its control array.
class OptionButton : public Captioned {
 public:
  OptionButton() : Captioned(ControlKind::kOptionButton) {}

  bool Value() const { return value_; }
  // Setting it on raises the click.
  void SetValue(bool value);
  // The same without the click, for a choice made before the user sees it.
  void Preset(bool value);

 private:
  void ReleaseOthers();

  bool value_ = false;
};

// A line of the form at rest: the place where an engraved line is drawn.
class Line : public Control {
 public:
  Line() : Control(ControlKind::kLine) {}

  double X1() const { return x1_; }
  double Y1() const { return y1_; }
  double X2() const { return x2_; }
  double Y2() const { return y2_; }
  void SetPoints(double x1, double y1, double x2, double y2);
  void SetX2(double x2) { SetPoints(x1_, y1_, x2, y2_); }

 private:
  double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
};

// A filled rectangle.
class Shape : public Control {
 public:
  Shape() : Control(ControlKind::kShape) {}
};

}  // namespace trovex
