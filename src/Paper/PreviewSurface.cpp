#include "Paper/PreviewSurface.h"

#include <algorithm>
#include <cmath>

#include "Lib/Dialogs.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "Paper/BitmapFile.h"
#include "Paper/GridLayout.h"
#include "Paper/SavePdf.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

const Text kName = u"MyPrintPreview";
const Text kSource = u"PrintPreview";
constexpr double kLargestSize = 2160;  // points
constexpr double kTitleSize = 14;
constexpr double kBelowTitle = 170;
constexpr double kTwipsPerPixel = 15;
constexpr int kRight = 1, kCentre = 2;
// From one tab stop to the next: room for eight letters of which most are no capitals.
constexpr TextView kTabWidth = u"NNNNNNNN";

// Takes the first line off a text; CR LF ends it.
TextView TakeLine(TextView& text) {
  const std::size_t end = text.find(kCrLf);
  const TextView line = text.substr(0, end);
  text.remove_prefix(end == TextView::npos ? text.size() : end + kCrLf.size());
  return line;
}

// The size as it is, or smaller in proportion so that it fits into the room.
Extent Fitted(Extent size, Extent room) {
  const double scale = std::min(
      {1.0, std::max(room.width, 1.0) / size.width, std::max(room.height, 1.0) / size.height});
  return {size.width * scale, size.height * scale};
}

}  // namespace

void PreviewSurface::SetFontSize(double size) {
  if (!(size > 0 && size <= kLargestSize)) {
    throw RuntimeError(ErrorNumber::kInvalidProperty, kSource);
  }
  font_.size = size;
}

void PreviewSurface::SetOrientation(int orientation) {
  if (orientation != static_cast<int>(Orientation::kPortrait) &&
      orientation != static_cast<int>(Orientation::kLandscape)) {
    throw RuntimeError(ErrorNumber::kInvalidProperty, kSource);
  }
  pages_.SetOrientation(static_cast<Orientation>(orientation));
}

double PreviewSurface::CurrentY() {
  if (pages_.Begun()) Advance(Ruler().LineHeight());
  return y_;
}

double PreviewSurface::TextWidth(TextView text) {
  return Ruler().Width(PrintableText(text));
}

void PreviewSurface::Advance(double height) {
  pages_.Begin();
  // A line taller than a page stands on it all the same.
  if (y_ <= 0 || y_ + height <= pages_.Body().height) return;
  pages_.NewPage();
  y_ = 0;
}

void PreviewSurface::PutLine(TextView line, int align) {
  const FontRuler& ruler = Ruler();
  Advance(ruler.LineHeight());
  const double room = PageWidth() - x_ - ruler.Width(line);
  double x = x_;
  if (align == kRight) x += std::max(room, 0.0);
  if (align == kCentre) x += std::max(room, 0.0) / 2;
  PutPart(x, line);
  y_ += ruler.LineHeight();
}

void PreviewSurface::PutPart(double x, TextView part) {
  const FontRuler& ruler = Ruler();
  pages_.PutText(x, y_, ruler, part, colour_);
  if (!underline_) return;
  const double below = y_ + ruler.Ascent() + font_.size * 2;
  pages_.PutLine(x, below, x + ruler.Width(part), below, font_.size, colour_);
}

// What a tab leads to stands at the same place in each line, however wide the letters before it
// are. What has no room there goes to the next line, unless it is the first to stand on this one.
void PreviewSurface::PutTabbedLine(TextView line) {
  const FontRuler& ruler = Ruler();
  const double stop = ruler.Width(kTabWidth);
  Advance(ruler.LineHeight());
  double x = x_;
  bool printed = false;  // a tab at the start indents, however long what follows is
  const auto next_line = [&] {
    y_ += ruler.LineHeight();
    Advance(ruler.LineHeight());
    x = x_;
  };
  for (;;) {
    const std::size_t tab = line.find(u'\t');
    const Text field = PrintableText(line.substr(0, tab));
    const double width = ruler.Width(Trimmed(field));
    const bool narrow = PageWidth() - x < stop;
    if (width > 0 && x + width > PageWidth() && (printed || narrow)) next_line();
    printed = printed || width > 0;
    const std::vector<TextView> parts = ruler.Wrap(field, std::max(PageWidth() - x, 0.0));
    for (std::size_t i = 0; i < parts.size(); ++i) {
      if (i > 0) next_line();
      PutPart(x, parts[i]);
    }
    if (tab == TextView::npos) break;
    x = (std::floor((x + ruler.Width(parts.back())) / stop) + 1) * stop;
    line.remove_prefix(tab + 1);
  }
  y_ += ruler.LineHeight();
}

