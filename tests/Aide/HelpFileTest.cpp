#include "Apps/trovex-aide/HelpFile.h"

#include <fstream>
#include <set>

#include "AideTest.h"
#include "HelpReader.h"
#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

HelpReader Read(const Book& book) {
  return HelpReader(BuildHelpFile(book));
}

std::string Hash(const std::string& name) {
  return std::to_string(static_cast<uint32_t>(NameHash(name)));
}

// A paragraph of so many words.
std::string Words(int count) {
  std::string words;
  for (int i = 0; i < count; ++i) words += "mot" + std::to_string(i) + " ";
  return words + "\n";
}

// What a block of the source reads like in the file.
std::string Shown(const Block& block) {
  std::string text = ToCp1252(PlainText(block.spans));
  if (block.kind == BlockKind::kBullet) text = "\x95\t" + text;
  if (block.kind == BlockKind::kStep) text = ToCp1252(block.marker) + "\t" + text;
  return text;
}

void ExpectSameLinks(const Block& block, const ReadParagraph& paragraph) {
  std::vector<uint32_t> links;
  std::vector<std::string> texts;
  for (const Span& span : block.spans) {
    if (span.kind != SpanKind::kLink) continue;
    links.push_back(static_cast<uint32_t>(NameHash(span.target)));
    texts.push_back(ToCp1252(span.text));
  }
  EXPECT_EQ(paragraph.links, links);
  EXPECT_EQ(paragraph.link_texts, texts);
}

// Everything that the book says, found in the file again.
void ExpectHolds(const HelpReader& file, const Book& book) {
  ASSERT_EQ(file.Topics().size(), book.topics.size());
  std::set<uint32_t> addresses;
  for (size_t i = 0; i < book.topics.size(); ++i) {
    const Topic& topic = book.topics[i];
    const ReadTopicOf& read = file.Topics()[i];
    SCOPED_TRACE(topic.name);
    EXPECT_EQ(read.title, ToCp1252(topic.title));
    EXPECT_EQ(read.number, i);
    EXPECT_EQ(file.AddressOf(static_cast<uint32_t>(NameHash(topic.name))), read.address);
    EXPECT_TRUE(addresses.insert(read.address).second) << "an address that is not its own";
    ASSERT_EQ(read.paragraphs.size(), topic.blocks.size() + 1);
    EXPECT_EQ(read.paragraphs[0].text, ToCp1252(topic.title));
    for (size_t block = 0; block < topic.blocks.size(); ++block) {
      EXPECT_EQ(read.paragraphs[block + 1].text, Shown(topic.blocks[block]));
      ExpectSameLinks(topic.blocks[block], read.paragraphs[block + 1]);
    }
  }
}

void ExpectKeywords(const HelpReader& file, const Book& book) {
  std::map<std::string, std::set<uint32_t>> expected;
  for (size_t i = 0; i < book.topics.size(); ++i) {
    for (const Text& keyword : book.topics[i].keywords) {
      expected[ToCp1252(keyword)].insert(file.Topics()[i].address);
    }
  }
  std::map<std::string, std::set<uint32_t>> found;
  for (const auto& [keyword, places] : file.Keywords()) {
    found[keyword] = {places.begin(), places.end()};
    EXPECT_EQ(found[keyword].size(), places.size()) << keyword << " leads twice to a topic";
  }
  EXPECT_EQ(found, expected);
}

void ExpectTitles(const HelpReader& file) {
  const ReadTree tree = ReadTreeOf(file.File("|TTLBTREE"), kTitleTree);
  ASSERT_EQ(tree.entries.size(), file.Topics().size());
  for (size_t i = 0; i < tree.entries.size(); ++i) {
    EXPECT_EQ(ByteView(tree.entries[i].key).U32(), file.Topics()[i].address);
    EXPECT_EQ(tree.entries[i].data, file.Topics()[i].title);
  }
}

TEST(HelpFileTest, TheHelpOfTheProgramHoldsEveryTopicLinkAndKeyword) {
  const Book book = ProgramBook();
  const HelpReader file = Read(book);
  EXPECT_GT(book.topics.size(), 15U);
  ExpectHolds(file, book);
  ExpectKeywords(file, book);
  ExpectTitles(file);
}

