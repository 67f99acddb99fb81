// A form as data: what stands where. The table holds no handle and no state.
#pragma once

#include <span>

#include "Ui/Control.h"

namespace trovex {

struct ControlSpec {
  ControlKind kind;
  const char16_t* name;
  int index;  // in its control array, -1 outside one
  Place place;
  const char16_t* caption = u"";
  bool visible = true;
  // The control that this one stands in, and on which page of it; null for the form itself.
  const char16_t* container = nullptr;
  int page = 0;
};

struct FormSpec {
  const char16_t* name;
  const char16_t* caption;
  double client_width, client_height;  // twips
  bool sizable;
  unsigned back_color;
  std::span<const ControlSpec> controls;
};

}  // namespace trovex
