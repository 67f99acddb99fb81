// Ground of the help's tests: small books written in the test, and that of the program.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Apps/trovex-aide/Book.h"
#include "Apps/trovex-aide/Names.h"

namespace trovex::test {

using namespace aide;

// A topic with a title and one paragraph of this source.
inline Topic TopicOf(const std::string& name, const std::string& body) {
  std::vector<Mistake> mistakes;
  Topic topic =
      ReadTopic(name + ".txt", "sujet: " + name + "\ntitre: Sur " + name + "\n\n" + body, mistakes);
  EXPECT_TRUE(mistakes.empty()) << mistakes.front().text;
  return topic;
}

inline Book BookOf(std::vector<Topic> topics) {
  Book book;
  book.title = u"Aide";
  book.topics = std::move(topics);
  return book;
}

// The help of the program.
inline std::string SourceFolder() {
  return TROVEX_SOURCES "/src/Aide";
}
inline Book ProgramBook() {
  std::vector<Mistake> mistakes;
  Book book = ReadBook(SourceFolder(), mistakes);
  EXPECT_TRUE(mistakes.empty()) << mistakes.front().text;
  return book;
}

}  // namespace trovex::test
