// Ground of the tests of printing: what a preview was given is kept. Texts are in a font of fixed
// pitch unless a test chooses another: at 10 points every character is 120 twips wide and a line
// 226.6 high, so that a portrait page (10206 by 15138 twips between its margins) takes 85
// characters across and 66 lines.
#pragma once

#include <algorithm>
#include <vector>

#include "Paper/PrtPreview.h"
#include "support/LogicTest.h"

namespace trovex::test {

inline constexpr double kMargin = 850;

// A text of a page with its letters.
struct Seen : PageText {
  Text text;
};

class PreviewTest : public LogicTest {
 protected:
  static constexpr double kChar = 120, kLine = 226.6;
  static constexpr double kPortraitWidth = 10206, kPortraitHeight = 15138;
  static constexpr double kLandscapeWidth = 15138, kLandscapeHeight = 10206;
  static constexpr std::size_t kAcross = 85, kLinesAPage = 66;

  // The user looks at the next preview and closes it.
  void Look() {
    view.AnswerPreview([this](const Preview& preview) {
      pages = preview.pages;
      application = preview.application;
      texts = &preview.texts;
      ++previews;
    });
  }

  // Texts of a page that stand between its margins, from the top down and the left to the right.
  std::vector<Seen> Body(std::size_t page) const {
    std::vector<Seen> body;
    for (const PageText& text : pages.pages.at(page).texts) {
      if (text.baseline > kMargin && text.baseline < Paper(page).height - kMargin) {
        body.push_back({text, Text(pages.pages.at(page).LettersOf(text))});
      }
    }
    std::stable_sort(body.begin(), body.end(), [](const Seen& a, const Seen& b) {
      return a.baseline != b.baseline ? a.baseline < b.baseline : a.x < b.x;
    });
    return body;
  }
  std::vector<Text> Lines(std::size_t page) const {
    std::vector<Text> lines;
    for (const Seen& text : Body(page)) lines.push_back(text.text);
    return lines;
  }
  // What stands in the margins.
  std::vector<Text> Head(std::size_t page) const {
    return Margin(page,
                  [](const PageText& text, const Extent&) { return text.baseline <= kMargin; });
  }
  std::vector<Text> Foot(std::size_t page) const {
    return Margin(page, [](const PageText& text, const Extent& paper) {
      return text.baseline >= paper.height - kMargin;
    });
  }
  const Extent& Paper(std::size_t page) const { return pages.pages.at(page).paper; }
  const Font& FontOf(const PageText& text) const { return pages.fonts.at(text.font); }

  static PreviewSurface& Fixed(PreviewSurface& surface) {
    surface.SetFontName(u"Courier New");
    surface.SetFontSize(10);
    return surface;
  }

  Pages pages;
  Text application;
  const PreviewTexts* texts = nullptr;
  int previews = 0;

 private:
  template <typename Test>
  std::vector<Text> Margin(std::size_t page, Test test) const {
    std::vector<Text> found;
    for (const PageText& text : pages.pages.at(page).texts) {
      if (test(text, Paper(page))) {
        found.emplace_back(pages.pages.at(page).LettersOf(text));
      }
    }
    return found;
  }
};

}  // namespace trovex::test
