#include "Apps/trovex-cli/JsonText.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

using cli::Quoted;

std::string AsTheLibraryWrites(TextView text) {
  return nlohmann::json(ToStrictUtf8(text)).dump();
}

TEST(JsonTextTest, QuotesAndBackslashesAreEscaped) {
  EXPECT_EQ(Quoted(u""), R"("")");
  EXPECT_EQ(Quoted(u"D:\\Jeux\\\"Été\""), R"("D:\\Jeux\\\"Été\"")");
  EXPECT_EQ(Quoted(u"un\r\ndeux\t\u0001"), R"("un\r\ndeux\t\u0001")");
  EXPECT_EQ(Quoted(TextView(u"\xD800", 1)), "\"\xEF\xBF\xBD\"");
}

TEST(JsonTextTest, AnyTextIsWrittenAsTheLibraryWritesIt) {
  std::mt19937 random(20);
  const std::u16string_view usual = u"aZ9 .\\\\\"/éÿ\u007F\u0080日Ж";
  for (int round = 0; round < 20000; ++round) {
    Text text;
    for (std::size_t size = random() % 40; size > 0; --size) {
      const bool any = random() % 16 == 0;
      text += any ? static_cast<char16_t>(random()) : usual[random() % usual.size()];
    }
    if (random() % 8 == 0) text += static_cast<char16_t>(random() % 0x20);
    ASSERT_EQ(Quoted(text), AsTheLibraryWrites(text));
  }
}

}  // namespace
}  // namespace trovex::test
