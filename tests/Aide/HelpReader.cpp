#include "HelpReader.h"

#include <algorithm>

namespace trovex::test {
namespace {

constexpr uint32_t kNone = 0xFFFFFFFF;
constexpr uint32_t kFontCount = 5;

void Expect(bool holds, const std::string& what) {
  if (!holds) throw BadHelpFile(what);
}

std::string_view Slice(std::string_view bytes, size_t at, size_t count) {
  Expect(at <= bytes.size() && count <= bytes.size() - at, "a place beyond the end");
  return bytes.substr(at, count);
}

}  // namespace

uint32_t ByteView::Number(size_t count) {
  uint32_t number = 0;
  const std::string_view taken = Raw(count);
  for (size_t i = count; i > 0; --i) number = number << 8 | static_cast<uint8_t>(taken[i - 1]);
  return number;
}

std::string_view ByteView::Raw(size_t count) {
  Expect(count <= bytes_.size(), "the data end too early");
  const std::string_view taken = bytes_.substr(0, count);
  bytes_.remove_prefix(count);
  return taken;
}

std::string ByteView::Zero() {
  const size_t end = bytes_.find('\0');
  Expect(end != std::string_view::npos, "a text without its end");
  const std::string text(Raw(end));
  Raw(1);
  return text;
}

int ByteView::Short() {
  Expect(!bytes_.empty(), "the data end too early");
  if ((bytes_[0] & 1) == 0) return static_cast<int>(U8() / 2) - 64;
  return static_cast<int>(U16() / 2) - 16384;
}

uint32_t ByteView::UShort() {
  Expect(!bytes_.empty(), "the data end too early");
  return (bytes_[0] & 1) == 0 ? U8() / 2 : U16() / 2;
}

int ByteView::Long() {
  Expect(!bytes_.empty(), "the data end too early");
  if ((bytes_[0] & 1) == 0) return static_cast<int>(U16() / 2) - 16384;
  return static_cast<int>(U32() / 2) - 0x40000000;
}

// A record of |TOPIC.
struct HelpReader::Link {
  uint32_t size = 0, previous = 0, next = 0, type = 0;
  std::string format, texts;
};

HelpReader::HelpReader(const std::string& bytes) {
  ReadDirectory(bytes);
  ReadTopicFile();
}

void HelpReader::ReadDirectory(std::string_view all) {
  ByteView header(all);
  Expect(header.U32() == 0x00035F3F, "the mark of a help file is missing");
  const uint32_t directory = header.U32();
  Expect(header.U32() == kNone, "a list of free places");
  Expect(header.U32() == all.size(), "the size of the file is wrong");
  const auto file_at = [&](size_t at) {
    ByteView head(Slice(all, at, 9));
    const uint32_t reserved = head.U32(), used = head.U32();
    Expect(reserved >= used + 9, "a file larger than its place");
    Slice(all, at, reserved);
    return std::string(Slice(all, at + 9, used));
  };
  for (const ReadEntry& entry : ReadTreeOf(file_at(directory), kDirectoryTree, 0x400).entries) {
    files_[entry.key] = file_at(ByteView(entry.data).U32());
  }
}

std::vector<std::pair<uint32_t, std::string>> HelpReader::SystemRecords() const {
  ByteView system(File("|SYSTEM"));
  Expect(system.U16() == 0x036C, "the mark of |SYSTEM is missing");
  Expect(system.U16() == 21 && system.U16() == 1, "another version of the format");
  system.U32();
  Expect(system.U16() == 0, "compressed");
  std::vector<std::pair<uint32_t, std::string>> records;
  while (system.Left() > 0) {
    const uint32_t type = system.U16();
    const uint32_t size = system.U16();
    records.emplace_back(type, system.Raw(size));
  }
  return records;
}

uint32_t HelpReader::AddressOf(uint32_t hash) const {
  for (const ReadEntry& entry : ReadTreeOf(File("|CONTEXT"), kContextTree).entries) {
    if (ByteView(entry.key).U32() == hash) return ByteView(entry.data).U32();
  }
  throw BadHelpFile("a name that |CONTEXT lacks");
}

std::map<std::string, std::vector<uint32_t>> HelpReader::Keywords() const {
  std::map<std::string, std::vector<uint32_t>> keywords;
  for (const ReadEntry& entry : ReadTreeOf(File("|KWBTREE"), kKeywordTree).entries) {
    ByteView data(entry.data);
    const uint32_t count = data.U16(), place = data.U32();
    ByteView addresses(Slice(File("|KWDATA"), place, 4 * count));
    for (uint32_t i = 0; i < count; ++i) keywords[entry.key].push_back(addresses.U32());
  }
  return keywords;
}

// Positions count 16384 to a block, of which 4084 are there; a record that is longer than its block
// goes on in the data of the next one.
std::string HelpReader::At(uint32_t position, size_t count) const {
  Expect(position >= 12, "a position before the first one");
  uint32_t block = (position - 12) / 0x4000;
  size_t at = (position - 12) % 0x4000;
  Expect(at < 4084, "a position behind its block's data");
  std::string bytes;
  for (; bytes.size() < count; ++block, at = 0) {
    const size_t part = std::min<size_t>(count - bytes.size(), 4084 - at);
    bytes += Slice(File("|TOPIC"), block * 0x1000 + 12 + at, part);
  }
  return bytes;
}

HelpReader::Link HelpReader::LinkAt(uint32_t position) const {
  const std::string head_bytes = At(position, 21);
  ByteView head(head_bytes);
  Link link;
  link.size = head.U32();
  const uint32_t texts_size = head.U32();
  link.previous = head.U32();
  link.next = head.U32();
  const uint32_t format_size = head.U32();
  link.type = head.U8();
  Expect(format_size >= 21 && link.size == format_size + texts_size, "sizes that do not agree");
  const std::string all = At(position, link.size);
  link.format = all.substr(21, format_size - 21);
  link.texts = all.substr(format_size);
  return link;
}

ReadParagraph HelpReader::ParagraphOf(const Link& link) const {
  Expect(link.type == 0x20, "a record of unknown type");
  ByteView format(link.format), texts(link.texts);
  ReadParagraph paragraph;
  Expect(format.Long() == static_cast<int>(link.texts.size()), "a paragraph's size");
  Expect(format.UShort() == link.texts.size(), "a paragraph's count of characters");
  format.U32();
  const uint32_t bits = format.U16();
  Expect((bits & ~0x0256U) == 0, "data of a paragraph that is not expected");
  if (bits & 0x0002) format.Short();
  if (bits & 0x0004) format.Short();
  if (bits & 0x0010) paragraph.left = format.Short();
  if (bits & 0x0040) paragraph.first = format.Short();
  if (bits & 0x0200) {
    for (int tabs = format.Short(); tabs > 0; --tabs) format.UShort();
  }
  bool in_link = false;
  while (true) {
    const std::string text = texts.Zero();
    paragraph.text += text;
    if (in_link) paragraph.link_texts.back() += text;
    switch (format.U8()) {
      case 0x80:
        Expect(format.U16() < kFontCount, "a font that |FONT lacks");
        break;
      case 0x82:
        break;
      case 0x83:
        paragraph.text += '\t';
        break;
      case 0x89:
        Expect(in_link, "the end of a link that has not begun");
        in_link = false;
        break;
      case 0xE3:
        Expect(!in_link, "a link within a link");
        in_link = true;
        paragraph.links.push_back(format.U32());
        paragraph.link_texts.emplace_back();
        break;
      case 0xFF:
        Expect(!in_link && format.Left() == 0 && texts.Left() == 0, "a paragraph's end");
        return paragraph;
      default:
        throw BadHelpFile("an unknown command");
    }
  }
}

void HelpReader::ReadTopicFile() {
  Expect(File("|TOPIC").size() % 0x1000 == 0, "an incomplete block");
  std::vector<uint32_t> positions, heads;
  uint32_t before = kNone, block = 0, counted = 0, promised_head = 12;
  for (uint32_t position = 12; position != kNone;) {
    const Link link = LinkAt(position);
    Expect(link.previous == before, "a record that does not know the one before");
    const uint32_t here = (position - 12) / 0x4000;
    if (here != block) counted = 0;
    block = here;
    positions.push_back(position);
    if ((position - 12) % 0x4000 + link.size > 4084) {
      ++run_over_;
      Expect(link.type == 0x20 && link.size + 200 > 4084, "a short record runs over");
    }
    if (link.type == 2) {
      Expect(position == promised_head, "the head of a topic is not where the one before says");
      heads.push_back(position);
      ByteView head(link.format);
      const uint32_t size = head.U32();
      ReadTopicOf topic;
      topic.address = block * 0x8000 + counted;
      topic.back = head.U32();
      topic.forward = head.U32();
      topic.number = head.U32();
      Expect(head.U32() == kNone, "a part that does not scroll");
      Expect(head.U32() == link.next, "the text does not begin behind the head");
      promised_head = head.U32();
      Expect(size >= link.size, "a topic's size");
      if (!link.texts.empty()) topic.title = ByteView(link.texts).Zero();
      topics_.push_back(topic);
    } else {
      topics_.back().paragraphs.push_back(ParagraphOf(link));
      counted += static_cast<uint32_t>(link.texts.size());
    }
    before = position;
    position = link.next;
  }
  CheckBlocks(positions, heads);
  Expect(topics_.back().title.empty() && topics_.back().paragraphs.empty(), "an end with text");
  topics_.pop_back();
}

void HelpReader::CheckBlocks(const std::vector<uint32_t>& positions,
                             const std::vector<uint32_t>& heads) const {
  const auto last_before = [](const std::vector<uint32_t>& all, uint32_t limit) {
    const auto place = std::lower_bound(all.begin(), all.end(), limit);
    return place == all.begin() ? kNone : *(place - 1);
  };
  const std::string& topic = File("|TOPIC");
  for (uint32_t block = 0; block * 0x1000 < topic.size(); ++block) {
    ByteView head(Slice(topic, block * 0x1000, 12));
    const uint32_t begin = 12 + block * 0x4000;
    const auto first = std::lower_bound(positions.begin(), positions.end(), begin);
    const bool begins_here = first != positions.end() && *first < begin + 0x4000;
    Expect(head.U32() == last_before(positions, begin), "the last record before a block");
    Expect(head.U32() == (begins_here ? *first : kNone), "the first record of a block");
    Expect(head.U32() == last_before(heads, begin), "the last topic before a block");
  }
}

}  // namespace trovex::test
