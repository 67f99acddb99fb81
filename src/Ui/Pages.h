// A document laid out on pages: data that any view draws, at whatever resolution. All measures are
// twips from the upper left corner of the paper.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Ui/Font.h"
#include "Ui/View.h"

namespace trovex {

// A run of text in one font and colour. It holds neither tabs nor control characters.
struct PageText {
  double x = 0;          // its left end
  double baseline = 0;   // what its letters stand on
  std::size_t font = 0;  // which of the document's fonts
  unsigned colour = 0;
  std::size_t start = 0, size = 0;  // its letters among those of the page
};

struct PageLine {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  double width = 0;
  unsigned colour = 0;
};

struct PageImage {
  double x = 0, y = 0;
  Extent size;
  std::size_t bitmap = 0;  // which of the document's
};

// The letters of all texts stand in one piece: a long table has hundreds of thousands of texts.
struct Page {
  Extent paper;
  Text letters;
  std::vector<PageText> texts;
  std::vector<PageLine> lines;
  std::vector<PageImage> images;

  void Add(PageText text, TextView its_letters) {
    text.start = letters.size();
    text.size = its_letters.size();
    letters += its_letters;
    texts.push_back(text);
  }
  TextView LettersOf(const PageText& text) const {
    return TextView(letters).substr(text.start, text.size);
  }
};

// A picture decoded: rows from the top down, three bytes a pixel, red first, no padding.
struct Bitmap {
  int width = 0, height = 0;
  std::string pixels;
};

struct Pages {
  Text title;
  std::vector<Font> fonts;
  std::vector<Bitmap> bitmaps;
  std::vector<Page> pages;
};

}  // namespace trovex
