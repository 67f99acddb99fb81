#include "Ui/Anchor.h"

#include <algorithm>

#include "Ui/FormSpec.h"

namespace trovex {
namespace {

double EdgeOf(const Place& place, Edge edge) {
  switch (edge) {
    case Edge::kLeft:
      return place.left;
    case Edge::kRight:
      return place.left + place.width;
    case Edge::kTop:
      return place.top;
    case Edge::kBottom:
      return place.top + place.height;
    case Edge::kNone:
      break;
  }
  return 0;
}

// Brings one edge of a place to a position.
void Bring(Place& place, const Anchor& anchor, double position) {
  const double by = position - EdgeOf(place, anchor.edge);
  const bool across = anchor.edge == Edge::kLeft || anchor.edge == Edge::kRight;
  const bool far = anchor.edge == Edge::kRight || anchor.edge == Edge::kBottom;
  double& start = across ? place.left : place.top;
  double& size = across ? place.width : place.height;
  if (!anchor.stretches || !far) start += by;
  if (anchor.stretches) size += far ? by : -by;
}

class Arranger {
 public:
  Arranger(std::span<const ControlSpec> controls, std::vector<Place> places, Extent client)
      : controls_(controls), places_(std::move(places)), client_(client) {}

  void Follow(std::size_t row, const Anchor& anchor) {
    Bring(places_[row], anchor, EdgeOf(Followed(row, anchor), anchor.to_edge) + anchor.distance);
  }
  const Place& At(std::size_t row) const { return places_[row]; }

 private:
  std::size_t RowOf(TextView name, int index) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
      return control.index == index && name == control.name;
    });
    return static_cast<std::size_t>(found - controls_.begin());
  }

  // In the coordinates of the control: within what it stands in.
  Place Followed(std::size_t row, const Anchor& anchor) const {
    if (anchor.to != nullptr) return places_[RowOf(anchor.to, anchor.to_index)];
    const char16_t* container = controls_[row].traits.container;
    if (container == nullptr) return {0, 0, client_.width, client_.height};
    const Place& around = places_[RowOf(container, -1)];
    return {0, 0, around.width, around.height};
  }

  std::span<const ControlSpec> controls_;
  std::vector<Place> places_;
  Extent client_;
};

int StepOf(const ControlSpec& control) {
  return control.traits.anchors[0].step;
}

}  // namespace

void Arrange(std::span<const ControlSpec> controls, std::vector<Place> places, Extent client,
             int page, const std::function<void(const Placement&)>& apply) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < controls.size(); ++row) {
    const ControlTraits& traits = controls[row].traits;
    const bool shown = traits.container == nullptr || traits.page == page;
    if (StepOf(controls[row]) != 0 && shown) rows.push_back(row);
  }
  std::stable_sort(rows.begin(), rows.end(), [&](std::size_t a, std::size_t b) {
    return StepOf(controls[a]) < StepOf(controls[b]);
  });
  Arranger arranger(controls, std::move(places), client);
  for (const std::size_t row : rows) {
    for (const Anchor& anchor : controls[row].traits.anchors) {
      if (anchor.step != 0) arranger.Follow(row, anchor);
    }
    apply({row, arranger.At(row)});
  }
}

}  // namespace trovex
