// What all controls share: a name, a place, visibility, a tag and the mouse's event.
#pragma once

#include <functional>

#include "Platform/RuntimeError.h"
#include "Ui/Alignment.h"
#include "Ui/Font.h"
#include "Ui/View.h"

namespace trovex {

class Form;

// An event of a control; an empty one is passed over.
using Event = std::function<void()>;

// Raises an event if somebody listens.
inline void Raise(const Event& event) {
  if (event) event();
}

enum class ControlKind {
  kForm,
  kGrid,
  kButton,
  kLabel,
  kTextBox,
  kListBox,
  kDriveListBox,
  kDirListBox,
  kFileListBox,
  kPictureBox,
  kImage,
  kTabControl,
  kLine,
  kShape,
  kStatusBar,
  kOptionButton,
  kCheckBox,
  kScrollBar,
  kPanel,
  kFrame,
  kCommonDialog,
  kPreviewSurface,
};

// Left, top, width and height in twips, within the parent.
struct Place {
  double left = 0, top = 0, width = 0, height = 0;
  bool operator==(const Place&) const = default;
};

// A plain object: setting a property raises the events that it must raise, nested and at once, and
// then tells the view. Without a view (a form that was not loaded) it works all the same.
class Control {
 public:
  explicit Control(ControlKind kind) : kind_(kind) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  ControlKind Kind() const { return kind_; }
  const Text& Name() const { return name_; }
  // Number in its control array, -1 outside one.
  int Index() const { return index_; }
  void SetName(Text name, int index);
  // The form that the control stands on; null before it was put on one.
  Form* Parent() const { return parent_; }
  void SetParent(Form* parent) { parent_ = parent; }
  // The control within the form that it stands in, null for the form itself.
  Control* Container() const { return container_; }
  void SetContainer(Control* container) { container_ = container; }
  // The page of the container that shows the control, where the container has pages.
  int Page() const { return page_; }
  void SetPage(int page) { page_ = page; }

  const Place& GetPlace() const { return place_; }
  double Left() const { return place_.left; }
  double Top() const { return place_.top; }
  double Width() const { return place_.width; }
  double Height() const { return place_.height; }
  void SetLeft(double left);
  void SetTop(double top);
  void SetWidth(double width);
  void Move(const Place& place);

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  const Text& Tag() const { return tag_; }
  void SetTag(Text tag) { tag_ = std::move(tag); }
  const Text& ToolTip() const { return tool_tip_; }
  void SetToolTip(Text tip);
  // What a screen reader says for a control whose own text does not tell; empty where it does.
  const Text& AccessibleName() const { return accessible_name_; }
  void SetAccessibleName(Text name);
  int TabOrder() const { return tab_order_; }
  void SetTabOrder(int order);
  unsigned BackColor() const { return back_color_; }
  void SetBackColor(unsigned colour);
  unsigned ForeColor() const { return fore_color_; }
  void SetForeColor(unsigned colour);
  const Font& GetFont() const { return font_; }
  void SetFont(Font font);
  Alignment GetAlignment() const { return alignment_; }
  void SetAlignment(Alignment alignment);

  void SetFocus();
  // Paints the control at once.
  void Refresh();

  Event on_mouse_move;
  Event on_click;
  Event on_dbl_click;

 protected:
  // Tells the view of the loaded form, if there is one.
  void Notify(Property property);
  // Gives a property its new value and tells the view, if that makes a difference.
  template <typename Value>
  void Set(Value& property, Value value, Property kind) {
    if (property == value) return;
    property = std::move(value);
    Notify(kind);
  }
  virtual View* AttachedView() const;

  Place place_;

 private:
  const ControlKind kind_;
  Text name_;
  int index_ = -1;
  Form* parent_ = nullptr;
  Control* container_ = nullptr;
  int page_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  Text tag_;
  Text tool_tip_;
  Text accessible_name_;
  int tab_order_ = -1;
  unsigned back_color_ = 0xFFFFFF;
  unsigned fore_color_ = 0;
  Font font_;
  Alignment alignment_ = Alignment::kLeft;
};

}  // namespace trovex
