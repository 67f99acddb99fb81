// Measures texts in one font. Each character is asked of the view once.
#pragma once

#include <array>
#include <unordered_map>
#include <vector>

#include "Ui/Font.h"
#include "Ui/View.h"

namespace trovex {

class FontRuler {
 public:
  explicit FontRuler(Font font);

  const Font& GetFont() const { return font_; }
  double Ascent() const { return measure_.ascent; }
  double LineHeight() const { return measure_.line; }
  // The sum of the widths of the characters, in twips.
  double Width(TextView text) const;
  // The width of the character that stands at `place`, which moves on behind it.
  double Step(TextView text, std::size_t& place) const {
    const char16_t unit = text[place];
    if (unit >= kUsual || usual_[unit] < 0) return StepUnusual(text, place);
    ++place;
    return usual_[unit];
  }

  // The text in lines no wider than `width`, cut at blanks; what is wider than a line without any
  // blank is cut where the line ends. Blanks at a cut belong to no line. At least one line, each
  // but an empty one of at least one character; they are views of `text`.
  std::vector<TextView> Wrap(TextView text, double width) const;
  // The same, behind what `lines` holds.
  void Wrap(TextView text, double width, std::vector<TextView>& lines) const;

 private:
  double Ask(TextView character) const;
  double StepUnusual(TextView text, std::size_t& place) const;

  static constexpr std::size_t kUsual = 256;

  Font font_;
  FontMeasure measure_;
  mutable std::array<double, kUsual> usual_;  // negative where it was not asked yet
  mutable std::unordered_map<Text, double> others_;
};

// The text as it can stand on paper: tabs lead to the next column of eight, control characters are
// blanks. Most texts are so already.
Text PrintableText(TextView text);
bool IsPrintable(TextView text);

}  // namespace trovex
