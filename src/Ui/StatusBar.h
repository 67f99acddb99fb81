// The bar at a form's lower edge, with panels known by keys.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

class StatusBar : public Control {
 public:
  // What a panel shows: a text of the program's, or the state of a key of the keyboard.
  enum class PanelStyle { kText, kCapsLock, kNumLock, kInsert };
  struct Panel {
    Text key;
    PanelStyle style = PanelStyle::kText;
    Text text;
  };

  StatusBar() : Control(ControlKind::kStatusBar) {}

  const std::vector<Panel>& Panels() const { return panels_; }
  void AddPanel(Text key, PanelStyle style);
  // Raise kNoSuchElement for a key that no panel has.
  const Text& PanelText(TextView key) const;
  void SetPanelText(TextView key, TextView text);

 private:
  std::vector<Panel> panels_;
};

}  // namespace trovex
