// The texts that a document is made of, and their fonts.
#include "Lib/LIB_STRING.h"
#include "Paper/PrtPreview.h"

namespace trovex {
namespace {

constexpr int kGras = 1;
constexpr int kSansType = -1;
constexpr std::int16_t kTailleTitre = 14;

struct Style {
  bool bold, italic, underline;
};

// In the order of FlagType, from 1 on.
constexpr Style kStyles[] = {{true, false, false},  {false, false, false}, {false, true, false},
                             {true, true, false},   {false, false, true},  {true, false, true},
                             {false, false, false}, {false, true, true},   {true, true, true}};

Text Blanks(bool bSuite) {
  return Text(bSuite ? 8 : 4, u' ');
}

}  // namespace

// Applies what is given of font, size and colour, and puts it back at the end.
class PrtPreview::FontScope {
 public:
  FontScope(PrtPreview& owner, OptSize fntSize, const OptText& fntName, OptColour laColor)
      : surface_(owner.surface_),
        sized_(fntSize),
        named_(fntName),
        coloured_(laColor),
        name_(surface_.FontName()),
        size_(surface_.FontSize()),
        colour_(surface_.ForeColor()) {
    if (fntName) owner.SetFontName(*fntName);
    if (fntSize) owner.SetFontSize(*fntSize);
    if (laColor) owner.SetForeColor(*laColor);
  }
  ~FontScope() {
    if (named_) surface_.SetFontName(name_);
    if (sized_) surface_.SetFontSize(size_);
    if (coloured_) surface_.SetForeColor(colour_);
  }
  FontScope(const FontScope&) = delete;
  FontScope& operator=(const FontScope&) = delete;

 private:
  PreviewSurface& surface_;
  const bool sized_, named_, coloured_;
  const Text name_;
  const double size_;
  const unsigned colour_;
};

void PrtPreview::SetFontName(const Text& newFont) {
  if (!Trimmed(newFont).empty()) surface_.SetFontName(newFont);
}

void PrtPreview::SetFontSize(std::int16_t newSize) {
  if (newSize != 0) surface_.SetFontSize(newSize);
}

void PrtPreview::SetFontType(int FlagType, bool bActif) {
  if (FlagType < 1 || FlagType > 9) return;
  const Style& style = kStyles[FlagType - 1];
  if (style.bold) SetBold(bActif);
  if (style.italic) SetItalic(bActif);
  if (style.underline) SetUnderline(bActif);
}

void PrtPreview::PutString(const Text& LesData, OptInt FlagType, OptInt FlagAlign, OptSize fntSize,
                           const OptText& fntName, OptColour laColor) {
  const int type = FlagType.value_or(kSansType);
  SetFontType(type, true);
  const FontScope font(*this, fntSize, fntName, laColor);
  if (Trimmed(LesData).empty()) {
    surface_.PrintText(kCrLf);
  } else {
    surface_.PrintTextAligned(LesData, FlagAlign.value_or(0));
  }
  SetFontType(type, false);
}

void PrtPreview::PutStringWithCrlfNext(const Text& LesData, OptInt FlagType, OptInt FlagAlign,
                                       OptSize fntSize, const OptText& fntName, OptColour laColor) {
  PutString(LesData, FlagType, FlagAlign, fntSize, fntName, laColor);
  PutString(u"");
}

void PrtPreview::PutStringWithCrlfPrev(const Text& LesData, OptInt FlagType, OptInt FlagAlign,
                                       OptSize fntSize, const OptText& fntName, OptColour laColor) {
  PutString(u"");
  PutString(LesData, FlagType, FlagAlign, fntSize, fntName, laColor);
}

void PrtPreview::PutTextBox(const TextBox& lesInfos, const OptText& leTitre, OptInt FlagType,
                            OptInt FlagAlign, OptSize fntSize, const OptText& fntName,
                            OptColour laColor) {
  if (leTitre) PutString(*leTitre, kGras, {}, kTailleTitre);
  Text sReste = lesInfos.GetText();
  while (!sReste.empty()) {
    const std::size_t avant = sReste.size();
    const Text sLigne = sExtraitChamp(sReste, kCrLf);
    // A line too long to be taken off the rest was reported; it would be so for ever.
    if (sReste.size() == avant && !Trimmed(sReste).empty()) return;
    PutString(sLigne, FlagType, FlagAlign, fntSize, fntName, laColor);
  }
}

void PrtPreview::PrintAt(double x, double y, const Text& part) {
  surface_.SetCurrentX(x);
  surface_.SetCurrentY(y);
  surface_.PrintText(part);
}

void PrtPreview::PrintBoldAt(double x, double y, const Text& part) {
  SetBold(true);
  PrintAt(x, y, part);
}

void PrtPreview::PutItemsString(const Text& a, const Text& b, const OptText& c, const OptText& d,
                                const OptText& e, const OptText& f, OptSize fntSize,
                                const OptText& fntName, OptColour laColor) {
  const FontScope font(*this, fntSize, fntName, laColor);
  double x = surface_.CurrentX();
  const double y = surface_.CurrentY();
  bool bSuite = false;
  const auto label = [&](const Text& part) {
    PrintBoldAt(x, y, part);
    x += surface_.TextWidth(part);
    SetBold(false);
    bSuite = true;
  };
  if (!a.empty()) label(Blanks(false) + a + u" ");
  if (!b.empty()) {
    PrintAt(x, y, b);
    x += surface_.TextWidth(b);
  }
  if (c) label(Blanks(bSuite) + *c + u" ");
  if (d) {
    PrintAt(x, y, u" " + *d);
    x += surface_.TextWidth(*d);
  }
  if (e) label(Blanks(bSuite) + *e + u" ");
  if (f) PrintAt(x, y, u" " + *f);
  surface_.SetCurrentX(0);
}

void PrtPreview::PutItemsStringCmXY(const Text& a, const Text& b, double x, OptDouble Y,
                                    OptSize fntSize, const OptText& fntName, OptColour laColor) {
  // Asking where the page stands may begin the next one: only where it is wanted.
  const double y = Y ? *Y : GetCurrentCmY();
  SetCurrentCmXY(x, y);
  const FontScope font(*this, fntSize, fntName, laColor);
  double xSuite = 0;
  if (!a.empty()) {
    PrintBoldAt(CmToCo(x), CmToCo(y), a);
    xSuite = CoToCm(surface_.TextWidth(a) + CmToCo(x));
    SetBold(false);
  }
  if (!b.empty()) PrintAt(CmToCo(xSuite), CmToCo(y), b);
}

}  // namespace trovex
