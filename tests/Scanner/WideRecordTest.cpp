// Version records in 16-bit characters, whole ones and such as are half right.
#include "Scanner/WideRecord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::Eq;
using testing::Optional;

std::string U16(std::size_t number) {
  return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8 & 0xFF)};
}
std::string Units(TextView text) {
  std::string bytes;
  for (const char16_t unit : text) bytes += U16(unit);
  return bytes;
}
std::string Terminated(TextView text) {
  return Units(text) + U16(0);
}

// Writes records as some compiler of resources does, right or wrong.
struct Writer {
  bool padded_values = true;  // zeros between a key and what follows it
  bool padded_nodes = true;   // and between two nodes
  enum { kCharacters, kBytes, kZero } value_length = kCharacters;
  bool terminated = true;  // values end in a NUL
  std::size_t excess = 0;  // zeros more than the padding

  static void Pad(std::string& bytes) { bytes.resize((bytes.size() + 3) / 4 * 4); }

  std::string Node(TextView key, std::size_t length, unsigned type, const std::string& value,
                   const std::vector<std::string>& below = {}) const {
    std::string node = U16(0) + U16(length) + U16(type) + Terminated(key);
    if (padded_values) Pad(node);
    node += value;
    for (const std::string& child : below) {
      if (padded_nodes) Pad(node);
      node += std::string(excess, '\0') + child;
    }
    return node.replace(0, 2, U16(node.size()));
  }
  std::string String(TextView key, TextView value) const {
    const std::string bytes = terminated ? Terminated(value) : Units(value);
    const std::size_t lengths[] = {bytes.size() / 2, bytes.size(), 0};
    return Node(key, lengths[value_length], 1, bytes);
  }
  std::string Table(TextView key, const std::vector<std::string>& strings) const {
    return Node(key, 0, 1, "", strings);
  }
  std::string Strings(const std::vector<std::string>& tables) const {
    return Node(u"StringFileInfo", 0, 1, "", tables);
  }
  std::string Translation(const std::vector<std::pair<unsigned, unsigned>>& languages) const {
    std::string value;
    for (const auto& [language, page] : languages) value += U16(language) + U16(page);
    return Node(u"VarFileInfo", 0, 1, "", {Node(u"Translation", value.size(), 0, value)});
  }
  std::string Record(const std::vector<std::string>& blocks, std::size_t fixed_length = 52) const {
    std::string fixed = "\xBD\x04\xEF\xFE";
    fixed.resize(52, '\1');
    return Node(u"VS_VERSION_INFO", fixed_length, 0, fixed, blocks);
  }
  // A record of these two strings, in one table.
  std::string Jeu() const {
    return Record({Strings({Table(u"040C04B0", {String(u"FileDescription", u"Jeu de dames"),
                                                String(u"ProductName", u"Dames")})}),
                   Translation({{0x040C, 0x04B0}})});
  }
};

std::string TwoLanguages(const std::vector<std::pair<unsigned, unsigned>>& languages) {
  const Writer w;
  return w.Record({w.Strings({w.Table(u"040904B0", {w.String(u"ProductName", u"Draughts")}),
                              w.Table(u"040c04b0", {w.String(u"ProductName", u"Dames")})}),
                   w.Translation(languages)});
}

void ExpectJeu(const Writer& writer) {
  const std::string record = writer.Jeu();
  EXPECT_THAT(ValueInWideRecord(record, "FileDescription"), Optional(Eq(u"Jeu de dames")));
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
  EXPECT_EQ(ValueInWideRecord(record, "CompanyName"), std::nullopt);
}

TEST(WideRecordTest, AValueStandsUnderItsKey) {
  ExpectJeu({});
}

TEST(WideRecordTest, TheRecordsThatOtherTestsMakeAreRead) {
  const std::string record = VersionBlock16({{"FileDescription", "Jeu \xE0 deux"}});
  EXPECT_THAT(ValueInWideRecord(record, "FileDescription"), Optional(Eq(u"Jeu à deux")));
}

TEST(WideRecordTest, CharactersBeyondWindows1252AreKept) {
  const Writer w;
  const std::string record = w.Record(
      {w.Strings({w.Table(u"041104B0", {w.String(u"FileDescription", u"囲碁 œ \U0001F3B2")})})});
  EXPECT_THAT(ValueInWideRecord(record, "FileDescription"), Optional(Eq(u"囲碁 œ \U0001F3B2")));
}

TEST(WideRecordTest, KeysCompareWithoutRegardToCase) {
  EXPECT_THAT(ValueInWideRecord(Writer().Jeu(), "PRODUCTNAME"), Optional(Eq(u"Dames")));
}

// --- Records that are half right ---

