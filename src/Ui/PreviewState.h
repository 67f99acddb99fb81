// Which of a document's pages a preview shows, how large and where: no window system in it.
#pragma once

#include <vector>

#include "Ui/Pages.h"

namespace trovex {

class PreviewState {
 public:
  enum class Fit { kPage, kWidth };

  // The document has a page at least.
  explicit PreviewState(const Pages& pages) : pages_(pages) {}

  // The first page shown, from 0, and how many are shown beside each other.
  std::size_t First() const { return first_; }
  std::size_t Shown() const;
  std::size_t Count() const { return pages_.pages.size(); }
  // Each gives whether anything changed. With two pages the left one has an odd number.
  bool GoTo(std::size_t page);
  bool Next();
  bool Previous();
  void ShowTwo(bool two);
  void SetFit(Fit fit) { fit_ = fit; }
  bool ShowsTwo() const { return two_; }
  Fit GetFit() const { return fit_; }

  // A page's place in pixels.
  struct Sheet {
    int left, top, width, height;
    std::size_t page;
  };
  struct Layout {
    int dpi;
    std::vector<Sheet> sheets;
    int height;  // of all that can be scrolled to
  };
  // How the pages shown lie in an area of that many pixels: all of them in it, or as wide as it is.
  Layout In(int width, int height) const;

 private:
  Extent Paper() const;

  const Pages& pages_;
  std::size_t first_ = 0;
  bool two_ = false;
  Fit fit_ = Fit::kPage;
};

}  // namespace trovex
