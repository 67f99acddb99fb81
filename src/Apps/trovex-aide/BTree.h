// The search tree of the help file: sorted entries in pages of fixed size.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trovex::aide {

// Key and data as they stand in a leaf page.
struct TreeEntry {
  std::string key;
  std::string data;
};

enum class TreeUse { kData, kDirectory };

struct Tree {
  std::string bytes;                          // the header and the pages
  std::vector<uint32_t> first_entry_of_leaf;  // leaf pages are the first pages
};

// Builds a tree of entries that are sorted already, as the engine will compare them. `structure`
// tells the engine what key and data are ("z4": a text, then a long). An entry must fit its page:
// 1 KB for the directory, 2 KB else.
Tree BuildTree(std::string_view structure, TreeUse use, const std::vector<TreeEntry>& entries);

}  // namespace trovex::aide
