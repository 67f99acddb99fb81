#include "Apps/trovex-aide/BTree.h"

#include "Apps/trovex-aide/Bytes.h"

namespace trovex::aide {
namespace {

constexpr uint32_t kMagic = 0x293B;
constexpr uint32_t kNoPage = 0xFFFF;
constexpr size_t kLeafHead = 8;
constexpr size_t kIndexHead = 6;

// What an index page of the next level says of a page.
struct Child {
  std::string first_key;
  uint32_t page;
};

class Builder {
 public:
  Builder(TreeUse use, const std::vector<TreeEntry>& entries)
      : page_size_(use == TreeUse::kDirectory ? 0x400 : 0x800), entries_(entries) {}

  void Build() {
    std::vector<Child> level = Leaves();
    while (level.size() > 1) {
      level = IndexLevel(level);
      ++levels_;
    }
  }

  std::string Header(std::string_view structure, TreeUse use) const {
    const uint32_t pages = static_cast<uint32_t>(pages_.size());
    Bytes header;
    header.U16(kMagic).U16(use == TreeUse::kDirectory ? 0x0402 : 0x0002).U16(page_size_);
    header.Field(structure, 16).U16(0).U16(static_cast<uint32_t>(first_entries_.size()) - 1);
    header.U16(pages - 1).U16(kNoPage).U16(pages).U16(levels_);
    return header.U32(static_cast<uint32_t>(entries_.size())).Get();
  }

  std::string Pages() const {
    std::string all;
    for (const std::string& page : pages_) all += page;
    return all;
  }

  std::vector<uint32_t> FirstEntries() const { return first_entries_; }

 private:
  // Entries are put into a page as long as they fit; leaves know their neighbours.
  std::vector<Child> Leaves() {
    std::vector<Child> level;
    size_t next = 0;
    do {
      const size_t first = next;
      std::string content;
      while (next < entries_.size()) {
        const TreeEntry& entry = entries_[next];
        if (kLeafHead + content.size() + entry.key.size() + entry.data.size() > page_size_) break;
        content += entry.key + entry.data;
        ++next;
      }
      const uint32_t page = static_cast<uint32_t>(pages_.size());
      Bytes head;
      head.U16(Unused(kLeafHead + content.size())).U16(static_cast<uint32_t>(next - first));
      head.U16(page == 0 ? kNoPage : page - 1).U16(next < entries_.size() ? page + 1 : kNoPage);
      AddPage(head.Get() + content);
      first_entries_.push_back(static_cast<uint32_t>(first));
      level.push_back({entries_.empty() ? std::string() : entries_[first].key, page});
    } while (next < entries_.size());
    return level;
  }

  // The first child of an index page goes without a key: it is for all that comes before the
  // others.
  std::vector<Child> IndexLevel(const std::vector<Child>& children) {
    std::vector<Child> level;
    for (size_t next = 0; next < children.size();) {
      const Child& first = children[next++];
      std::string content;
      uint32_t count = 0;
      for (; next < children.size(); ++next, ++count) {
        const std::string entry = children[next].first_key + Bytes().U16(children[next].page).Get();
        if (kIndexHead + content.size() + entry.size() > page_size_) break;
        content += entry;
      }
      Bytes head;
      head.U16(Unused(kIndexHead + content.size())).U16(count).U16(first.page);
      level.push_back({first.first_key, static_cast<uint32_t>(pages_.size())});
      AddPage(head.Get() + content);
    }
    return level;
  }

  uint32_t Unused(size_t used) const { return page_size_ - static_cast<uint32_t>(used); }

  void AddPage(std::string page) {
    page.resize(page_size_, '\0');
    pages_.push_back(std::move(page));
  }

  uint32_t page_size_;
  const std::vector<TreeEntry>& entries_;
  std::vector<std::string> pages_;
  std::vector<uint32_t> first_entries_;
  uint32_t levels_ = 1;
};

}  // namespace

Tree BuildTree(std::string_view structure, TreeUse use, const std::vector<TreeEntry>& entries) {
  Builder builder(use, entries);
  builder.Build();
  return {builder.Header(structure, use) + builder.Pages(), builder.FirstEntries()};
}

}  // namespace trovex::aide