TEST(HelpFileTest, NoMarkOfTheSourceIsLeftInTheText) {
  const HelpReader file = Read(ProgramBook());
  for (const ReadTopicOf& topic : file.Topics()) {
    for (const ReadParagraph& paragraph : topic.paragraphs) {
      for (const char* mark : {"::", "**", "[[", "]]", "`", "=="}) {
        EXPECT_EQ(paragraph.text.find(mark), std::string::npos) << topic.title << ": " << mark;
      }
    }
  }
}

TEST(HelpFileTest, EveryTopicOfTheProgramCanBeReachedFromTheContentsPage) {
  const HelpReader file = Read(ProgramBook());
  std::set<uint32_t> linked;
  for (const ReadParagraph& paragraph : file.Topics()[0].paragraphs) {
    for (const uint32_t hash : paragraph.links) linked.insert(file.AddressOf(hash));
  }
  for (size_t i = 1; i < file.Topics().size(); ++i) {
    EXPECT_EQ(linked.count(file.Topics()[i].address), 1U) << file.Topics()[i].title;
  }
}

TEST(HelpFileTest, TheFileBesideTheProgramIsWhatTheSourceGives) {
  std::ifstream in(TROVEX_HELP_FILE, std::ios::binary);
  const std::string built{std::istreambuf_iterator<char>(in), {}};
  EXPECT_TRUE(built == BuildHelpFile(ProgramBook()));
}

TEST(HelpFileTest, TheSystemFileTellsTitleContentsAndWindow) {
  const Book book = BookOf({TopicOf("a", "x"), TopicOf("b", "y")});
  const HelpReader file = Read(book);
  const auto records = file.SystemRecords();
  ASSERT_EQ(records.size(), 4U);
  EXPECT_EQ(records[0], (std::pair<uint32_t, std::string>{1, std::string("Aide\0", 5)}));
  EXPECT_EQ(records[1].first, 3U);
  EXPECT_EQ(ByteView(records[1].second).U32(), file.Topics()[0].address);
  EXPECT_EQ(records[2],
            (std::pair<uint32_t, std::string>{4, std::string("BrowseButtons()\0", 16)}));
  EXPECT_EQ(records[3].first, 6U);
  ASSERT_EQ(records[3].second.size(), 90U);
  EXPECT_EQ(records[3].second.substr(12, 5), std::string("main\0", 5));
  EXPECT_EQ(records[3].second.substr(21, 5), std::string("Aide\0", 5));
}

TEST(HelpFileTest, TheFontsStandWhereTheHeadSays) {
  const std::string font = Read(BookOf({TopicOf("a", "x")})).File("|FONT");
  ByteView head(font);
  const uint32_t faces = head.U16(), fonts = head.U16(), names = head.U16(), places = head.U16();
  EXPECT_EQ(faces, 2U);
  EXPECT_EQ(fonts, 5U);
  EXPECT_EQ(font.substr(names, 6), std::string("Arial\0", 6));
  EXPECT_EQ((places - names) / faces, 20U);
  EXPECT_EQ(font.size(), places + fonts * 11);
}

TEST(HelpFileTest, TopicsKnowTheirNeighbours) {
  const auto topics =
      Read(BookOf({TopicOf("a", "x"), TopicOf("b", "y"), TopicOf("c", "z")})).Topics();
  EXPECT_EQ(topics[0].back, 0xFFFFFFFF);
  EXPECT_EQ(topics[0].forward, topics[1].address);
  EXPECT_EQ(topics[1].back, topics[0].address);
  EXPECT_EQ(topics[1].forward, topics[2].address);
  EXPECT_EQ(topics[2].forward, 0xFFFFFFFF);
}

TEST(HelpFileTest, NumbersLeadToTheTopicsInOrder) {
  const HelpReader file = Read(BookOf({TopicOf("a", "x"), TopicOf("b", "y")}));
  ByteView map(file.File("|CTXOMAP"));
  ASSERT_EQ(map.U16(), 2U);
  for (uint32_t i = 0; i < 2; ++i) {
    EXPECT_EQ(map.U32(), i + 1);
    EXPECT_EQ(map.U32(), file.Topics()[i].address);
  }
}

TEST(HelpFileTest, AListHangsBehindItsMark) {
  const HelpReader file = Read(BookOf({TopicOf("a", "- un\n12. deux\n")}));
  const auto& paragraphs = file.Topics()[0].paragraphs;
  EXPECT_EQ(paragraphs[1].text, "\x95\tun");
  EXPECT_EQ(paragraphs[2].text, "12.\tdeux");
  EXPECT_LT(paragraphs[1].first, 0);
  EXPECT_GT(paragraphs[1].left, -paragraphs[1].first);
}

