// The help as its source tells it: topics in order, each a list of blocks of text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Text.h"

namespace trovex::aide {

enum class SpanKind { kPlain, kBold, kCode, kLink };

// A run of text of one kind. `target` is the name of the topic that a link leads to.
struct Span {
  SpanKind kind = SpanKind::kPlain;
  Text text;
  std::string target;
  int line = 0;
};
using Spans = std::vector<Span>;

enum class BlockKind { kParagraph, kHeading, kBullet, kStep, kTerm, kMeaning };

// A paragraph. `marker` is the number of a step, "1."; a meaning explains the term before it.
struct Block {
  BlockKind kind = BlockKind::kParagraph;
  Text marker;
  Spans spans;
  int line = 0;
};

// A page of the help. The name is what links and addresses are made of.
struct Topic {
  std::string file;
  std::string name;
  Text title;
  std::vector<Text> keywords;
  std::vector<Block> blocks;
};

// What is wrong with the source, and where.
struct Mistake {
  std::string file;
  int line = 0;
  std::string text;
};

// The topics, the first one being the contents page.
struct Book {
  Text title;
  std::vector<Topic> topics;
};

// Reads one topic. What is wrong is added to `mistakes`; the topic then is of no use.
//
// UTF-8. First come lines "key: value" up to an empty line: sujet (the name: letters a to z,
// digits,
// "_" and "."), titre, and mots (keywords with ";" between them; may be repeated). Empty lines end
// a paragraph. A line that begins with "== " is a heading; a paragraph that begins with "- " is an
// item, with "1. " a step; " :: " behind its first words makes them a term and the rest its
// meaning. Within it **bold**, `code` and [[text|topic]]. Outside code, blanks before ; : ! ? » and
// behind « are made no-break and apostrophes curled.
Topic ReadTopic(const std::string& file, std::string_view bytes, std::vector<Mistake>& mistakes);

// Reads the files *.txt of a folder in the order of their names and checks that they fit: names are
// unique, links lead somewhere, every character is in Windows-1252, the format of the help file can
// hold every paragraph.
Book ReadBook(const std::filesystem::path& folder, std::vector<Mistake>& mistakes);

// The checks of ReadBook that concern the topics together.
void CheckBook(const Book& book, std::vector<Mistake>& mistakes);

// Text as the help shows it: spans without their marks.
Text PlainText(const Spans& spans);

}  // namespace trovex::aide
