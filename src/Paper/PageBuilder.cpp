#include "Paper/PageBuilder.h"

#include <algorithm>

#include "Platform/RuntimeError.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr Extent kA4 = {11906, 16838};
constexpr double kEdge = 400;  // what stands in the margins keeps this far from the paper's edge
const Font kMarginFont = {u"Times New Roman", 8};

TextView WithoutBlanksBehind(TextView text) {
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

}  // namespace

Extent PageBuilder::Paper() const {
  return orientation_ == Orientation::kLandscape ? Extent{kA4.height, kA4.width} : kA4;
}

Extent PageBuilder::Body() const {
  const Extent paper = Begun() ? pages_.pages.back().paper : Paper();
  return {paper.width - 2 * kMargin, paper.height - 2 * kMargin};
}

void PageBuilder::Begin() {
  if (!Begun()) NewPage();
}

void PageBuilder::NewPage() {
  if (pages_.pages.size() == kMaxPages) {
    full_ = true;
    throw RuntimeError(ErrorNumber::kOverflow, u"PrintPreview",
                       ResString(StringId::kDocumentTropLong));
  }
  Page page;
  page.paper = Paper();
  if (Begun()) {
    // The next page holds about as much as the one before.
    const Page& former = pages_.pages.back();
    page.texts.reserve(former.texts.size());
    page.lines.reserve(former.lines.size());
    page.letters.reserve(former.letters.size());
  }
  pages_.pages.push_back(std::move(page));
  numbered_ = false;
  PutLabel();
  if (numbering_) PutNumber();
}

void PageBuilder::Number() {
  numbering_ = true;
  if (Begun() && !numbered_) PutNumber();
}

void PageBuilder::PutNumber() {
  numbered_ = true;
  const FontRuler& ruler = Ruler(kMarginFont);
  const Text text = u"Page " + Decimal(static_cast<long long>(pages_.pages.size()));
  const Extent paper = pages_.pages.back().paper;
  PutText((paper.width - ruler.Width(text)) / 2 - kMargin,
          paper.height - kEdge - ruler.LineHeight() - kMargin, ruler, text, 0);
}

void PageBuilder::PutLabel() {
  if (label_.empty()) return;
  const FontRuler& ruler = Ruler(kMarginFont);
  const Text text = PrintableText(label_);
  PutText(0, kEdge - kMargin, ruler, ruler.Wrap(text, Body().width).front(), 0);
}

const FontRuler& PageBuilder::Ruler(const Font& font) {
  const auto known = std::find_if(rulers_.begin(), rulers_.end(),
                                  [&](const auto& ruler) { return ruler.GetFont() == font; });
  if (known != rulers_.end()) return *known;
  return rulers_.emplace_back(font);
}

void PageBuilder::PutText(double x, double top, const FontRuler& ruler, TextView text,
                          unsigned colour) {
  text = WithoutBlanksBehind(text);
  if (text.empty()) return;
  std::size_t font = 0;
  while (&rulers_[font] != &ruler) ++font;
  pages_.pages.back().Add({x + kMargin, top + ruler.Ascent() + kMargin, font, colour}, text);
}

void PageBuilder::PutLine(double x1, double y1, double x2, double y2, double width,
                          unsigned colour) {
  pages_.pages.back().lines.push_back(
      {x1 + kMargin, y1 + kMargin, x2 + kMargin, y2 + kMargin, width, colour});
}

void PageBuilder::PutImage(double x, double y, Extent size, std::size_t bitmap) {
  pages_.pages.back().images.push_back({x + kMargin, y + kMargin, size, bitmap});
}

std::size_t PageBuilder::AddBitmap(Bitmap bitmap) {
  pages_.bitmaps.push_back(std::move(bitmap));
  return pages_.bitmaps.size() - 1;
}

Pages PageBuilder::Take(Text title) {
  Pages taken = std::move(pages_);
  pages_ = {};
  taken.title = std::move(title);
  for (const FontRuler& ruler : rulers_) taken.fonts.push_back(ruler.GetFont());
  full_ = false;
  return taken;
}

}  // namespace trovex
