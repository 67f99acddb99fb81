// Draws a document's pages on a screen or printer, and measures its texts.
#pragma once

#include "Ui/Pages.h"
#include "Ui/Win32/Fonts.h"

namespace trovex::win32 {

// Measures at many times the resolution of a screen, so that what is laid out fits on any device.
class PrintMeasure {
 public:
  explicit PrintMeasure(Fonts& fonts);
  ~PrintMeasure();
  PrintMeasure(const PrintMeasure&) = delete;
  PrintMeasure& operator=(const PrintMeasure&) = delete;

  double Width(TextView text, const Font& font);
  FontMeasure MeasureOf(const Font& font);
  // Where each code unit of the text ends, in twips from the text's left end.
  std::vector<double> Ends(const Text& text, const Font& font);

 private:
  void Select(const Font& font);

  Fonts& fonts_;
  HDC dc_;
};

class PagePainter {
 public:
  PagePainter(const Pages& pages, Fonts& fonts, PrintMeasure& measure)
      : pages_(pages), fonts_(fonts), measure_(measure) {}

  // Draws what stands on the page; its upper left corner is at the origin of `dc`.
  void Draw(HDC dc, const Page& page, Scale scale);

 private:
  void Draw(HDC dc, const PageText& text, const Text& letters, Scale scale);
  static void Draw(HDC dc, const PageLine& line, Scale scale);
  void Draw(HDC dc, const PageImage& image, Scale scale);

  const Pages& pages_;
  Fonts& fonts_;
  PrintMeasure& measure_;
};

}  // namespace trovex::win32
