#include "Ui/PreviewState.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace trovex {
namespace {

constexpr int kGap = 12;  // pixels around each page
constexpr int kLeastDpi = 10, kMostDpi = 600;
constexpr double kTwipsPerInch = 1440;

int Pixels(double twips, int dpi) {
  return static_cast<int>(std::lround(twips * dpi / kTwipsPerInch));
}

}  // namespace

std::size_t PreviewState::Shown() const {
  return std::min<std::size_t>(two_ ? 2 : 1, Count() - first_);
}

bool PreviewState::GoTo(std::size_t page) {
  const std::size_t step = two_ ? 2 : 1;
  const std::size_t first = std::min(page, Count() - 1) / step * step;
  return std::exchange(first_, first) != first;
}

bool PreviewState::Next() {
  return first_ + Shown() < Count() && GoTo(first_ + Shown());
}

bool PreviewState::Previous() {
  return first_ > 0 && GoTo(first_ - (two_ ? 2 : 1));
}

void PreviewState::ShowTwo(bool two) {
  two_ = two;
  GoTo(first_);
}

// The area that the largest of the pages shown takes.
Extent PreviewState::Paper() const {
  Extent paper;
  for (std::size_t i = first_; i < first_ + Shown(); ++i) {
    paper.width = std::max(paper.width, pages_.pages[i].paper.width);
    paper.height = std::max(paper.height, pages_.pages[i].paper.height);
  }
  return paper;
}

PreviewState::Layout PreviewState::In(int width, int height) const {
  const Extent paper = Paper();
  const int across = two_ ? 2 : 1;
  const double wide = (width - kGap * (across + 1)) * kTwipsPerInch / (paper.width * across);
  const double high = (height - 2 * kGap) * kTwipsPerInch / paper.height;
  const double fitting = fit_ == Fit::kPage ? std::min(wide, high) : wide;
  Layout layout;
  layout.dpi = std::clamp(static_cast<int>(fitting), kLeastDpi, kMostDpi);
  const int sheet_width = Pixels(paper.width, layout.dpi);
  const int sheet_height = Pixels(paper.height, layout.dpi);
  layout.height = sheet_height + 2 * kGap;
  int left = std::max(kGap, (width - across * sheet_width - (across - 1) * kGap) / 2);
  const int top = std::max(kGap, (height - sheet_height) / 2);
  for (std::size_t i = 0; i < Shown(); ++i, left += sheet_width + kGap) {
    const Extent own = pages_.pages[first_ + i].paper;
    layout.sheets.push_back(
        {left, top, Pixels(own.width, layout.dpi), Pixels(own.height, layout.dpi), first_ + i});
  }
  return layout;
}

}  // namespace trovex
