// Reads a help file back, the way an engine does, and objects to whatever an engine could stumble
// over.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace trovex::test {

// Thrown with what is wrong with the file.
struct BadHelpFile : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Numbers of the file, lowest byte first; going beyond its end throws.
class ByteView {
 public:
  explicit ByteView(std::string_view bytes) : bytes_(bytes) {}
  uint32_t U8() { return Number(1); }
  uint32_t U16() { return Number(2); }
  uint32_t U32() { return Number(4); }
  int Short();  // the short forms of paragraph data
  uint32_t UShort();
  int Long();
  std::string Zero();  // up to a NUL, which is passed
  std::string_view Raw(size_t count);
  size_t Left() const { return bytes_.size(); }

 private:
  uint32_t Number(size_t count);
  std::string_view bytes_;
};

struct ReadEntry {
  std::string key;   // as stored, a text without its NUL
  std::string data;  // as stored
};

// What kind of keys and data a tree holds.
struct TreeKind {
  std::string structure;  // as its header must say
  std::function<std::string(ByteView&)> key;
  std::function<std::string(ByteView&)> data;
  std::function<bool(const std::string&, const std::string&)> before;  // true if a < b
};
extern const TreeKind kDirectoryTree;  // texts to longs
extern const TreeKind kContextTree;    // signed longs to longs
extern const TreeKind kTitleTree;      // longs to texts
extern const TreeKind kKeywordTree;    // texts to a count and a place

struct ReadTree {
  std::vector<ReadEntry> entries;
  std::vector<uint32_t> first_entry_of_leaf;
  uint32_t levels = 0;
  uint32_t pages = 0;
};
// Follows the leaves, and looks each key up from the root as well. `page_size` is what the header
// must say.
ReadTree ReadTreeOf(std::string_view bytes, const TreeKind& kind, uint32_t page_size = 0x800);

struct ReadParagraph {
  std::string text;             // tabs as '\t'
  std::vector<uint32_t> links;  // hashes
  std::vector<std::string> link_texts;
  int left = 0;
  int first = 0;
};

struct ReadTopicOf {
  uint32_t address = 0;
  std::string title;
  std::vector<ReadParagraph> paragraphs;
  uint32_t back = 0, forward = 0, number = 0;
};

// A help file taken apart.
class HelpReader {
 public:
  explicit HelpReader(const std::string& bytes);

  const std::map<std::string, std::string>& Files() const { return files_; }
  const std::string& File(const std::string& name) const { return files_.at(name); }
  std::vector<std::pair<uint32_t, std::string>> SystemRecords() const;
  const std::vector<ReadTopicOf>& Topics() const { return topics_; }
  size_t RunOver() const { return run_over_; }  // records that go on in another block
  // The address a name's hash leads to; throws if there is none.
  uint32_t AddressOf(uint32_t hash) const;
  // Keywords and the addresses of their topics.
  std::map<std::string, std::vector<uint32_t>> Keywords() const;

 private:
  struct Link;
  void ReadDirectory(std::string_view all);
  void ReadTopicFile();
  std::string At(uint32_t position, size_t count) const;
  Link LinkAt(uint32_t position) const;
  void CheckBlocks(const std::vector<uint32_t>& positions,
                   const std::vector<uint32_t>& heads) const;
  ReadParagraph ParagraphOf(const Link& link) const;

  std::map<std::string, std::string> files_;
  std::vector<ReadTopicOf> topics_;
  size_t run_over_ = 0;
};

}  // namespace trovex::test
