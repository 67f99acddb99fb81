// Tabs over pages of controls.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

class TabControl : public Control {
 public:
  TabControl() : Control(ControlKind::kTabControl) {}

  const std::vector<Text>& Captions() const { return captions_; }
  void SetCaptions(std::vector<Text> captions) {
    Set(captions_, std::move(captions), Property::kDesign);
  }
  // Names of the pictures beside the captions, in the order of the tabs; none where it is empty.
  const std::vector<Text>& Pictures() const { return pictures_; }
  void SetPictures(std::vector<Text> names) { Set(pictures_, std::move(names), Property::kDesign); }

  int Tab() const { return tab_; }
  // Another tab raises the click with the former tab's number, the one already shown raises
  // nothing; one that does not exist raises kInvalidProperty.
  void SetTab(int tab);

  std::function<void(int previous_tab)> on_tab_click;

 private:
  std::vector<Text> captions_;
  std::vector<Text> pictures_;
  int tab_ = 0;
};

}  // namespace trovex
