#include "Apps/trovex-aide/TopicFile.h"

#include <algorithm>

#include "Apps/trovex-aide/Bytes.h"
#include "Apps/trovex-aide/Paragraph.h"
#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

constexpr uint32_t kNone = 0xFFFFFFFF;
constexpr uint32_t kBlockSize = 0x1000;
constexpr uint32_t kBlockHead = 12;
constexpr uint32_t kBlockData = kBlockSize - kBlockHead;
constexpr uint32_t kBlockSpan = 0x4000;    // positions that a block takes, used or not
constexpr uint32_t kBlockCounts = 0x8000;  // addresses that a block takes
constexpr uint32_t kLinkHead = 21;
constexpr uint32_t kTopicHeadSize = 28;
constexpr uint32_t kTopicRecord = 0x02;
constexpr uint32_t kTextRecord = 0x20;

// A record of the file: the head of a topic or one of its paragraphs.
struct Record {
  uint32_t type = kTextRecord;
  size_t topic = 0;
  std::string format;  // of a head: made when all positions are known
  std::string texts;
  uint32_t block = 0;
  uint32_t at = 0;  // in the data of the block
  uint32_t address = 0;

  uint32_t FormatSize() const {
    return kLinkHead +
           (type == kTopicRecord ? kTopicHeadSize : static_cast<uint32_t>(format.size()));
  }
  uint32_t Size() const { return FormatSize() + static_cast<uint32_t>(texts.size()); }
  uint32_t Position() const { return kBlockHead + block * kBlockSpan + at; }
};

Record Head(size_t topic, TextView title) {
  Record record;
  record.type = kTopicRecord;
  record.topic = topic;
  if (!title.empty()) record.texts = Bytes().Zero(ToCp1252(title)).Get();
  return record;
}

Record TextOf(size_t topic, Paragraph paragraph) {
  Record record;
  record.topic = topic;
  record.format = std::move(paragraph.format);
  record.texts = std::move(paragraph.texts);
  return record;
}

class Builder {
 public:
  explicit Builder(const Book& book) {
    for (size_t i = 0; i < book.topics.size(); ++i) AddTopic(i, book.topics[i]);
    heads_.push_back(records_.size());
    records_.push_back(Head(book.topics.size(), {}));  // the end, which engines expect
    Place();
  }

  TopicFile Build() {
    TopicFile file;
    for (size_t i = 0; i + 1 < heads_.size(); ++i) {
      file.addresses.push_back(records_[heads_[i]].address);
    }
    std::vector<std::string> data(records_.back().block + 1 + records_.back().Size() / kBlockData);
    for (size_t i = 0; i < records_.size(); ++i) Store(data, records_[i], Serialized(i));
    for (uint32_t block = 0; block < data.size() && !data[block].empty(); ++block) {
      data[block].resize(kBlockData, '\0');
      file.bytes += BlockHead(block) + data[block];
    }
    return file;
  }

 private:
  void AddTopic(size_t number, const Topic& topic) {
    heads_.push_back(records_.size());
    records_.push_back(Head(number, topic.title));
    records_.push_back(TextOf(number, TitleParagraph(topic.title)));
    for (const Block& block : topic.blocks) {
      records_.push_back(TextOf(number, BlockParagraph(block)));
    }
  }

  // A record stays within a block, the head of a topic in that of its title. Only a paragraph that
  // is longer than a block runs on into the next ones, from the beginning of one.
  void Place() {
    uint32_t block = 0, used = 0, counted = 0;
    for (size_t i = 0; i < records_.size(); ++i) {
      Record& record = records_[i];
      const bool head = record.type == kTopicRecord && i + 1 < records_.size();
      const uint32_t together = record.Size() + (head ? records_[i + 1].Size() : 0);
      if (used > 0 && used + together > kBlockData) {
        ++block;
        used = counted = 0;
      }
      record.block = block;
      record.at = used;
      record.address = block * kBlockCounts + counted;
      if (record.type == kTextRecord) counted += static_cast<uint32_t>(record.texts.size());
      used += record.Size();
      for (; used > kBlockData; used -= kBlockData) {
        ++block;
        counted = 0;
      }
    }
  }

  static void Store(std::vector<std::string>& data, const Record& record, std::string_view bytes) {
    data[record.block].resize(record.at, '\0');
    for (uint32_t block = record.block; !bytes.empty(); ++block) {
      const size_t room = kBlockData - data[block].size();
      data[block] += bytes.substr(0, room);
      bytes.remove_prefix(std::min(room, bytes.size()));
    }
  }

  uint32_t PositionOf(size_t record) const {
    return record < records_.size() ? records_[record].Position() : kNone;
  }

  std::string Serialized(size_t number) const {
    const Record& record = records_[number];
    Bytes bytes;
    bytes.U32(record.Size()).U32(static_cast<uint32_t>(record.texts.size()));
    bytes.U32(number > 0 ? PositionOf(number - 1) : kNone).U32(PositionOf(number + 1));
    bytes.U32(record.FormatSize()).U8(record.type);
    bytes.Raw(record.type == kTopicRecord ? TopicHead(record.topic) : record.format);
    return bytes.Raw(record.texts).Get();
  }

  // Size, neighbours for the buttons << and >>, number, beginnings.
  std::string TopicHead(size_t topic) const {
    const bool last = topic + 1 == heads_.size();
    uint32_t size = 0;
    const size_t end = last ? records_.size() : heads_[topic + 1];
    for (size_t i = heads_[topic]; i < end; ++i) size += records_[i].Size();
    Bytes head;
    head.U32(size).U32(Neighbour(topic, -1)).U32(Neighbour(topic, 1));
    head.U32(static_cast<uint32_t>(topic)).U32(kNone);
    head.U32(last ? kNone : PositionOf(heads_[topic] + 1));
    return head.U32(last ? kNone : PositionOf(heads_[topic + 1])).Get();
  }

  uint32_t Neighbour(size_t topic, int step) const {
    const size_t topics = heads_.size() - 1;
    const size_t other = topic + static_cast<size_t>(step);
    return topic < topics && other < topics ? records_[heads_[other]].address : kNone;
  }

  // The last record before the block, the first that begins in it, the last head before it.
  std::string BlockHead(uint32_t block) const {
    uint32_t last = kNone, first = kNone, head = kNone;
    for (const Record& record : records_) {
      if (record.block > block) break;
      if (record.block == block) {
        first = record.Position();
        break;
      }
      last = record.Position();
      if (record.type == kTopicRecord) head = last;
    }
    return Bytes().U32(last).U32(first).U32(head).Get();
  }

  std::vector<Record> records_;
  std::vector<size_t> heads_;  // their numbers, the end's included
};

}  // namespace

TopicFile BuildTopics(const Book& book) {
  return Builder(book).Build();
}

}  // namespace trovex::aide
