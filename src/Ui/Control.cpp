#include "Ui/Control.h"

#include "Ui/Form.h"

namespace trovex {

void Control::SetName(Text name, int index) {
  name_ = std::move(name);
  index_ = index;
}

void Control::SetLeft(double left) {
  Move({left, place_.top, place_.width, place_.height});
}
void Control::SetTop(double top) {
  Move({place_.left, top, place_.width, place_.height});
}
void Control::SetWidth(double width) {
  Move({place_.left, place_.top, width, place_.height});
}

void Control::Move(const Place& place) {
  Set(place_, place, Property::kPlace);
}
void Control::SetVisible(bool visible) {
  Set(visible_, visible, Property::kVisible);
}
void Control::SetEnabled(bool enabled) {
  Set(enabled_, enabled, Property::kEnabled);
}
void Control::SetBackColor(unsigned colour) {
  Set(back_color_, colour, Property::kColour);
}
void Control::SetForeColor(unsigned colour) {
  Set(fore_color_, colour, Property::kColour);
}
void Control::SetToolTip(Text tip) {
  Set(tool_tip_, std::move(tip), Property::kDesign);
}
void Control::SetAccessibleName(Text name) {
  Set(accessible_name_, std::move(name), Property::kDesign);
}
void Control::SetTabOrder(int order) {
  Set(tab_order_, order, Property::kDesign);
}
void Control::SetFont(Font font) {
  Set(font_, std::move(font), Property::kDesign);
}
void Control::SetAlignment(Alignment alignment) {
  Set(alignment_, alignment, Property::kDesign);
}

void Control::SetFocus() {
  if (View* view = AttachedView()) view->SetFocus(*this);
}

void Control::Refresh() {
  if (View* view = AttachedView()) view->Repaint(*this);
}

void Control::Notify(Property property) {
  if (View* view = AttachedView()) view->Changed(*this, property);
}

View* Control::AttachedView() const {
  return parent_ == nullptr ? nullptr : parent_->GetView();
}

}  // namespace trovex
