#include "Scanner/WideRecord.h"

#include <algorithm>
#include <cstdint>

namespace trovex {
namespace {

// A node is three numbers of two bytes (its length, the length of its value, the value's type), a
// key with its NUL, the value and the nodes below it. Keys, values and nodes begin at multiples of
// four bytes, or should.
constexpr std::size_t kHeaderSize = 6;
constexpr std::size_t kUnit = 2;
constexpr std::size_t kBoundary = 4;
constexpr std::size_t kLongestKey = 64;  // characters; no key that counts is as long

constexpr std::string_view kRootKey = "VS_VERSION_INFO";
constexpr std::string_view kStringsKey = "StringFileInfo";
constexpr std::string_view kVariablesKey = "VarFileInfo";
constexpr std::string_view kTranslationKey = "Translation";

constexpr std::uint32_t kFixedInfoSignature = 0xFEEF04BD;
constexpr std::size_t kFixedInfoSize = 52;

// Read unit by unit, several times for each file of a scan: what a loop reads is known to lie
// inside before it begins.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Size() const { return bytes_.size(); }
  // The number at `at`, 0 where it does not lie wholly inside.
  char16_t Unit(std::size_t at) const {
    return at + kUnit <= bytes_.size() ? UnitOf(bytes_.data() + at) : char16_t{0};
  }
  std::uint32_t Number32(std::size_t at) const {
    return Unit(at) | static_cast<std::uint32_t>(Unit(at + kUnit)) << 16;
  }
  // Characters of the text from `at` up to its NUL or `end`, at most `longest`.
  std::size_t Length(std::size_t at, std::size_t end, std::size_t longest) const {
    end = std::min(end, bytes_.size());
    const std::size_t most = at < end ? std::min((end - at) / kUnit, longest) : 0;
    const char* unit = bytes_.data() + at;
    std::size_t length = 0;
    for (; length < most && UnitOf(unit) != 0; unit += kUnit) ++length;
    return length;
  }
  // So many characters, as Length has counted them.
  Text TextAt(std::size_t at, std::size_t length) const {
    Text text(length, u'\0');
    const char* unit = bytes_.data() + at;
    for (char16_t& character : text) {
      character = UnitOf(unit);
      unit += kUnit;
    }
    return text;
  }
  // True if these characters, as Length has counted them, are the text, without regard to case.
  bool Says(std::size_t at, std::size_t length, std::string_view text) const {
    if (length != text.size()) return false;
    const char* unit = bytes_.data() + at;
    return std::all_of(text.begin(), text.end(), [&](char letter) {
      const char16_t said = UnitOf(unit), expected = static_cast<unsigned char>(letter);
      unit += kUnit;
      return said == expected || ToUpper(said) == ToUpper(expected);
    });
  }

 private:
  static char16_t UnitOf(const char* bytes) {
    return static_cast<char16_t>(static_cast<unsigned char>(bytes[0]) |
                                 static_cast<unsigned char>(bytes[1]) << 8);
  }

  std::string_view bytes_;
};

struct Node {
  std::size_t end = 0;    // of the node, within the record
  std::size_t value = 0;  // where the value, or what is below, begins
  std::size_t value_length = 0;
  std::size_t key = 0, key_length = 0;  // where the key begins; in characters
};

std::size_t RoundedUp(std::size_t at) {
  return (at + kBoundary - 1) / kBoundary * kBoundary;
}

// Past a key's NUL: on the boundary, unless something else than padding stands before it.
std::size_t BehindPadding(const Bytes& bytes, std::size_t at) {
  return at % kBoundary == 0 || bytes.Unit(at) == 0 ? RoundedUp(at) : at;
}

// Past the zeros between two nodes, as many as there may be: no length is zero.
std::size_t BehindZeros(const Bytes& bytes, std::size_t at, std::size_t end) {
  at += at % kUnit;
  while (at < end && bytes.Unit(at) == 0) at += kUnit;
  return at;
}

// The node at `at`, which ends at `limit` at the latest; nothing if it cannot be one.
std::optional<Node> NodeAt(const Bytes& bytes, std::size_t at, std::size_t limit) {
  if (at + kHeaderSize > limit) return std::nullopt;
  const std::size_t length = bytes.Unit(at);
  if (length < kHeaderSize) return std::nullopt;
  Node node;
  node.end = at + std::min(length, limit - at);
  node.value_length = bytes.Unit(at + kUnit);
  node.key = at + kHeaderSize;
  node.key_length = bytes.Length(node.key, node.end, kLongestKey);
  const std::size_t behind_key = node.key + (node.key_length + 1) * kUnit;
  node.value = std::min(BehindPadding(bytes, behind_key), node.end);
  return node;
}

// Calls `visit` with the nodes from `at` up to `end`, until it says true. One may reach beyond
// `end`, up to `limit`, where the length of what holds it was told too short.
template <typename Visit>
void ForEachNode(const Bytes& bytes, std::size_t at, std::size_t end, std::size_t limit,
                 Visit visit) {
  for (at = BehindZeros(bytes, at, end); at < end; at = BehindZeros(bytes, at, end)) {
    const auto node = NodeAt(bytes, at, limit);
    if (!node || visit(*node)) return;
    at = node->end;
  }
}

// Where the nodes below the root begin: behind its numbers, of known size where they are there.
std::size_t BehindFixedInfo(const Bytes& bytes, const Node& root) {
  const bool known = bytes.Number32(root.value) == kFixedInfoSignature;
  return root.value + (known ? kFixedInfoSize : root.value_length);
}

// A table's key, "040C04B0": language and code page of one word of the translation.
std::string TableKey(const Bytes& bytes, std::size_t at) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string key;
  for (const unsigned number : {bytes.Unit(at), bytes.Unit(at + kUnit)}) {
    for (int shift = 12; shift >= 0; shift -= 4) key += kDigits[number >> shift & 0xF];
  }
  return key;
}

