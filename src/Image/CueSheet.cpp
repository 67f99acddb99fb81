#include "Image/CueSheet.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace trovex::image {
namespace {

constexpr std::size_t kMostTracks = 99 * 2;  // a disc has 99, a sheet may be wrong
constexpr std::uint32_t kRawStride = 2352;
constexpr std::uint32_t kFramesASecond = 75;

constexpr std::string_view kBlanks = " \t\r";

// The words of a line, those in quotes in one piece.
class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  std::string_view Next() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    if (rest_.starts_with('"')) {
      rest_.remove_prefix(1);
      return Take(rest_.find('"'), 1);
    }
    return Take(rest_.find_first_of(kBlanks), 0);
  }

  // What is left but for its last word.
  std::string_view AllButLast() {
    std::string_view text = rest_.substr(0, rest_.find_last_not_of(kBlanks) + 1);
    text = text.substr(0, text.find_last_of(kBlanks));
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
  }
  bool IsQuoted() const {
    const std::size_t first = rest_.find_first_not_of(kBlanks);
    return first != std::string_view::npos && rest_[first] == '"';
  }

 private:
  std::string_view Take(std::size_t end, std::size_t skipped) {
    const std::string_view word = rest_.substr(0, end);
    rest_.remove_prefix(std::min(word.size() + skipped, rest_.size()));
    return word;
  }

  std::string_view rest_;
};

char Upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

bool Is(std::string_view word, std::string_view upper) {
  return std::equal(word.begin(), word.end(), upper.begin(), upper.end(),
                    [](char a, char b) { return Upper(a) == b; });
}

std::optional<std::uint32_t> Number(std::string_view digits) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const bool whole = error == std::errc() && end == digits.data() + digits.size();
  return whole && digits.size() <= 6 ? std::optional(number) : std::nullopt;
}

// "mm:ss:ff" in frames.
std::optional<std::uint32_t> Frames(std::string_view time) {
  const std::size_t first = time.find(':'), second = time.rfind(':');
  if (first == second) return std::nullopt;
  const auto m = Number(time.substr(0, first));
  const auto s = Number(time.substr(first + 1, second - first - 1));
  const auto f = Number(time.substr(second + 1));
  if (!m || !s || !f || *s > 59 || *f >= kFramesASecond) return std::nullopt;
  return (*m * 60 + *s) * kFramesASecond + *f;
}

// "MODE1/2352" and its like name their sectors' size; music and what is unknown has whole ones.
std::uint32_t StrideOf(std::string_view mode) {
  const std::size_t slash = mode.find('/');
  if (slash == std::string_view::npos) return Is(mode, "CDG") ? 2448 : kRawStride;
  const auto stride = Number(mode.substr(slash + 1));
  return stride && *stride >= 2048 && *stride <= 2448 ? *stride : kRawStride;
}

bool HoldsData(std::string_view mode) {
  return !Is(mode, "AUDIO") && !Is(mode, "CDG");
}

std::string_view WithoutPath(std::string_view file) {
  return file.substr(file.find_last_of("/\\:") + 1);
}

class Reader {
 public:
  void TakeLine(std::string_view line) {
    Words words(line);
    const std::string_view command = words.Next();
    if (Is(command, "FILE")) return BeginFile(words);
    if (Is(command, "TRACK")) return BeginTrack(words);
    if (Is(command, "INDEX")) PlaceTrack(words);
  }

  CueSheet Finish() {
    CloseTrack();
    return std::move(sheet_);
  }

 private:
  void BeginFile(Words& words) {
    CloseTrack();
    file_ = WithoutPath(words.IsQuoted() ? words.Next() : words.AllButLast());
    stride_ = 0;
    frames_ = place_ = 0;
  }

  void BeginTrack(Words& words) {
    CloseTrack();
    words.Next();  // its number
    mode_ = words.Next();
    open_ = !mode_.empty();
    placed_ = false;
  }

  void PlaceTrack(Words& words) {
    const auto index = Number(words.Next());
    const auto frames = Frames(words.Next());
    if (!open_ || placed_ || !index || !frames) return;
    // What lies before the first index has the size of the track before.
    if (*frames >= frames_) place_ += std::uint64_t{*frames - frames_} * Stride();
    frames_ = *frames;
    stride_ = StrideOf(mode_);
    placed_ = *index > 0;
  }

  std::uint32_t Stride() const { return stride_ != 0 ? stride_ : StrideOf(mode_); }

  void CloseTrack() {
    if (!open_) return;
    open_ = false;
    sheet_.has_tracks = true;
    stride_ = StrideOf(mode_);
    if (!HoldsData(mode_) || sheet_.data.size() >= kMostTracks) return;
    sheet_.data.push_back({std::string(file_), place_});
  }

  CueSheet sheet_;
  std::string_view file_, mode_;
  std::uint32_t stride_ = 0;  // of the sectors before in the same file; 0 where there are none
  std::uint32_t frames_ = 0;
  std::uint64_t place_ = 0;
  bool open_ = false, placed_ = false;
};

std::string_view NextLine(std::string_view& text) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

constexpr std::string_view kSignature = "\xEF\xBB\xBF";  // of UTF-8

}  // namespace

bool IsCueSheet(std::string_view text) {
  if (text.starts_with(kSignature)) text.remove_prefix(kSignature.size());
  bool has_file = false;
  while (!text.empty()) {
    const std::string_view line = NextLine(text);
    if (line.find('\0') != std::string_view::npos) return false;
    const std::string_view command = Words(line).Next();
    if (command.empty()) continue;
    if (Is(command, "FILE")) has_file = true;
    if (has_file && Is(command, "TRACK")) return true;
    constexpr std::string_view kCommands[] = {"FILE",      "REM",       "CATALOG", "CDTEXTFILE",
                                              "PERFORMER", "TITLE",     "FLAGS",   "ISRC",
                                              "POSTGAP",   "SONGWRITER"};
    const bool known = std::any_of(std::begin(kCommands), std::end(kCommands),
                                   [&](std::string_view word) { return Is(command, word); });
    if (!known && !has_file) return false;
  }
  return has_file;
}

CueSheet ReadCueSheet(std::string_view text) {
  if (text.starts_with(kSignature)) text.remove_prefix(kSignature.size());
  Reader reader;
  while (!text.empty()) reader.TakeLine(NextLine(text));
  return reader.Finish();
}

}  // namespace trovex::image