TEST(HelpFileTest, ManyTopicsFillManyBlocks) {
  std::vector<Topic> topics;
  for (int i = 0; i < 300; ++i) {
    const std::string next = "t" + std::to_string((i + 1) % 300);
    topics.push_back(TopicOf("t" + std::to_string(i), Words(i) + "\n[[suite|" + next + "]]\n"));
  }
  const Book book = BookOf(std::move(topics));
  const HelpReader file = Read(book);
  EXPECT_EQ(file.RunOver(), 0U) << "no paragraph is longer than a block";
  EXPECT_GT(file.File("|TOPIC").size(), 80U * 4096);
  ExpectHolds(file, book);
  ExpectTitles(file);
}

TEST(HelpFileTest, AParagraphLongerThanABlockRunsOnInTheNext) {
  const Book book = BookOf({TopicOf("a", "court"), TopicOf("b", Words(1500)),
                            TopicOf("c", "avant\n\n" + Words(1000) + "\n[[retour|a]]\n")});
  const HelpReader file = Read(book);
  EXPECT_EQ(file.RunOver(), 2U);
  ExpectHolds(file, book);
}

// Paragraphs of every size around the limit of a block: whatever fits stays in one piece.
TEST(HelpFileTest, EverySizeAroundTheEndOfABlock) {
  for (int size = 3700; size < 4150; ++size) {
    const Book book = BookOf(
        {TopicOf("a", std::string(static_cast<size_t>(size), 'x')), TopicOf("b", "derrière")});
    const HelpReader file = Read(book);
    ASSERT_EQ(file.Topics()[0].paragraphs[1].text.size(), static_cast<size_t>(size));
    ASSERT_EQ(file.Topics()[1].paragraphs[1].text, ToCp1252(u"derrière"));
    ASSERT_EQ(file.AddressOf(static_cast<uint32_t>(NameHash("b"))), file.Topics()[1].address);
  }
}

TEST(HelpFileTest, AKeywordOfTwoTopicsLeadsToBoth) {
  Topic a = TopicOf("a", "x"), b = TopicOf("b", "y");
  a.keywords = {u"zip", u"Été", u"été", u"zip"};
  b.keywords = {u"zip", u"eau"};
  const Book book = BookOf({a, b});
  const HelpReader file = Read(book);
  ExpectKeywords(file, book);
  std::vector<std::string> order;
  for (const ReadEntry& entry : ReadTreeOf(file.File("|KWBTREE"), kKeywordTree).entries) {
    order.push_back(entry.key);
  }
  EXPECT_THAT(order, ElementsAre("eau", ToCp1252(u"Été"), ToCp1252(u"été"), "zip"));
}

TEST(HelpFileTest, TheMapOfKeywordsLeadsToTheLeaves) {
  std::vector<Topic> topics = {TopicOf("a", "x")};
  for (int i = 0; i < 500; ++i) topics[0].keywords.push_back(u"mot " + FromUtf8(Hash(Words(i))));
  const HelpReader file = Read(BookOf(topics));
  const ReadTree tree = ReadTreeOf(file.File("|KWBTREE"), kKeywordTree);
  ASSERT_GT(tree.first_entry_of_leaf.size(), 2U);
  ByteView map(file.File("|KWMAP"));
  ASSERT_EQ(map.U16(), tree.first_entry_of_leaf.size());
  for (uint32_t page = 0; page < tree.first_entry_of_leaf.size(); ++page) {
    EXPECT_EQ(map.U32(), tree.first_entry_of_leaf[page]);
    EXPECT_EQ(map.U16(), page);
  }
  EXPECT_EQ(map.Left(), 0U);
}

TEST(HelpFileTest, TheReaderObjectsToADamagedFile) {
  std::string bytes = BuildHelpFile(BookOf({TopicOf("a", "x")}));
  EXPECT_NO_THROW(HelpReader{bytes});
  EXPECT_THROW(HelpReader(bytes.substr(0, bytes.size() - 1)), BadHelpFile);
  bytes[0] = 'x';
  EXPECT_THROW(HelpReader{bytes}, BadHelpFile);
}

}  // namespace
}  // namespace trovex::test
