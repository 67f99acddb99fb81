#include "Apps/trovex-aide/HelpFile.h"

#include <algorithm>
#include <map>

#include "Apps/trovex-aide/BTree.h"
#include "Apps/trovex-aide/Bytes.h"
#include "Apps/trovex-aide/Fonts.h"
#include "Apps/trovex-aide/Names.h"
#include "Apps/trovex-aide/TopicFile.h"
#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

constexpr uint32_t kMagic = 0x00035F3F;
constexpr uint32_t kNone = 0xFFFFFFFF;
constexpr uint32_t kHeaderSize = 16;
constexpr uint32_t kFileHead = 9;
constexpr uint32_t kFileFlags = 4;

// |SYSTEM: the version is that of Windows 3.1, the flags say that nothing is compressed.
constexpr uint32_t kSystemMagic = 0x036C;
constexpr uint32_t kMinor = 21;
constexpr uint32_t kMajor = 1;
enum SystemRecord : uint32_t { kTitle = 1, kContents = 3, kMacro = 4, kWindow = 6 };

constexpr uint32_t kWindowHasName = 0x0002;
constexpr uint32_t kWindowHasCaption = 0x0004;
constexpr uint32_t kWindowHasColours = 0x0300;
constexpr uint32_t kWhite = 0x00FFFFFF;

using Files = std::map<std::string, std::string>;

std::string SystemFile(const Book& book, uint32_t contents) {
  Bytes file;
  const auto add = [&](SystemRecord type, const Bytes& data) {
    file.U16(type).U16(data.Size()).Raw(data.Get());
  };
  const std::string title = ToCp1252(book.title);
  file.U16(kSystemMagic).U16(kMinor).U16(kMajor).U32(0).U16(0);
  add(kTitle, Bytes().Zero(title));
  add(kContents, Bytes().U32(contents));
  add(kMacro, Bytes().Zero("BrowseButtons()"));
  Bytes window;
  window.U16(kWindowHasName | kWindowHasCaption | kWindowHasColours);
  window.Field("", 10).Field("main", 9).Field(title, 51);
  window.U16(0).U16(0).U16(0).U16(0).U16(0).U32(kWhite).U32(kWhite);
  add(kWindow, window);
  return file.Get();
}

std::string ContextFile(const Book& book, const std::vector<uint32_t>& addresses) {
  std::map<int32_t, uint32_t> sorted;
  for (size_t i = 0; i < addresses.size(); ++i) {
    sorted[NameHash(book.topics[i].name)] = addresses[i];
  }
  std::vector<TreeEntry> entries;
  for (const auto& [hash, address] : sorted) {
    entries.push_back({Bytes().U32(static_cast<uint32_t>(hash)).Get(), Bytes().U32(address).Get()});
  }
  return BuildTree("L4", TreeUse::kData, entries).bytes;
}

std::string MapFile(const std::vector<uint32_t>& addresses) {
  Bytes file;
  file.U16(static_cast<uint32_t>(addresses.size()));
  for (size_t i = 0; i < addresses.size(); ++i) {
    file.U32(static_cast<uint32_t>(i) + 1).U32(addresses[i]);
  }
  return file.Get();
}

std::string TitleFile(const Book& book, const std::vector<uint32_t>& addresses) {
  std::vector<TreeEntry> entries;
  for (size_t i = 0; i < addresses.size(); ++i) {
    entries.push_back(
        {Bytes().U32(addresses[i]).Get(), Bytes().Zero(ToCp1252(book.topics[i].title)).Get()});
  }
  return BuildTree("Lz", TreeUse::kData, entries).bytes;
}

// How accents are passed over where texts are sorted.
char16_t Unaccented(char16_t unit) {
  constexpr TextView kAccented = u"àâäáãåçéèêëíìîïñóòôöõúùûüýÿœæ’";
  constexpr TextView kPlain = u"aaaaaaceeeeiiiinooooouuuuyyoa'";
  static_assert(kAccented.size() == kPlain.size());
  const char16_t lower = ToLower(unit);
  const size_t place = kAccented.find(lower);
  return place == TextView::npos ? lower : kPlain[place];
}

Text SortKey(TextView text) {
  Text key;
  for (const char16_t unit : text) key += Unaccented(unit);
  return key;
}

struct KeywordOrder {
  bool operator()(const Text& a, const Text& b) const { return KeywordBefore(a, b); }
};

// The three files of the keywords: the tree counts the topics of each and leads to their addresses
// in the data; the map tells which leaf the n-th keyword stands on.
void AddKeywords(const Book& book, const std::vector<uint32_t>& addresses, Files& files) {
  std::map<Text, std::vector<uint32_t>, KeywordOrder> sorted;
  for (size_t i = 0; i < addresses.size(); ++i) {
    for (const Text& keyword : book.topics[i].keywords) {
      std::vector<uint32_t>& places = sorted[keyword];
      if (places.empty() || places.back() != addresses[i]) places.push_back(addresses[i]);
    }
  }
  Bytes data, map;
  std::vector<TreeEntry> entries;
  for (const auto& [keyword, places] : sorted) {
    Bytes entry;
    entry.U16(static_cast<uint32_t>(places.size())).U32(data.Size());
    for (const uint32_t place : places) data.U32(place);
    entries.push_back({Bytes().Zero(ToCp1252(keyword)).Get(), entry.Get()});
  }
  const Tree tree = BuildTree("F24", TreeUse::kData, entries);
  const uint32_t leaves = static_cast<uint32_t>(tree.first_entry_of_leaf.size());
  map.U16(leaves);
  for (uint32_t page = 0; page < leaves; ++page) map.U32(tree.first_entry_of_leaf[page]).U16(page);
  files["|KWBTREE"] = tree.bytes;
  files["|KWDATA"] = data.Get();
  files["|KWMAP"] = map.Get();
}

std::string WithHead(const std::string& content) {
  const uint32_t size = static_cast<uint32_t>(content.size());
  return Bytes().U32(size + kFileHead).U32(size).U8(kFileFlags).Raw(content).Get();
}

// The files one behind the other, and last the directory.
std::string Assemble(const Files& files) {
  std::string body;
  std::vector<TreeEntry> entries;
  for (const auto& [name, content] : files) {
    const uint32_t place = kHeaderSize + static_cast<uint32_t>(body.size());
    entries.push_back({Bytes().Zero(name).Get(), Bytes().U32(place).Get()});
    body += WithHead(content);
  }
  const uint32_t directory = kHeaderSize + static_cast<uint32_t>(body.size());
  body += WithHead(BuildTree("z4", TreeUse::kDirectory, entries).bytes);
  const uint32_t size = kHeaderSize + static_cast<uint32_t>(body.size());
  return Bytes().U32(kMagic).U32(directory).U32(kNone).U32(size).Raw(body).Get();
}

}  // namespace

bool KeywordBefore(const Text& a, const Text& b) {
  const Text key_a = SortKey(a), key_b = SortKey(b);
  return key_a != key_b ? key_a < key_b : a < b;
}

std::string BuildHelpFile(const Book& book) {
  const TopicFile topics = BuildTopics(book);
  Files files;
  files["|TOPIC"] = topics.bytes;
  files["|SYSTEM"] = SystemFile(book, topics.addresses.front());
  files["|FONT"] = FontFile();
  files["|CONTEXT"] = ContextFile(book, topics.addresses);
  files["|CTXOMAP"] = MapFile(topics.addresses);
  files["|TTLBTREE"] = TitleFile(book, topics.addresses);
  AddKeywords(book, topics.addresses, files);
  return Assemble(files);
}

}  // namespace trovex::aide
