// The text functions of the HTML writer.
#include <algorithm>

#include "Html/Entities.h"
#include "Html/LIB_HTML.h"
#include "Platform/Encoding.h"
#include "Platform/RuntimeError.h"
#include "Ui/Headless/HeadlessView.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr std::size_t kLongestEntity = 8;
constexpr std::size_t kLongestInput = 300;  // longer ones say no more and cost far more

bool HasEntityLetter(TextView text) {
  return std::any_of(kEntities.begin(), kEntities.end(), [&](const Entity& entity) {
    return text.find(entity.character) != TextView::npos;
  });
}

int Count(TextView text, TextView part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != TextView::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

bool HasAddress(TextView text) {
  return text.find(u"http://") != TextView::npos || text.find(u"ftp://") != TextView::npos ||
         text.find(u'@') != TextView::npos;
}

void TryText(const Text& text, const Text& html) {
  Promise(!HasEntityLetter(html), "no letter of the table is left");
  const int links = Count(html, u"<A HREF=\"") - Count(text, u"<A HREF=\"");
  Promise(links <= 3, "there is one link of a kind");
  if (!HasAddress(text)) {
    Promise(links == 0, "a text without address has no link");
    Promise(HasEntityLetter(text) || html == text, "a plain text stays as it is");
    Promise(sTexteVersHTML(html) == html, "a second pass changes nothing");
  }
  // A link doubles its address; the three may stand one in the other.
  Promise(html.size() <= 8 * (text.size() * kLongestEntity + 40), "a page grows no further");
}

void TryAnchors(const Text& text, const Text& html) {
  const Text anchor = sAncreNom(text, false, false);
  const TextView head = u"<A NAME=\"", tail = u"\">";
  Promise(anchor.size() == head.size() + text.size() + tail.size() && anchor.starts_with(head) &&
              anchor.ends_with(tail),
          "an anchor has a character for each of its text");
  const Text name = anchor.substr(head.size(), text.size());
  Promise(Trimmed(text).empty() || name.find_first_of(u" \t\"<>") == Text::npos,
          "nothing in an anchor ends its name");
  Promise(sAncreNom(text, true, true) == anchor + u"<B>" + html + u"</B>",
          "bold is around the text");
  Promise(sAncreNom(text, false, true) == anchor + html, "the text follows its anchor");
  Promise(
      sLienAncre(text, u"f.htm", u"X") == u"<A HREF=\"f.htm#" + name + u"\" X\">" + html + u"</A>",
      "a link leads to the anchor of its text");
}

}  // namespace

void Try(std::string_view input) {
  if (input.size() > kLongestInput) return;
  HeadlessView view;
  const ViewScope scope(view);
  const Text text = FromCp1252(input);
  Promise(sAncreNom({}, true, true).empty() && sTexteVersHTML({}).empty(), "nothing gives nothing");
  if (text.empty()) return;
  try {
    const Text html = sTexteVersHTML(text);
    Promise(sTexteVersHTML(text) == html, "the same text is the same page");
    if (!view.Boxes().empty()) return;
    TryText(text, html);
    TryAnchors(text, html);
  } catch (const RuntimeError&) {
    Promise(false, "a short text raises nothing");
  }
}

void Seeds(const TakeSeed& take) {
  take("accents", "\xC9t\xE9 \xE0 No\xEBl, \xFF \xDF");
  take("addresses", "voir http://exemple ici, ftp://autre<BR>et nom@exemple ok");
  take("mail-at-the-end", "mail nom@exemple");
  take("tags", "<B>a</B>&c \"d\"<BR>nom@exemple ok");
}

}  // namespace trovex::fuzz
