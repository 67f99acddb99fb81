#include <algorithm>

#include "Apps/trovex-aide/HelpFile.h"
#include "HelpReader.h"
#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

constexpr uint32_t kNoPage = 0xFFFF;

void Expect(bool holds, const std::string& what) {
  if (!holds) throw BadHelpFile("tree: " + what);
}

std::string Text(ByteView& bytes) {
  return bytes.Zero();
}
std::string Four(ByteView& bytes) {
  return std::string(bytes.Raw(4));
}
std::string Six(ByteView& bytes) {
  return std::string(bytes.Raw(6));
}
bool SignedBefore(const std::string& a, const std::string& b) {
  return static_cast<int32_t>(ByteView(a).U32()) < static_cast<int32_t>(ByteView(b).U32());
}
bool KeywordsBefore(const std::string& a, const std::string& b) {
  return aide::KeywordBefore(FromCp1252(a), FromCp1252(b));
}

class Reader {
 public:
  Reader(std::string_view bytes, const TreeKind& kind, uint32_t page_size)
      : kind_(kind), page_size_(page_size) {
    ByteView header(bytes);
    Expect(header.U16() == 0x293B, "the mark is missing");
    Expect(header.U16() == (page_size == 0x400 ? 0x0402U : 0x0002U), "flags");
    Expect(header.U16() == page_size, "the size of pages");
    const std::string structure(header.Raw(16));
    Expect(structure.substr(0, structure.find('\0')) == kind.structure, "structure");
    Expect(header.U16() == 0, "a number that must be zero");
    header.U16();
    root_ = header.U16();
    Expect(header.U16() == kNoPage, "a number that must be -1");
    tree_.pages = header.U16();
    tree_.levels = header.U16();
    count_ = header.U32();
    pages_ = bytes.substr(38);
    Expect(pages_.size() == tree_.pages * page_size, "the count of pages");
  }

  ReadTree Read() {
    ReadLeaves();
    for (const ReadEntry& entry : tree_.entries) {
      Expect(Found(entry.key), "an entry that a search does not find");
    }
    return std::move(tree_);
  }

 private:
  std::string_view Page(uint32_t number) const {
    Expect(number < tree_.pages, "a page that is not there");
    return pages_.substr(number * page_size_, page_size_);
  }

  void ReadLeaves() {
    uint32_t page = FirstLeaf(), before = kNoPage;
    while (page != kNoPage) {
      ByteView leaf(Page(page));
      const uint32_t unused = leaf.U16(), entries = leaf.U16();
      Expect(leaf.U16() == before, "a leaf that does not know the one before");
      before = page;
      page = leaf.U16();
      tree_.first_entry_of_leaf.push_back(static_cast<uint32_t>(tree_.entries.size()));
      for (uint32_t i = 0; i < entries; ++i) Add(leaf);
      Expect(leaf.Left() == unused, "the unused bytes of a leaf");
    }
    Expect(tree_.entries.size() == count_, "the count of entries");
  }

  void Add(ByteView& leaf) {
    ReadEntry entry;
    entry.key = kind_.key(leaf);
    entry.data = kind_.data(leaf);
    const bool in_order =
        tree_.entries.empty() || kind_.before(tree_.entries.back().key, entry.key);
    Expect(in_order, "entries out of order");
    tree_.entries.push_back(entry);
  }

  uint32_t FirstLeaf() const {
    uint32_t page = root_;
    for (uint32_t level = tree_.levels; level > 1; --level) {
      ByteView index(Page(page));
      index.U32();
      page = index.U16();
    }
    return page;
  }

  bool Found(const std::string& key) const {
    uint32_t page = root_;
    for (uint32_t level = tree_.levels; level > 1; --level) page = ChildFor(page, key);
    ByteView leaf(Page(page));
    leaf.U16();
    const uint32_t entries = leaf.U16();
    leaf.U32();
    for (uint32_t i = 0; i < entries; ++i) {
      if (kind_.key(leaf) == key) return true;
      kind_.data(leaf);
    }
    return false;
  }

  uint32_t ChildFor(uint32_t page, const std::string& key) const {
    ByteView index(Page(page));
    const uint32_t unused = index.U16(), entries = index.U16();
    uint32_t child = index.U16();
    uint32_t found = child;
    for (uint32_t i = 0; i < entries; ++i) {
      const bool behind = kind_.before(key, kind_.key(index));
      child = index.U16();
      if (!behind) found = child;
    }
    Expect(index.Left() == unused, "the unused bytes of an index page");
    return found;
  }

  const TreeKind& kind_;
  uint32_t page_size_;
  uint32_t root_ = 0;
  uint32_t count_ = 0;
  std::string_view pages_;
  ReadTree tree_;
};

}  // namespace

const TreeKind kDirectoryTree = {"z4", Text, Four, std::less<std::string>()};
const TreeKind kContextTree = {"L4", Four, Four, SignedBefore};
const TreeKind kTitleTree = {"Lz", Four, Text, SignedBefore};
const TreeKind kKeywordTree = {"F24", Text, Six, KeywordsBefore};

ReadTree ReadTreeOf(std::string_view bytes, const TreeKind& kind, uint32_t page_size) {
  return Reader(bytes, kind, page_size).Read();
}

}  // namespace trovex::test
