#include "Apps/trovex-aide/Html.h"

#include <filesystem>
#include <fstream>

#include "AideTest.h"
#include "Resources/HelpPages.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;

std::map<std::string, std::string> FilesIn(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    files[entry.path().filename().string()] = {std::istreambuf_iterator<char>(in), {}};
  }
  return files;
}

TEST(PagesTest, TheCommittedPagesAreWhatTheSourceGives) {
  EXPECT_TRUE(FilesIn(TROVEX_SOURCES "/docs/aide") == BuildPages(ProgramBook()))
      << "write them again: trovex-aide src/Aide --html docs/aide";
}

TEST(PagesTest, TheProgramsCarryTheSamePagesAndTheKeywordsThatLeadToThem) {
  std::map<std::string, std::string> carried;
  for (const HelpPage& page : HelpPages()) carried[std::string(page.name)] = page.bytes;
  EXPECT_TRUE(carried == BuildPages(ProgramBook()));
  std::vector<std::pair<Text, std::string>> expected, keywords;
  const Book book = ProgramBook();
  for (const Topic& topic : book.topics) {
    for (const Text& keyword : topic.keywords) {
      expected.emplace_back(keyword, PageOf(book, topic.name));
    }
  }
  for (const HelpKeyword& keyword : HelpKeywords()) {
    keywords.emplace_back(keyword.text, keyword.page);
  }
  EXPECT_EQ(keywords, expected);
}

TEST(PagesTest, APageATopicAndTheKeywords) {
  Topic a = TopicOf("a", "[[Là|b]] <ici> & **gros**");
  a.keywords = {u"mot"};
  const auto pages = BuildPages(BookOf({a, TopicOf("b", "- un\n- deux\n\nfin")}));
  ASSERT_EQ(pages.size(), 3U);
  EXPECT_THAT(pages.at("index.html"), HasSubstr("<h1>Sur a</h1>\n<p><a href=\"b.html\">Là</a> "
                                                "&lt;ici&gt; &amp; <strong>gros</strong></p>"));
  EXPECT_THAT(pages.at("b.html"), HasSubstr("<ul>\n<li>un</li>\n<li>deux</li>\n</ul>\n<p>fin</p>"));
  EXPECT_THAT(pages.at("mots-cles.html"),
              HasSubstr("<dt>mot</dt>\n<dd><a href=\"index.html\">Sur a</a></dd>"));
}

TEST(PagesTest, LinksBetweenPagesLeadToPagesThatExist) {
  const auto pages = BuildPages(ProgramBook());
  int links = 0;
  for (const auto& [name, page] : pages) {
    const std::string mark = "<a href=\"";
    for (size_t at = page.find(mark); at != std::string::npos; at = page.find(mark, at + 1)) {
      const size_t begin = at + mark.size();
      const std::string target = page.substr(begin, page.find('"', begin) - begin);
      EXPECT_EQ(pages.count(target), 1U) << name << " leads to " << target;
      ++links;
    }
  }
  EXPECT_GT(links, 100);
}

}  // namespace
}  // namespace trovex::test
