#include "AideTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> MistakesOf(const std::string& source) {
  std::vector<Mistake> mistakes;
  Book book;
  book.topics.push_back(ReadTopic("t.txt", source, mistakes));
  CheckBook(book, mistakes);
  std::vector<std::string> lines;
  for (const Mistake& mistake : mistakes) {
    lines.push_back(mistake.file + ":" + std::to_string(mistake.line) + ": " + mistake.text);
  }
  return lines;
}

std::vector<BlockKind> KindsOf(const Topic& topic) {
  std::vector<BlockKind> kinds;
  for (const Block& block : topic.blocks) kinds.push_back(block.kind);
  return kinds;
}

TEST(BookTest, AKeyALineThenTheText) {
  std::vector<Mistake> mistakes;
  const Topic topic = ReadTopic(
      "a.txt", "sujet: a\ntitre: L'été\nmots: été ; chaud;\nmots: ciel\n\nUn\ndeux\n\nTrois\n",
      mistakes);
  EXPECT_TRUE(mistakes.empty());
  EXPECT_EQ(topic.name, "a");
  EXPECT_EQ(topic.title, u"L’été");
  EXPECT_THAT(topic.keywords, ElementsAre(u"été", u"chaud", u"ciel"));
  ASSERT_EQ(topic.blocks.size(), 2U);
  EXPECT_EQ(PlainText(topic.blocks[0].spans), u"Un deux");
  EXPECT_EQ(topic.blocks[1].line, 9);
}

TEST(BookTest, EveryKindOfBlock) {
  const Topic topic =
      TopicOf("a", "Texte\n\n== Titre\n- un\n- deux\nsuite\n1. pas\n\nMot :: sens\n");
  EXPECT_THAT(KindsOf(topic), ElementsAre(BlockKind::kParagraph, BlockKind::kHeading,
                                          BlockKind::kBullet, BlockKind::kBullet, BlockKind::kStep,
                                          BlockKind::kTerm, BlockKind::kMeaning));
  EXPECT_EQ(PlainText(topic.blocks[3].spans), u"deux suite");
  EXPECT_EQ(topic.blocks[4].marker, u"1.");
  EXPECT_EQ(PlainText(topic.blocks[4].spans), u"pas");
  EXPECT_EQ(PlainText(topic.blocks[5].spans), u"Mot");
  EXPECT_EQ(PlainText(topic.blocks[6].spans), u"sens");
}

TEST(BookTest, AHeadingEndsWithItsLine) {
  const Topic topic = TopicOf("a", "== Titre\nMot :: sens\n");
  EXPECT_THAT(KindsOf(topic),
              ElementsAre(BlockKind::kHeading, BlockKind::kTerm, BlockKind::kMeaning));
  EXPECT_EQ(PlainText(topic.blocks[0].spans), u"Titre");
}

TEST(BookTest, MarksWithinAParagraph) {
  const Topic topic = TopicOf("a", "un **gros** `*.exe` et [[là-bas|b]].");
  const Spans& spans = topic.blocks[0].spans;
  ASSERT_EQ(spans.size(), 7U);
  EXPECT_EQ(spans[1].kind, SpanKind::kBold);
  EXPECT_EQ(spans[1].text, u"gros");
  EXPECT_EQ(spans[3].kind, SpanKind::kCode);
  EXPECT_EQ(spans[3].text, u"*.exe");
  EXPECT_EQ(spans[5].kind, SpanKind::kLink);
  EXPECT_EQ(spans[5].text, u"là-bas");
  EXPECT_EQ(spans[5].target, "b");
}

TEST(BookTest, FrenchMarksStandOffWithoutABreakButNotInCode) {
  const Topic topic = TopicOf("a", "Quoi ? « Oui » : l'un ; `a : b's`");
  EXPECT_EQ(PlainText(topic.blocks[0].spans),
            u"Quoi\u00A0? «\u00A0Oui\u00A0»\u00A0: l’un\u00A0; a : b's");
}