class Record {
 public:
  explicit Record(std::string_view bytes) : bytes_(bytes) {}

  WideTable Table() const {
    const auto root = NodeAt(bytes_, 0, bytes_.Size());
    if (!root || !Bears(*root, kRootKey)) return {};
    const auto table = ChosenTable(*root);
    return table ? WideTable{table->value, table->end} : WideTable{};
  }

  std::optional<Text> ValueIn(const WideTable& table, std::string_view key) const {
    std::optional<Text> value;
    ForEachNode(bytes_, table.begin, table.end, bytes_.Size(), [&](const Node& string) {
      if (!Bears(string, key)) return false;
      value = bytes_.TextAt(string.value, bytes_.Length(string.value, string.end, Text::npos));
      return true;
    });
    return value;
  }

 private:
  bool Bears(const Node& node, std::string_view key) const {
    return bytes_.Says(node.key, node.key_length, key);
  }

  template <typename Visit>
  void ForEachTable(const Node& root, Visit visit) const {
    bool done = false;
    ForEachNode(bytes_, BehindFixedInfo(bytes_, root), root.end, root.end, [&](const Node& block) {
      if (!Bears(block, kStringsKey)) return false;
      ForEachNode(bytes_, block.value, block.end, block.end,
                  [&](const Node& table) { return done = visit(table); });
      return done;
    });
  }

  std::optional<Node> FindTable(const Node& root, std::string_view key) const {
    std::optional<Node> found;
    ForEachTable(root, [&](const Node& table) {
      if (key.empty() || Bears(table, key)) found = table;
      return found.has_value();
    });
    return found;
  }

  std::optional<Node> ChosenTable(const Node& root) const {
    std::optional<Node> chosen;
    ForEachTranslation(root, [&](const std::string& key) {
      chosen = FindTable(root, key);
      return chosen.has_value();
    });
    return chosen ? chosen : FindTable(root, {});
  }

  template <typename Visit>
  void ForEachTranslation(const Node& root, Visit visit) const {
    ForEachNode(bytes_, BehindFixedInfo(bytes_, root), root.end, root.end, [&](const Node& block) {
      if (!Bears(block, kVariablesKey)) return false;
      bool done = false;
      ForEachNode(bytes_, block.value, block.end, block.end, [&](const Node& variable) {
        if (!Bears(variable, kTranslationKey)) return false;
        for (std::size_t i = 0; !done && i < kMostLanguages; ++i) {
          const std::size_t at = variable.value + i * 2 * kUnit;
          if (at + 2 * kUnit > variable.end) break;
          done = visit(TableKey(bytes_, at));
        }
        return done;
      });
      return done;
    });
  }

  static constexpr std::size_t kMostLanguages = 64;

  const Bytes bytes_;
};

}  // namespace

WideTable FindWideTable(std::string_view record) {
  return Record(record).Table();
}

std::optional<Text> ValueInWideTable(std::string_view record, const WideTable& table,
                                     std::string_view key) {
  return Record(record).ValueIn(table, key);
}

std::optional<Text> ValueInWideRecord(std::string_view record, std::string_view key) {
  return ValueInWideTable(record, FindWideTable(record), key);
}

}  // namespace trovex
