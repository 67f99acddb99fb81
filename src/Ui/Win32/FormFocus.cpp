// Where the focus of a form is, and where it goes.
#include <algorithm>
#include <limits>

#include "Ui/OptionButton.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

bool Reachable(const NativeControl& control) {
  const HWND window = control.Handle();
  const bool visible = (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
  return control.TakesFocus() && visible && IsWindowEnabled(window);
}

}  // namespace

std::vector<NativeControl*> FormWindow::GroupOf(const NativeControl& option) const {
  std::vector<NativeControl*> group;
  for (const auto& other : controls_) {
    const bool same = other->Model().Kind() == ControlKind::kOptionButton &&
                      other->Model().Name() == option.Model().Name();
    if (same && Reachable(*other)) group.push_back(other.get());
  }
  return group;
}

NativeControl* FormWindow::NextOption(const NativeControl& option, bool forwards) const {
  std::vector<NativeControl*> group = GroupOf(option);
  if (!forwards) std::reverse(group.begin(), group.end());
  const auto at = std::find(group.begin(), group.end(), &option);
  return at == group.end() || at + 1 == group.end() ? group.front() : *(at + 1);
}

// A group of options is one stop: the option that has the focus, or the chosen one, or the first.
bool FormWindow::IsStop(const NativeControl& control) const {
  if (!Reachable(control)) return false;
  if (control.Model().Kind() != ControlKind::kOptionButton) return true;
  const std::vector<NativeControl*> group = GroupOf(control);
  const auto first_that = [&](auto&& test) -> const NativeControl* {
    const auto found = std::find_if(group.begin(), group.end(), test);
    return found == group.end() ? nullptr : *found;
  };
  const auto* focused = first_that([](auto* option) { return option->Handle() == GetFocus(); });
  const auto* chosen = first_that(
      [](auto* option) { return static_cast<const OptionButton&>(option->Model()).Value(); });
  if (focused != nullptr) return focused == &control;
  return (chosen != nullptr ? chosen : group.front()) == &control;
}

// A control without a place in the order comes behind all that have one.
std::vector<NativeControl*> FormWindow::InOrder() const {
  std::vector<NativeControl*> order;
  for (const auto& control : controls_) order.push_back(control.get());
  const auto key = [](const NativeControl* control) {
    const int place = control->Model().TabOrder();
    return place < 0 ? std::numeric_limits<int>::max() : place;
  };
  std::stable_sort(order.begin(), order.end(),
                   [&](const auto* a, const auto* b) { return key(a) < key(b); });
  return order;
}

std::vector<NativeControl*> FormWindow::Stops() const {
  std::vector<NativeControl*> stops = InOrder();
  std::erase_if(stops, [this](const auto* control) { return !IsStop(*control); });
  return stops;
}

void FormWindow::MoveFocus(bool backwards) {
  std::vector<NativeControl*> stops = Stops();
  if (stops.empty()) return;
  if (backwards) std::reverse(stops.begin(), stops.end());
  const auto at = std::find(stops.begin(), stops.end(), Of(GetFocus()));
  const bool last = at == stops.end() || at + 1 == stops.end();
  ::SetFocus((last ? stops.front() : *(at + 1))->Handle());
}

void FormWindow::PassFocusOn() {
  if (focused_ != nullptr && Reachable(*focused_)) {
    ::SetFocus(focused_->Handle());
    return;
  }
  // To the first stop behind it, or from the last one to the first.
  std::vector<NativeControl*> order = InOrder();
  std::rotate(order.begin(), std::find(order.begin(), order.end(), focused_), order.end());
  const auto stop =
      std::find_if(order.begin(), order.end(), [this](const auto* next) { return IsStop(*next); });
  if (stop != order.end()) ::SetFocus((*stop)->Handle());
}

// The window of another program, or one above this form, keeps the focus that it has.
void FormWindow::Focus(const Control& control) {
  NativeControl* native = Of(control);
  if (native == nullptr || !Reachable(*native)) return;
  focused_ = native;
  if (GetActiveWindow() == handle_ && GetFocus() != native->Handle()) ::SetFocus(native->Handle());
}

void FormWindow::MendFocus() {
  if (GetActiveWindow() == handle_ && !IsChild(handle_, GetFocus())) PassFocusOn();
}

}  // namespace trovex::win32
