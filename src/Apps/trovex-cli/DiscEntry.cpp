#include "Apps/trovex-cli/DiscEntry.h"

#include <vector>

#include "Apps/trovex-cli/Sha1.h"
#include "Platform/Encoding.h"
#include "Platform/Records/FileFormat.h"

namespace trovex::cli {
namespace {

constexpr const char* kTables[] = {"setup", "exe", "zip"};
constexpr std::size_t kPiece = 65536;

// A header that stands further behind is not looked for.
constexpr std::uint64_t kFurthest = 1 << 24;

// A file of the platform, open for as long as the object lives.
class OpenFile {
 public:
  OpenFile(Platform& platform, const Text& name)
      : platform_(platform), file_(platform.OpenRead(name)) {}
  ~OpenFile() { Close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::size_t Read(char* buffer, std::size_t size) { return platform_.Read(file_, buffer, size); }

 private:
  void Close() {
    try {
      platform_.Close(file_);
    } catch (const RuntimeError&) {
      // It was read to where it was wanted.
    }
  }

  Platform& platform_;
  FileHandle file_;
};

// The start of a file, read as far as somebody asks.
class Start : public records::ByteSource {
 public:
  explicit Start(OpenFile& file) : file_(file) {}

  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    if (offset > kFurthest) return 0;
    const auto at = static_cast<std::size_t>(offset);
    ReadUpTo(at + size);
    if (at >= bytes_.size()) return 0;
    return bytes_.copy(buffer, size, at);
  }

  const std::string& Bytes() const { return bytes_; }

 private:
  void ReadUpTo(std::size_t end) {
    while (bytes_.size() < end) {
      const std::size_t before = bytes_.size();
      bytes_.resize(before + kPiece);
      const std::size_t got = file_.Read(bytes_.data() + before, kPiece);
      bytes_.resize(before + got);
      if (got == 0) return;
    }
  }

  OpenFile& file_;
  std::string bytes_;
};

std::string DigestOf(OpenFile& file, const std::string& start) {
  Sha1 sha1;
  sha1.Add(start);
  std::vector<char> piece(kPiece);
  while (const std::size_t got = file.Read(piece.data(), piece.size())) {
    sha1.Add({piece.data(), got});
  }
  return sha1.Digest();
}

std::string Utf8(TextView text) {
  return ToStrictUtf8(text);
}

}  // namespace

std::string TextOf(const Origin& origin) {
  switch (origin.kind) {
    case Origin::Kind::kVersionRecord:
      return "version record";
    case Origin::Kind::kSetting:
      return Utf8(origin.file) + " [" + Utf8(origin.section) + "] " + Utf8(origin.key);
    case Origin::Kind::kLine:
      return Utf8(origin.file) + ", line " + std::to_string(origin.line);
    case Origin::Kind::kProductName:
      return "product name of " + Utf8(origin.file);
    case Origin::Kind::kNone:
      break;
  }
  return {};
}

ReportRow RowOf(const Finding& finding) {
  ReportRow row;
  row.table = kTables[finding.table];
  row.description = Utf8(finding.description);
  row.source = TextOf(finding.origin);
  row.file = Utf8(finding.file);
  row.version = Utf8(finding.version);
  row.product = Utf8(finding.info.zProductName());
  row.company = Utf8(finding.info.zCompanyName());
  row.copyright = Utf8(finding.info.zCopyright());
  if (const auto& status = finding.info.Status()) {
    row.size = status->length;
    row.modified = status->modified;
  }
  return row;
}

bool ReadContents(Platform& platform, const Text& name, bool hash, ReportRow& row) {
  try {
    OpenFile file(platform, name);
    Start start(file);
    const std::string format = NameOf(records::FormatOf(start));
    if (hash) row.sha1 = DigestOf(file, start.Bytes());
    row.format = format;
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace trovex::cli
