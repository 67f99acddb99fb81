#include "Paper/FontRuler.h"

#include <algorithm>

namespace trovex {
namespace {

constexpr std::size_t kTabColumns = 8;

bool IsControl(char16_t unit) {
  return unit < u' ' || unit == 0x7F;
}

// Number of code units of the character at `place`.
std::size_t UnitsAt(TextView text, std::size_t place) {
  const bool high = (text[place] & 0xFC00) == 0xD800;
  const bool pair = high && place + 1 < text.size() && (text[place + 1] & 0xFC00) == 0xDC00;
  return pair ? 2 : 1;
}

// Finds the cuts of one text, in one pass.
class Wrapper {
 public:
  Wrapper(const FontRuler& ruler, TextView text, double limit, std::vector<TextView>& lines)
      : ruler_(ruler), text_(text), limit_(limit), lines_(lines) {}

  void Run() {
    std::size_t place = 0;
    while (place < text_.size()) {
      const std::size_t start = place;
      const double width = ruler_.Step(text_, place);
      if (text_[start] == u' ') {
        PassBlank(start, place, width);
      } else {
        PassLetter(start, width);
      }
    }
    lines_.push_back(text_.substr(start_));
  }

 private:
  // Blanks hang over the line's end: they never cut it.
  void PassBlank(std::size_t start, std::size_t behind, double width) {
    if (start > start_ && text_[start - 1] != u' ') word_end_ = start;
    width_ += width;
    next_ = behind;
    width_to_next_ = width_;
  }

  void PassLetter(std::size_t start, double width) {
    if (width_ + width > limit_ && start > start_) {
      if (word_end_ > start_) {
        Cut(word_end_, next_, width_to_next_);
      }
      if (width_ + width > limit_ && start > start_) Cut(start, start, width_);
    }
    width_ += width;
  }

  void Cut(std::size_t end, std::size_t next, double width_before_next) {
    lines_.push_back(text_.substr(start_, end - start_));
    start_ = next;
    width_ -= width_before_next;
    word_end_ = start_;
  }

  const FontRuler& ruler_;
  const TextView text_;
  const double limit_;
  std::vector<TextView>& lines_;
  std::size_t start_ = 0;     // of the line in hand
  double width_ = 0;          // of what the line holds so far
  std::size_t word_end_ = 0;  // of the last word that blanks follow; the start where there is none
  std::size_t next_ = 0;      // behind those blanks
  double width_to_next_ = 0;
};

}  // namespace

FontRuler::FontRuler(Font font)
    : font_(std::move(font)), measure_(CurrentView().MeasureFont(font_)) {
  usual_.fill(-1);
}

double FontRuler::Ask(TextView character) const {
  return CurrentView().TextWidth(character, font_);
}

double FontRuler::StepUnusual(TextView text, std::size_t& place) const {
  const std::size_t start = place;
  place += UnitsAt(text, start);
  const TextView character = text.substr(start, place - start);
  if (text[start] < kUsual) {
    double& width = usual_[text[start]];
    if (width < 0) width = Ask(character);
    return width;
  }
  const auto [entry, fresh] = others_.try_emplace(Text(character), 0);
  if (fresh) entry->second = Ask(character);
  return entry->second;
}

double FontRuler::Width(TextView text) const {
  double width = 0;
  for (std::size_t place = 0; place < text.size();) width += Step(text, place);
  return width;
}

std::vector<TextView> FontRuler::Wrap(TextView text, double width) const {
  std::vector<TextView> lines;
  Wrap(text, width, lines);
  return lines;
}

void FontRuler::Wrap(TextView text, double width, std::vector<TextView>& lines) const {
  Wrapper(*this, text, width, lines).Run();
}

bool IsPrintable(TextView text) {
  return std::none_of(text.begin(), text.end(), IsControl);
}

Text PrintableText(TextView text) {
  Text printable;
  printable.reserve(text.size());
  for (const char16_t unit : text) {
    if (unit == u'\t') {
      printable.append(kTabColumns - printable.size() % kTabColumns, u' ');
    } else {
      printable += IsControl(unit) ? u' ' : unit;
    }
  }
  return printable;
}

}  // namespace trovex