TEST(WideRecordTest, LengthsOfValuesMayCountCharactersOrBytesOrNothing) {
  for (const auto counted : {Writer::kCharacters, Writer::kBytes, Writer::kZero}) {
    Writer writer;
    writer.value_length = counted;
    ExpectJeu(writer);
  }
}

TEST(WideRecordTest, TheLengthOfTheNumbersMayBeWrong) {
  const Writer w;
  for (const std::size_t length : {0u, 26u, 52u, 104u}) {
    const std::string record =
        w.Record({w.Strings({w.Table(u"040C04B0", {w.String(u"ProductName", u"Dames")})})}, length);
    EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames"))) << length;
  }
}

TEST(WideRecordTest, PaddingMayBeMissing) {
  for (const bool values : {false, true}) {
    for (const bool nodes : {false, true}) {
      Writer writer;
      writer.padded_values = values;
      writer.padded_nodes = nodes;
      // Where values stand directly behind their keys, these end on a boundary or do not.
      const std::string record = writer.Record({writer.Strings(
          {writer.Table(u"040C04B0", {writer.String(u"InternalName", u"DAMES"),
                                      writer.String(u"ProductName", u"Jeu de dames")})})});
      EXPECT_THAT(ValueInWideRecord(record, "InternalName"), Optional(Eq(u"DAMES")))
          << values << nodes;
      EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Jeu de dames")))
          << values << nodes;
    }
  }
}

TEST(WideRecordTest, MoreZerosThanThePaddingDoNoHarm) {
  Writer writer;
  writer.excess = 8;
  ExpectJeu(writer);
}

TEST(WideRecordTest, AValueMayLackItsNul) {
  Writer writer;
  writer.terminated = false;
  ExpectJeu(writer);
}

TEST(WideRecordTest, AnEmptyTextIsAValueAndEndsNothing) {
  const Writer w;
  const std::string nothing = w.Node(u"CompanyName", 0, 1, "");
  const std::string record =
      w.Record({w.Strings({w.Table(u"040C04B0", {nothing, w.String(u"FileVersion", u""),
                                                 w.String(u"ProductName", u"Dames")})})});
  EXPECT_THAT(ValueInWideRecord(record, "CompanyName"), Optional(Eq(u"")));
  EXPECT_THAT(ValueInWideRecord(record, "FileVersion"), Optional(Eq(u"")));
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
}

TEST(WideRecordTest, AValueEndsAtItsFirstNul) {
  const Writer w;
  const std::string record = w.Record({w.Strings(
      {w.Table(u"040C04B0", {w.String(u"ProductName", TextView(u"Dames\0reste", 11))})})});
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
}

TEST(WideRecordTest, OfAKeyThatStandsTwiceTheFirstCounts) {
  const Writer w;
  const std::string record = w.Record({w.Strings({w.Table(
      u"040C04B0", {w.String(u"ProductName", u"un"), w.String(u"ProductName", u"deux")})})});
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"un")));
}

TEST(WideRecordTest, OfTwoRecordsTheFirstCounts) {
  const Writer w;
  const std::string other =
      w.Record({w.Strings({w.Table(u"040C04B0", {w.String(u"CompanyName", u"Autre")})})});
  const std::string record = w.Jeu() + other;
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
  EXPECT_EQ(ValueInWideRecord(record, "CompanyName"), std::nullopt);
}

TEST(WideRecordTest, ATableThatWasFoundGivesEveryValue) {
  const std::string record = TwoLanguages({{0x040C, 0x04B0}});
  const WideTable table = FindWideTable(record);
  for (const char* key : {"ProductName", "FileDescription", "CompanyName"}) {
    EXPECT_EQ(ValueInWideTable(record, table, key), ValueInWideRecord(record, key)) << key;
  }
  EXPECT_EQ(ValueInWideTable(record, {}, "ProductName"), std::nullopt);
}

// Tables that were told too short: the last string reaches beyond.
TEST(WideRecordTest, AStringMayReachBeyondItsTable) {
  const Writer w;
  std::string table = w.Table(u"040C04B0", {w.String(u"ProductName", u"Jeu de dames")});
  table.replace(0, 2, U16(table.size() - 10));
  EXPECT_THAT(ValueInWideRecord(w.Record({w.Strings({table})}), "ProductName"),
              Optional(Eq(u"Jeu de dames")));
}

TEST(WideRecordTest, ALengthThatLeadsOutOfTheRecordEndsWithIt) {
  const Writer w;
  std::string string = w.String(u"ProductName", u"Dames");
  string.replace(0, 2, U16(60000));
  const std::string table = w.Table(u"040C04B0", {w.String(u"FileVersion", u"1.0"), string});
  std::string record = w.Record({w.Strings({table})});
  EXPECT_THAT(ValueInWideRecord(record, "FileVersion"), Optional(Eq(u"1.0")));
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
  record.replace(0, 2, U16(65535));
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
}

