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
void Control::SetHeight(double height) {
  Move({place_.left, place_.top, place_.width, height});
}

void Control::Move(const Place& place) {
  if (place == place_) return;
  place_ = place;
  Notify(Property::kPlace);
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Notify(Property::kVisible);
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Notify(Property::kEnabled);
}

void Control::SetBackColor(unsigned colour) {
  if (colour == back_color_) return;
  back_color_ = colour;
  Notify(Property::kColour);
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
