#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>

#include "Apps/trovex-aide/Book.h"
#include "Apps/trovex-aide/Names.h"

namespace trovex::aide {
namespace {

namespace fs = std::filesystem;

// The caption of the help window.
constexpr TextView kBookTitle = u"Aide de Trovex";

// What the format can count: a keyword and a title stand in pages of 2 KB, a paragraph is counted
// in 15 bits.
constexpr size_t kLongestKeyword = 200;
constexpr size_t kLongestTitle = 120;
constexpr size_t kLongestParagraph = 15000;

std::vector<fs::path> SourceFiles(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string Contents(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

class Checker {
 public:
  Checker(const Book& book, std::vector<Mistake>& mistakes) : book_(book), mistakes_(mistakes) {}

  void Check() {
    for (const Topic& topic : book_.topics) CheckName(topic);
    for (const Topic& topic : book_.topics) CheckLengths(topic);
    for (const Topic& topic : book_.topics) {
      for (const Block& block : topic.blocks) CheckBlock(topic, block);
    }
  }

 private:
  void Complain(const Topic& topic, int line, const std::string& text) {
    mistakes_.push_back({topic.file, line, text});
  }

  // Links are found by a number made of the name: two names of one number cannot be told apart.
  void CheckName(const Topic& topic) {
    const auto [place, added] = topics_.emplace(NameHash(topic.name), &topic);
    if (added) return;
    const Topic& other = *place->second;
    Complain(
        topic, 1,
        "the topic " + topic.name + " cannot be told from " + other.name + " of " + other.file);
  }

  void CheckLengths(const Topic& topic) {
    if (topic.title.size() > kLongestTitle) Complain(topic, 1, "the title is too long");
    for (const Text& keyword : topic.keywords) {
      if (keyword.size() > kLongestKeyword) Complain(topic, 1, "a keyword is too long");
    }
  }

  void CheckBlock(const Topic& topic, const Block& block) {
    if (PlainText(block.spans).size() > kLongestParagraph) {
      Complain(topic, block.line, "the paragraph is too long");
    }
    for (const Span& span : block.spans) {
      if (span.kind != SpanKind::kLink || Exists(span.target)) continue;
      Complain(topic, span.line, "a link to an unknown topic: " + span.target);
    }
  }

  bool Exists(const std::string& name) const {
    return std::any_of(book_.topics.begin(), book_.topics.end(),
                       [&](const Topic& topic) { return topic.name == name; });
  }

  const Book& book_;
  std::vector<Mistake>& mistakes_;
  std::map<int32_t, const Topic*> topics_;
};

}  // namespace

void CheckBook(const Book& book, std::vector<Mistake>& mistakes) {
  Checker(book, mistakes).Check();
}

Book ReadBook(const std::filesystem::path& folder, std::vector<Mistake>& mistakes) {
  Book book;
  book.title = kBookTitle;
  for (const fs::path& file : SourceFiles(folder)) {
    book.topics.push_back(ReadTopic(file.string(), Contents(file), mistakes));
  }
  if (book.topics.empty()) mistakes.push_back({folder.string(), 0, "no topics (*.txt) here"});
  CheckBook(book, mistakes);
  return book;
}

}  // namespace trovex::aide
