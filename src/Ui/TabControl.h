// Tabs over pages of controls.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

class TabControl : public Control {
 public:
  TabControl() : Control(ControlKind::kTabControl) {}

  const std::vector<Text>& Captions() const { return captions_; }
  void SetCaptions(std::vector<Text> captions) { captions_ = std::move(captions); }

  int Tab() const { return tab_; }
  // Another tab raises the click with the former tab's number, the one already shown raises
  // nothing; one that does not exist raises kInvalidProperty.
  void SetTab(int tab);

  std::function<void(int previous_tab)> on_tab_click;

 private:
  std::vector<Text> captions_;
  int tab_ = 0;
};

}  // namespace trovex
