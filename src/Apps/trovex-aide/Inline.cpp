#include "Apps/trovex-aide/Inline.h"

#include <algorithm>

#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

constexpr char16_t kNoBreak = u'\u00A0';

bool StandsOff(char16_t unit) {
  return TextView(u";:!?»").find(unit) != TextView::npos;
}

// French usage: no line ends between a word and the mark that stands off from it.
Text Typeset(TextView text) {
  Text set;
  for (size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    const bool before_mark = i + 1 < text.size() && StandsOff(text[i + 1]);
    const bool behind_quote = i > 0 && text[i - 1] == u'«';
    if (unit == u'\'') {
      set += u'’';
    } else if (unit == u' ' && (before_mark || behind_quote)) {
      set += kNoBreak;
    } else {
      set += unit;
    }
  }
  return set;
}

Text OnOneLine(TextView text) {
  Text joined(text);
  std::replace(joined.begin(), joined.end(), u'\n', u' ');
  return joined;
}

class Reader {
 public:
  Reader(const std::string& file, TextView text, int line, std::vector<Mistake>& mistakes)
      : file_(file), rest_(text), line_(line), mistakes_(mistakes) {}

  Spans Read() {
    while (!rest_.empty()) {
      if (!Marked(SpanKind::kBold, u"**", u"**") && !Marked(SpanKind::kCode, u"`", u"`") &&
          !Marked(SpanKind::kLink, u"[[", u"]]")) {
        Take(1);
      }
    }
    Flush();
    return std::move(spans_);
  }

 private:
  TextView Take(size_t count) {
    const TextView taken = rest_.substr(0, count);
    plain_ += taken;
    line_ += static_cast<int>(std::count(taken.begin(), taken.end(), u'\n'));
    rest_.remove_prefix(count);
    return taken;
  }

  void Flush() {
    if (!plain_.empty()) spans_.push_back({SpanKind::kPlain, Shown(plain_), {}, line_});
    plain_.clear();
  }

  static Text Shown(TextView text) { return Typeset(OnOneLine(text)); }

  bool Marked(SpanKind kind, TextView opening, TextView closing) {
    if (!rest_.starts_with(opening)) return false;
    const size_t end = rest_.find(closing, opening.size());
    const int line = line_;
    if (end == TextView::npos || end == opening.size()) {
      mistakes_.push_back({file_, line, ToUtf8(opening) + " without its end, or around nothing"});
      Take(opening.size());
      return true;
    }
    Flush();
    const TextView inside = rest_.substr(opening.size(), end - opening.size());
    Take(end + closing.size());
    plain_.clear();
    Add(kind, inside, line);
    return true;
  }

  void Add(SpanKind kind, TextView inside, int line) {
    if (kind == SpanKind::kCode) {
      spans_.push_back({kind, OnOneLine(inside), {}, line});
    } else if (kind == SpanKind::kBold) {
      spans_.push_back({kind, Shown(inside), {}, line});
    } else {
      AddLink(inside, line);
    }
  }

  void AddLink(TextView inside, int line) {
    const size_t bar = inside.find(u'|');
    if (bar == TextView::npos || bar == 0 || bar + 1 == inside.size()) {
      mistakes_.push_back({file_, line, "a link reads [[text|topic]]"});
      return;
    }
    spans_.push_back(
        {SpanKind::kLink, Shown(inside.substr(0, bar)), ToUtf8(inside.substr(bar + 1)), line});
  }

  const std::string& file_;
  TextView rest_;
  int line_;
  std::vector<Mistake>& mistakes_;
  Text plain_;
  Spans spans_;
};

}  // namespace

Spans ReadSpans(const std::string& file, TextView paragraph, int line,
                std::vector<Mistake>& mistakes) {
  return Reader(file, paragraph, line, mistakes).Read();
}

}  // namespace trovex::aide