void PreviewSurface::PrintTextAligned(TextView text, int align) {
  do {
    const TextView whole = TakeLine(text);
    if (align != kRight && align != kCentre && whole.find(u'\t') != TextView::npos) {
      PutTabbedLine(whole);
      continue;
    }
    const Text line = PrintableText(whole);
    const double room = std::max(PageWidth() - x_, 0.0);
    for (TextView part : Ruler().Wrap(line, room)) {
      if (align == kRight || align == kCentre) part = Trimmed(part);
      PutLine(part, align);
    }
  } while (!text.empty());
  x_ = 0;
}

void PreviewSurface::PrintText(TextView text) {
  PrintTextAligned(text, 0);
}

void PreviewSurface::NewPage(int) {
  pages_.Begin();
  pages_.StopNumbering();
  pages_.NewPage();
  x_ = y_ = 0;
}

void PreviewSurface::NumeroterPages(int, int) {
  pages_.Number();
}

void PreviewSurface::DrawLine(double x1, double y1, double x2, double y2, unsigned colour,
                              double width) {
  pages_.Begin();
  pages_.PutLine(x1, y1, x2, y2, width, colour);
}

void PreviewSurface::DrawImage(const Text& file, double x, double y) {
  pages_.Begin();
  std::optional<Bitmap> bitmap = ReadBitmap(file);
  if (!bitmap) return MessageErreur(ResString(StringId::kImageIllisible) + file);
  const Extent size = {bitmap->width * kTwipsPerPixel, bitmap->height * kTwipsPerPixel};
  const Extent body = pages_.Body();
  pages_.PutImage(x, y, Fitted(size, {body.width - x, body.height - y}),
                  pages_.AddBitmap(std::move(*bitmap)));
}

void PreviewSurface::PutTitle() {
  if (Trimmed(title_).empty()) return;
  const Font font = font_;
  font_.size = kTitleSize;
  font_.bold = true;
  x_ = 0;
  PrintTextAligned(title_, kCentre);
  font_ = font;
  y_ += kBelowTitle;
}

void PreviewSurface::PrintGrid(const Grid& grid) {
  pages_.Begin();
  PutTitle();
  y_ = GridLayout(pages_, grid, font_, colour_).Run(y_);
  x_ = 0;
  ShowPreview();
}

void PreviewSurface::ShowPreview() {
  pages_.Begin();
  const bool whole = !pages_.Full();
  const Pages pages = pages_.Take(title_);
  x_ = y_ = 0;
  CurrentView().SetPointer(Pointer::kDefault);
  CurrentView().ShowPreview({pages, whole, application_, *texts_, [&] { Save(pages); },
                             [](const Text& failure) { MessageErreur(failure); }});
}

void PreviewSurface::Save(const Pages& pages) const {
  const Text file = sDialogueFichier(ResString(StringId::kEnregistrerPdf),
                                     ResString(StringId::kFiltrePdf), u".pdf", u"Fichier.pdf");
  if (!file.empty()) SavePdf(pages, file);
}

PreviewSurface& MyPrintPreview() {
  LibForm& form = Lib_Form();
  if (form.Find(kName) == nullptr) form.Adopt(std::make_unique<PreviewSurface>(), kName);
  return static_cast<PreviewSurface&>(*form.Find(kName));
}

}  // namespace trovex
