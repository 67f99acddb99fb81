#include <algorithm>

#include "Apps/trovex-aide/Book.h"
#include "Apps/trovex-aide/Inline.h"
#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

constexpr TextView kHeadingMark = u"== ";
constexpr TextView kItemMark = u"- ";
constexpr TextView kTermMark = u" :: ";

std::vector<Text> Lines(std::string_view bytes) {
  std::vector<Text> lines;
  while (!bytes.empty()) {
    const size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(FromUtf8(line));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return lines;
}

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

bool IsNameUnit(char unit) {
  return (unit >= 'a' && unit <= 'z') || (unit >= '0' && unit <= '9') || unit == '_' || unit == '.';
}

std::vector<Text> Keywords(TextView list) {
  std::vector<Text> keywords;
  while (!list.empty()) {
    const size_t end = std::min(list.find(u';'), list.size());
    const TextView keyword = Trimmed(list.substr(0, end));
    if (!keyword.empty()) keywords.emplace_back(keyword);
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return keywords;
}

// The number and point that a step begins with; nothing if it begins otherwise.
TextView StepMarker(TextView paragraph) {
  size_t digits = 0;
  while (digits < paragraph.size() && IsDigit(paragraph[digits])) ++digits;
  const bool step = digits > 0 && paragraph.substr(digits).starts_with(u". ");
  return step ? paragraph.substr(0, digits + 1) : TextView();
}

class TopicReader {
 public:
  TopicReader(const std::string& file, std::string_view bytes, std::vector<Mistake>& mistakes)
      : lines_(Lines(bytes)), mistakes_(mistakes) {
    topic_.file = file;
  }

  Topic Read() {
    CheckCharacters();
    ReadKeys();
    ReadBlocks();
    if (topic_.name.empty()) Complain(1, "the name of the topic is missing (sujet:)");
    if (topic_.title.empty()) Complain(1, "the title of the topic is missing (titre:)");
    if (topic_.blocks.empty()) Complain(static_cast<int>(lines_.size()), "the topic has no text");
    return std::move(topic_);
  }

 private:
  int LineNumber() const { return static_cast<int>(at_) + 1; }
  void Complain(int line, const std::string& text) {
    mistakes_.push_back({topic_.file, line, text});
  }

  // A control character would come out as something else too.
  void CheckCharacters() {
    for (size_t i = 0; i < lines_.size(); ++i) {
      for (const char16_t unit : lines_[i]) {
        const bool control = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
        if (!control && (unit == u'?' || ToCp1252(Text(1, unit)) != "?")) continue;
        Complain(static_cast<int>(i) + 1,
                 "a character that Windows-1252 lacks: " + ToStrictUtf8(Text(1, unit)));
      }
    }
  }

  void ReadKeys() {
    for (; at_ < lines_.size() && !Trimmed(lines_[at_]).empty(); ++at_) {
      const TextView line = lines_[at_];
      const size_t colon = line.find(u':');
      if (colon == TextView::npos) {
        Complain(LineNumber(), "the lines up to the first empty one read key: value");
        continue;
      }
      SetKey(Trimmed(line.substr(0, colon)), Trimmed(line.substr(colon + 1)));
    }
  }

  void SetKey(TextView key, TextView value) {
    if (key == u"sujet") {
      topic_.name = ToUtf8(value);
      if (!std::all_of(topic_.name.begin(), topic_.name.end(), IsNameUnit)) {
        Complain(LineNumber(), "a name is of a to z, 0 to 9, _ and . only: " + topic_.name);
      }
    } else if (key == u"titre") {
      topic_.title = PlainText(ReadSpans(topic_.file, value, LineNumber(), mistakes_));
    } else if (key == u"mots") {
      for (Text& keyword : Keywords(value)) topic_.keywords.push_back(std::move(keyword));
    } else {
      Complain(LineNumber(), "unknown key: " + ToUtf8(key));
    }
  }

  void ReadBlocks() {
    while (at_ < lines_.size()) {
      if (Trimmed(lines_[at_]).empty()) {
        ++at_;
        continue;
      }
      const int first = LineNumber();
      Text paragraph(Trimmed(lines_[at_++]));
      const bool heading = paragraph.starts_with(kHeadingMark);
      while (!heading && at_ < lines_.size() && Continues(lines_[at_])) {
        paragraph += u'\n';
        paragraph += Trimmed(lines_[at_++]);
      }
      AddBlock(paragraph, first);
    }
  }

  // Items follow each other without an empty line.
  static bool Continues(TextView line) {
    return !Trimmed(line).empty() && !line.starts_with(kItemMark) &&
           !line.starts_with(kHeadingMark) && StepMarker(line).empty();
  }

  void AddBlock(TextView paragraph, int line) {
    if (paragraph.starts_with(kHeadingMark)) {
      return Add(BlockKind::kHeading, paragraph.substr(kHeadingMark.size()), line);
    }
    if (paragraph.starts_with(kItemMark)) {
      return Add(BlockKind::kBullet, paragraph.substr(kItemMark.size()), line);
    }
    const TextView marker = StepMarker(paragraph);
    if (!marker.empty()) {
      Add(BlockKind::kStep, paragraph.substr(marker.size() + 1), line);
      topic_.blocks.back().marker = marker;
      return;
    }
    const size_t mark = paragraph.find(kTermMark);
    if (mark == TextView::npos) return Add(BlockKind::kParagraph, paragraph, line);
    Add(BlockKind::kTerm, paragraph.substr(0, mark), line);
    const auto term_lines = std::count(paragraph.begin(), paragraph.begin() + mark, u'\n');
    Add(BlockKind::kMeaning, paragraph.substr(mark + kTermMark.size()),
        line + static_cast<int>(term_lines));
  }

  void Add(BlockKind kind, TextView text, int line) {
    topic_.blocks.push_back({kind, {}, ReadSpans(topic_.file, text, line, mistakes_), line});
  }

  std::vector<Text> lines_;
  std::vector<Mistake>& mistakes_;
  size_t at_ = 0;
  Topic topic_;
};

}  // namespace

Topic ReadTopic(const std::string& file, std::string_view bytes, std::vector<Mistake>& mistakes) {
  return TopicReader(file, bytes, mistakes).Read();
}

Text PlainText(const Spans& spans) {
  Text text;
  for (const Span& span : spans) text += span.text;
  return text;
}

}  // namespace trovex::aide
