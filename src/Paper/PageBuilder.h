// Fills the pages of a document one after the other. Places are twips from the corner where the
// margins meet, so that (0, 0) is where a text begins.
#pragma once

#include <deque>

#include "Paper/FontRuler.h"
#include "Ui/Pages.h"

namespace trovex {

enum class Orientation { kPortrait = 1, kLandscape = 2 };

class PageBuilder {
 public:
  static constexpr std::size_t kMaxPages = 10000;
  static constexpr double kMargin = 850;  // 1.5 cm

  // Both hold for the pages that begin from now on.
  void SetOrientation(Orientation orientation) { orientation_ = orientation; }
  void SetLabel(Text label) { label_ = std::move(label); }

  // What lies between the margins.
  Extent Body() const;
  bool Begun() const { return !pages_.pages.empty(); }
  // No page is left: what wants another one has raised kOverflow.
  bool Full() const { return full_; }

  // Begins the first page, if none was begun, or the next one. Raises kOverflow behind the last
  // page that a document may have.
  void Begin();
  void NewPage();
  // Numbers the page in hand and those behind it, until that is stopped.
  void Number();
  void StopNumbering() { numbering_ = false; }

  // The ruler of a font; it lives as long as the builder.
  const FontRuler& Ruler(const Font& font);

  // `top` is the line's upper edge. Blanks at the end of a text leave no trace.
  void PutText(double x, double top, const FontRuler& ruler, TextView text, unsigned colour);
  void PutLine(double x1, double y1, double x2, double y2, double width, unsigned colour);
  void PutImage(double x, double y, Extent size, std::size_t bitmap);
  std::size_t AddBitmap(Bitmap bitmap);

  // The document so far; the builder is then empty again, with its settings as they were.
  Pages Take(Text title);

 private:
  Extent Paper() const;
  void PutNumber();
  void PutLabel();

  Pages pages_;
  std::deque<FontRuler> rulers_;  // in the order of the document's fonts
  Orientation orientation_ = Orientation::kPortrait;
  Text label_;
  bool numbering_ = false;
  bool numbered_ = false;  // the page in hand
  bool full_ = false;
};

}  // namespace trovex
