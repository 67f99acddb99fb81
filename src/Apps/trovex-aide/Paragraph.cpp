#include "Apps/trovex-aide/Paragraph.h"

#include "Apps/trovex-aide/Bytes.h"
#include "Apps/trovex-aide/Fonts.h"
#include "Apps/trovex-aide/Names.h"
#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

// Commands between texts.
constexpr uint32_t kFontCommand = 0x80;
constexpr uint32_t kEndOfParagraph = 0x82;
constexpr uint32_t kTab = 0x83;
constexpr uint32_t kEndOfLink = 0x89;
constexpr uint32_t kJump = 0xE3;
constexpr uint32_t kEnd = 0xFF;

// Which data of a paragraph follow.
constexpr uint32_t kHasSpaceAndIndent = 0x0016;  // above, below, left
constexpr uint32_t kHasFirst = 0x0040;
constexpr uint32_t kHasTabs = 0x0200;

constexpr TextView kBullet = u"•";

// Where a paragraph stands, in half points. A paragraph with a mark hangs: its first line begins
// kHang to the left of the others, and a tab leads from the mark to them.
struct Place {
  int above;
  int below;
  int left;
  bool hangs = false;
};

constexpr int kMargin = 10;
constexpr int kHang = 24;
constexpr Place kTitlePlace = {8, 12, kMargin};

Place PlaceOf(BlockKind kind) {
  switch (kind) {
    case BlockKind::kHeading:
      return {14, 4, kMargin};
    case BlockKind::kBullet:
    case BlockKind::kStep:
      return {2, 3, kMargin + kHang, true};
    case BlockKind::kTerm:
      return {7, 1, kMargin};
    case BlockKind::kMeaning:
      return {0, 5, kMargin + kHang};
    case BlockKind::kParagraph:
      break;
  }
  return {5, 5, kMargin};
}

// What precedes the commands: unknown values as compilers of this format write them, then the bits.
Bytes PlaceData(const Place& place) {
  Bytes data;
  data.U8(0).U8(0x80).U16(0);
  data.U16(kHasSpaceAndIndent | (place.hangs ? kHasFirst | kHasTabs : 0));
  data.Short(place.above).Short(place.below).Short(place.left);
  if (place.hangs) data.Short(-kHang).Short(1).UShort(place.left);
  return data;
}

// A command closes the text before it.
class Writer {
 public:
  explicit Writer(const Place& place) : commands_(PlaceData(place)) {}

  void Write(TextView text) { texts_.Raw(ToCp1252(text)); }
  void Font(HelpFont font) {
    Command(kFontCommand);
    commands_.U16(static_cast<uint32_t>(font));
  }
  void Tab() { Command(kTab); }
  void BeginLink(const std::string& target) {
    Command(kJump);
    commands_.U32(static_cast<uint32_t>(NameHash(target)));
  }
  void EndLink() { Command(kEndOfLink); }

  Paragraph Close() {
    Command(kEndOfParagraph);
    Command(kEnd);
    const int size = static_cast<int>(texts_.Size());
    Bytes format;
    format.Long(size).UShort(size).Raw(commands_.Get());
    return {format.Get(), texts_.Get()};
  }

 private:
  void Command(uint32_t code) {
    texts_.U8(0);
    commands_.U8(code);
  }

  Bytes texts_;
  Bytes commands_;
};

HelpFont FontOf(SpanKind kind, HelpFont base) {
  if (kind == SpanKind::kBold) return base == HelpFont::kBody ? HelpFont::kBold : base;
  return kind == SpanKind::kCode ? HelpFont::kCode : base;
}

HelpFont BaseFont(BlockKind kind) {
  if (kind == BlockKind::kHeading) return HelpFont::kHeading;
  return kind == BlockKind::kTerm ? HelpFont::kBold : HelpFont::kBody;
}

}  // namespace

Paragraph TitleParagraph(TextView title) {
  Writer writer(kTitlePlace);
  writer.Font(HelpFont::kTitle);
  writer.Write(title);
  return writer.Close();
}

Paragraph BlockParagraph(const Block& block) {
  Writer writer(PlaceOf(block.kind));
  const HelpFont base = BaseFont(block.kind);
  writer.Font(base);
  if (PlaceOf(block.kind).hangs) {
    writer.Write(block.kind == BlockKind::kStep ? TextView(block.marker) : kBullet);
    writer.Tab();
  }
  for (const Span& span : block.spans) {
    const HelpFont font = FontOf(span.kind, base);
    if (font != base) writer.Font(font);
    if (span.kind == SpanKind::kLink) writer.BeginLink(span.target);
    writer.Write(span.text);
    if (span.kind == SpanKind::kLink) writer.EndLink();
    if (font != base) writer.Font(base);
  }
  return writer.Close();
}

}  // namespace trovex::aide
