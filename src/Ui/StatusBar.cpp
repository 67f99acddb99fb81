#include "Ui/StatusBar.h"

#include <algorithm>

namespace trovex {
namespace {

template <typename Panels>
auto& Find(Panels& panels, TextView key) {
  const auto found = std::find_if(panels.begin(), panels.end(),
                                  [&](const auto& panel) { return panel.key == key; });
  if (found == panels.end()) throw RuntimeError(ErrorNumber::kNoSuchElement, u"StatusBar");
  return *found;
}

}  // namespace

void StatusBar::AddPanel(Text key, PanelStyle style) {
  panels_.push_back({std::move(key), style, {}});
}

const Text& StatusBar::PanelText(TextView key) const {
  return Find(panels_, key).text;
}

void StatusBar::SetPanelText(TextView key, TextView text) {
  Find(panels_, key).text = text;
  Notify(Property::kText);
}

}  // namespace trovex
