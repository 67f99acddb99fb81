#include "Ui/TabControl.h"

namespace trovex {

void TabControl::SetTab(int tab) {
  if (tab < 0 || tab >= static_cast<int>(captions_.size())) {
    throw RuntimeError(ErrorNumber::kInvalidProperty, u"TabDlg.SSTab");
  }
  if (tab == tab_) return;
  const int previous = tab_;
  tab_ = tab;
  Notify(Property::kSelection);
  if (on_tab_click) on_tab_click(previous);
}

}  // namespace trovex