TEST(BookTest, LinesMayEndInCrLf) {
  const Topic topic = TopicOf("a", "Un\r\ndeux\r\n");
  EXPECT_EQ(PlainText(topic.blocks[0].spans), u"Un deux");
}

TEST(BookMistakesTest, ALinkToAnUnknownTopic) {
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n\nUn\n[[deux|nulle_part]]\n"),
              ElementsAre("t.txt:5: a link to an unknown topic: nulle_part"));
}

TEST(BookMistakesTest, ATopicNameTwice) {
  std::vector<Mistake> mistakes;
  CheckBook(BookOf({TopicOf("a", "x"), TopicOf("b", "x"), TopicOf("a", "x")}), mistakes);
  ASSERT_EQ(mistakes.size(), 1U);
  EXPECT_EQ(mistakes[0].file, "a.txt");
  EXPECT_EQ(mistakes[0].line, 1);
  EXPECT_EQ(mistakes[0].text, "the topic a cannot be told from a of a.txt");
}

TEST(BookMistakesTest, AMissingTitleOrName) {
  EXPECT_THAT(MistakesOf("sujet: t\n\nUn\n"),
              ElementsAre("t.txt:1: the title of the topic is missing (titre:)"));
  EXPECT_THAT(MistakesOf("titre: T\n\nUn\n"),
              ElementsAre("t.txt:1: the name of the topic is missing (sujet:)"));
}

TEST(BookMistakesTest, ATopicWithoutText) {
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n"), ElementsAre("t.txt:2: the topic has no text"));
}

TEST(BookMistakesTest, ACharacterThatTheCodePageLacks) {
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n\nUn\nœuf → œuf\n"),
              ElementsAre("t.txt:5: a character that Windows-1252 lacks: →"));
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n\nvrai ?\n"), testing::IsEmpty());
  EXPECT_EQ(MistakesOf("sujet: t\ntitre: T\n\n\xFF\n").size(), 1U) << "bytes that are no UTF-8";
  EXPECT_EQ(MistakesOf("sujet: t\ntitre: T\n\n\xC2\x81\n").size(), 1U) << "a control character";
}

TEST(BookMistakesTest, AMarkWithoutItsEnd) {
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n\nUn\n**gros\n"),
              ElementsAre("t.txt:5: ** without its end, or around nothing"));
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n\n[[t]]\n"),
              ElementsAre("t.txt:4: a link reads [[text|topic]]"));
}

TEST(BookMistakesTest, AnUnknownKeyOrALineWithoutOne) {
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\ntitel: x\nrien\n\nUn\n"),
              ElementsAre("t.txt:3: unknown key: titel",
                          "t.txt:4: the lines up to the first empty one read key: value"));
}

TEST(BookMistakesTest, ANameOfOtherCharacters) {
  EXPECT_THAT(MistakesOf("sujet: Un deux\ntitre: T\n\nUn\n"),
              ElementsAre("t.txt:1: a name is of a to z, 0 to 9, _ and . only: Un deux"));
}

TEST(BookMistakesTest, AParagraphTheFormatCannotCount) {
  EXPECT_THAT(MistakesOf("sujet: t\ntitre: T\n\n" + std::string(15001, 'x') + "\n"),
              ElementsAre("t.txt:4: the paragraph is too long"));
}

// 43 * 1 + 17 is the number of "1a", and so on: worked by hand.
TEST(NamesTest, TheNumberOfAName) {
  EXPECT_EQ(NameHash(""), 0);
  EXPECT_EQ(NameHash("a"), 17);
  EXPECT_EQ(NameHash("1a"), 60);
  EXPECT_EQ(NameHash("0._"), 10 * 43 * 43 + 12 * 43 + 13);
  EXPECT_EQ(NameHash("z"), 42);
}

}  // namespace
}  // namespace trovex::test