TEST(WideRecordTest, ALengthThatCannotBeEndsTheReadingThere) {
  const Writer w;
  for (const std::size_t length : {1u, 5u}) {
    std::string bad = w.String(u"CompanyName", u"Maison");
    bad.replace(0, 2, U16(length));
    const std::string record = w.Record({w.Strings({w.Table(
        u"040C04B0", {w.String(u"FileVersion", u"1.0"), bad, w.String(u"ProductName", u"n")})})});
    EXPECT_THAT(ValueInWideRecord(record, "FileVersion"), Optional(Eq(u"1.0")));
    EXPECT_EQ(ValueInWideRecord(record, "ProductName"), std::nullopt);
  }
}

// --- Languages ---

TEST(WideRecordTest, TheTableThatTheTranslationNamesFirstCounts) {
  const auto name = [](const std::string& record) {
    return ValueInWideRecord(record, "ProductName");
  };
  EXPECT_THAT(name(TwoLanguages({{0x040C, 0x04B0}, {0x0409, 0x04B0}})), Optional(Eq(u"Dames")));
  EXPECT_THAT(name(TwoLanguages({{0x0409, 0x04B0}, {0x040C, 0x04B0}})), Optional(Eq(u"Draughts")));
  EXPECT_THAT(name(TwoLanguages({{0x0407, 0x04B0}, {0x040C, 0x04B0}})), Optional(Eq(u"Dames")))
      << "the first one that is there";
  EXPECT_THAT(name(TwoLanguages({{0x0407, 0x04B0}})), Optional(Eq(u"Draughts")))
      << "none is named: the first table";
  EXPECT_THAT(name(TwoLanguages({})), Optional(Eq(u"Draughts")));
}

TEST(WideRecordTest, TheNeutralLanguageIsATranslationToo) {
  const Writer w;
  const std::string record =
      w.Record({w.Strings({w.Table(u"040904B0", {w.String(u"ProductName", u"Draughts")}),
                           w.Table(u"000004B0", {w.String(u"ProductName", u"Dames")})}),
                w.Translation({{0, 0x04B0}})});
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
}

TEST(WideRecordTest, TheTranslationMayStandBeforeTheStrings) {
  const Writer w;
  const std::string record =
      w.Record({w.Translation({{0x040C, 0x04B0}}),
                w.Strings({w.Table(u"040904B0", {w.String(u"ProductName", u"Draughts")}),
                           w.Table(u"040C04B0", {w.String(u"ProductName", u"Dames")})})});
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
}

TEST(WideRecordTest, ARecordMayHaveTwoBlocksOfStrings) {
  const Writer w;
  const std::string record =
      w.Record({w.Strings({w.Table(u"040904B0", {w.String(u"ProductName", u"Draughts")})}),
                w.Strings({w.Table(u"040C04B0", {w.String(u"ProductName", u"Dames")})}),
                w.Translation({{0x040C, 0x04B0}})});
  EXPECT_THAT(ValueInWideRecord(record, "ProductName"), Optional(Eq(u"Dames")));
}

// --- What is no such record ---

TEST(WideRecordTest, OtherBytesHoldNoValue) {
  const std::string eight = VersionBlock8({{"ProductName", "Dames"}});
  for (const std::string& bytes :
       {std::string(), std::string("\x20"), eight, std::string(500, '\0'), std::string(500, '\xFF'),
        Writer().Node(u"VS_VERSION", 0, 0, "")}) {
    EXPECT_EQ(ValueInWideRecord(bytes, "ProductName"), std::nullopt);
  }
}

TEST(WideRecordTest, ARecordThatIsCutShortIsReadAsFarAsItGoes) {
  const std::string record = Writer().Jeu();
  std::size_t whole = 0;
  for (std::size_t length = 0; length < record.size(); ++length) {
    const auto value = ValueInWideRecord(record.substr(0, length), "FileDescription");
    EXPECT_TRUE(Text(u"Jeu de dames").starts_with(value.value_or(u""))) << length;
    if (value == Text(u"Jeu de dames")) ++whole;
  }
  EXPECT_GT(whole, 0u);
}

// Every number of a record, wrong in each of these ways, ends in some answer.
TEST(WideRecordTest, NoNumberLeadsTheReadingAstray) {
  const std::string record = TwoLanguages({{0x040C, 0x04B0}});
  for (std::size_t at = 0; at + 2 <= record.size(); at += 2) {
    for (const std::size_t number : {0u, 1u, 6u, 7u, 0x7FFFu, 0xFFFFu}) {
      std::string wrong = record;
      wrong.replace(at, 2, U16(number));
      const auto value = ValueInWideRecord(wrong, "ProductName");
      EXPECT_LE(value.value_or(u"").size(), record.size() / 2);
    }
  }
}

}  // namespace
}  // namespace trovex::test
