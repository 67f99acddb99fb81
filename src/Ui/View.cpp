#include "Ui/View.h"

#include <cassert>

namespace trovex {
namespace {

View* current_view = nullptr;

}  // namespace

View& CurrentView() {
  assert(current_view != nullptr);
  return *current_view;
}

ViewScope::ViewScope(View& view) : former_(current_view) {
  current_view = &view;
}

ViewScope::~ViewScope() {
  current_view = former_;
}

}  // namespace trovex
