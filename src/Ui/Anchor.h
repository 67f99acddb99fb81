// How the controls of a form follow its size: a pure computation over places.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "Ui/Control.h"

namespace trovex {

struct ControlSpec;

enum class Edge { kNone, kLeft, kRight, kTop, kBottom };

// One edge of a control kept at a distance from an edge of something else. The control moves along,
// or, where it stretches, its opposite edge stays.
struct Anchor {
  // Anchors take effect in the order of their steps, one that depends on another behind it; 0 is
  // none.
  int step = 0;
  Edge edge = Edge::kNone;
  bool stretches = false;
  // Name and number of the control whose edge is followed; null for what this one stands in.
  const char16_t* to = nullptr;
  int to_index = -1;
  Edge to_edge = Edge::kNone;
  double distance = 0;  // twips, to the right or downwards
};

// A control, by its row in the table, and where it is to be put.
struct Placement {
  std::size_t row = 0;
  Place place;
};

// Puts the controls of a table, which stand at `places`, into a client area of that size. `apply`
// is called for one step after another; controls of one step come in the order of the table. What
// stands on another page than `page` of its container is left alone.
void Arrange(std::span<const ControlSpec> controls, std::vector<Place> places, Extent client,
             int page, const std::function<void(const Placement&)>& apply);

}  // namespace trovex
