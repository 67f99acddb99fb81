// The end of all forms at the end of a view.
#pragma once

#include "Ui/Form.h"

namespace trovex {

// Unloads what is still loaded when its block ends: no form outlives the view that shows it.
class FormsScope {
 public:
  FormsScope() = default;
  ~FormsScope() {
    // One whose unload event failed goes without it the next time.
    while (!LoadedForms().empty()) IgnoringErrors([] { LoadedForms().back()->Unload(); });
  }
  FormsScope(const FormsScope&) = delete;
  FormsScope& operator=(const FormsScope&) = delete;
};

}  // namespace trovex
