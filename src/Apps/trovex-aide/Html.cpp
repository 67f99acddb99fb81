#include "Apps/trovex-aide/Html.h"

#include "Apps/trovex-aide/HelpFile.h"
#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

constexpr const char* kStyle =
    "body{max-width:44em;margin:2em auto;padding:0 1em;font:16px/1.5 Arial,sans-serif}"
    "h1,h2{color:#000080}a{color:#008000}dt{font-weight:bold;margin-top:.6em}"
    "dd{margin-left:1.5em}nav{border-top:1px solid #ccc;margin-top:2em;padding-top:.6em}"
    "code{background:#eee;padding:0 .2em}";

std::string Escaped(TextView text) {
  std::string escaped;
  for (const char unit : ToUtf8(text)) {
    switch (unit) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        escaped += unit;
    }
  }
  return escaped;
}

class Pages {
 public:
  explicit Pages(const Book& book) : book_(book) {}

  std::map<std::string, std::string> Build() {
    std::map<std::string, std::string> pages;
    for (size_t i = 0; i < book_.topics.size(); ++i) {
      const Topic& topic = book_.topics[i];
      pages[PageOf(topic.name)] = Page(topic.title, Body(topic), Navigation(i));
    }
    pages["mots-cles.html"] = Page(u"Mots-clés", Keywords(), Link(book_.topics[0].name));
    return pages;
  }

 private:
  std::string PageOf(const std::string& name) const { return aide::PageOf(book_, name); }

  std::string Anchor(const std::string& name, TextView text) const {
    return "<a href=\"" + PageOf(name) + "\">" + Escaped(text) + "</a>";
  }

  std::string Link(const std::string& name) const {
    for (const Topic& topic : book_.topics) {
      if (topic.name == name) return Anchor(name, topic.title);
    }
    return {};
  }

  std::string Page(TextView title, const std::string& body, const std::string& navigation) const {
    return "<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
           Escaped(title) + " - " + Escaped(book_.title) + "</title>\n<style>" + kStyle +
           "</style>\n</head>\n<body>\n<h1>" + Escaped(title) + "</h1>\n" + body + "<nav>" +
           navigation + "</nav>\n</body>\n</html>\n";
  }

  std::string Navigation(size_t number) const {
    const std::vector<Topic>& topics = book_.topics;
    std::string links = number > 0 ? Link(topics[0].name) + " | " : "";
    if (number > 1) links += "&lt;&lt; " + Link(topics[number - 1].name) + " | ";
    if (number + 1 < topics.size()) links += Link(topics[number + 1].name) + " &gt;&gt; | ";
    return links + "<a href=\"mots-cles.html\">Mots-clés</a>";
  }

  std::string Inline(const Spans& spans) const {
    std::string html;
    for (const Span& span : spans) {
      const std::string text = Escaped(span.text);
      switch (span.kind) {
        case SpanKind::kPlain:
          html += text;
          break;
        case SpanKind::kBold:
          html += "<strong>" + text + "</strong>";
          break;
        case SpanKind::kCode:
          html += "<code>" + text + "</code>";
          break;
        case SpanKind::kLink:
          html += Anchor(span.target, span.text);
      }
    }
    return html;
  }

  // The element that a block stands in, and the list around it.
  struct Element {
    const char* list;
    const char* item;
  };
  static Element ElementOf(BlockKind kind) {
    switch (kind) {
      case BlockKind::kHeading:
        return {"", "h2"};
      case BlockKind::kBullet:
        return {"ul", "li"};
      case BlockKind::kStep:
        return {"ol", "li"};
      case BlockKind::kTerm:
        return {"dl", "dt"};
      case BlockKind::kMeaning:
        return {"dl", "dd"};
      case BlockKind::kParagraph:
        break;
    }
    return {"", "p"};
  }

  std::string Body(const Topic& topic) const {
    std::string html, list;
    const auto change = [&](const std::string& to) {
      if (list == to) return;
      if (!list.empty()) html += "</" + list + ">\n";
      if (!to.empty()) html += "<" + to + ">\n";
      list = to;
    };
    for (const Block& block : topic.blocks) {
      const Element element = ElementOf(block.kind);
      change(element.list);
      html +=
          std::string("<") + element.item + ">" + Inline(block.spans) + "</" + element.item + ">\n";
    }
    change("");
    return html;
  }

  std::string Keywords() const {
    struct Order {
      bool operator()(const Text& a, const Text& b) const { return KeywordBefore(a, b); }
    };
    std::map<Text, std::string, Order> sorted;
    for (const Topic& topic : book_.topics) {
      for (const Text& keyword : topic.keywords) {
        sorted[keyword] += "<dd>" + Link(topic.name) + "</dd>\n";
      }
    }
    std::string html = "<dl>\n";
    for (const auto& [keyword, links] : sorted) {
      html += "<dt>" + Escaped(keyword) + "</dt>\n" + links;
    }
    return html + "</dl>\n";
  }

  const Book& book_;
};

}  // namespace

std::string PageOf(const Book& book, const std::string& topic) {
  return (topic == book.topics[0].name ? "index" : topic) + ".html";
}

std::map<std::string, std::string> BuildPages(const Book& book) {
  return Pages(book).Build();
}

}  // namespace trovex::aide
