#include "Lib/FileNumbers.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "Platform/Encoding.h"
#include "Platform/Platform.h"

namespace trovex {
namespace {

constexpr int kLastNumber = 511;
constexpr std::size_t kPiece = 4096;            // bytes read at a time
constexpr std::size_t kWriteBuffer = 65536;     // bytes written at a time
constexpr std::size_t kLongestRest = 16777216;  // bytes passed over for the sake of the next line

class OpenFile {
 public:
  enum class Mode { kInput, kOutput };

  // Takes over the open file.
  OpenFile(Text name, Mode mode, FileHandle handle)
      : name_(std::move(name)), mode_(mode), handle_(handle) {}

  const Text& Name() const { return name_; }
  bool IsOutput() const { return mode_ == Mode::kOutput; }

  bool AtEnd() {
    if (place_ == buffer_.size() && !ended_) Fill();
    return place_ == buffer_.size();
  }

  // What is left of the line in hand, at most `longest` bytes; the rest and the end stay.
  std::string Start(std::size_t longest) {
    std::string line;
    while (line.size() < longest && !AtEnd()) {
      const std::size_t end = LineEnd();
      const std::size_t taken = std::min(end - place_, longest - line.size());
      line.append(buffer_, place_, taken);
      place_ += taken;
      if (place_ < buffer_.size()) break;
    }
    return line;
  }

  std::string Line(std::size_t longest) {
    std::string line = Start(longest);
    PassLine();
    return line;
  }

  void Write(std::string_view bytes) {
    buffer_ += bytes;
    if (buffer_.size() >= kWriteBuffer) Flush();
  }

  void Close() {
    const FileHandle handle = std::exchange(handle_, FileHandle::kInvalid);
    try {
      if (IsOutput()) FlushTo(handle);
    } catch (const RuntimeError&) {
      CurrentPlatform().Close(handle);
      throw;
    }
    CurrentPlatform().Close(handle);
  }

 private:
  void Fill() {
    buffer_.resize(kPiece);
    place_ = 0;
    std::size_t size = 0;
    try {
      size = CurrentPlatform().Read(handle_, buffer_.data(), kPiece);
    } catch (const RuntimeError&) {
      buffer_.clear();
      throw;
    }
    buffer_.resize(size);
    ended_ = size < kPiece;
  }

  // Where the line in hand ends within the buffer.
  std::size_t LineEnd() const {
    return std::min(buffer_.find_first_of("\r\n", place_), buffer_.size());
  }

  void PassLine() {
    for (std::size_t passed = 0; !AtEnd(); passed += kPiece) {
      if (passed > kLongestRest) return End();
      place_ = LineEnd();
      if (place_ < buffer_.size()) return SkipLineEnd();
    }
  }

  void End() {
    place_ = buffer_.size();
    ended_ = true;
  }

  void SkipLineEnd() {
    const bool carriage_return = buffer_[place_++] == '\r';
    if (carriage_return && !AtEnd() && buffer_[place_] == '\n') ++place_;
  }

  void Flush() { FlushTo(handle_); }

  // What could not be written is dropped: part of it may stand in the file, and the next flush
  // would write it twice.
  void FlushTo(FileHandle handle) {
    const std::string bytes = std::exchange(buffer_, {});
    if (!bytes.empty()) CurrentPlatform().Write(handle, bytes.data(), bytes.size());
  }

  Text name_;
  Mode mode_;
  FileHandle handle_;
  std::string buffer_;  // what was read and not yet given, or what is still to be written
  std::size_t place_ = 0;
  bool ended_ = false;  // the file holds no more than the buffer
};

std::map<int, OpenFile>& Files() {
  static std::map<int, OpenFile> files;
  return files;
}

OpenFile& FileOf(int number) {
  const auto found = Files().find(number);
  if (found == Files().end()) throw RuntimeError(ErrorNumber::kBadFileNumber);
  return found->second;
}

bool IsOpen(const Text& name) {
  return std::any_of(Files().begin(), Files().end(),
                     [&](const auto& entry) { return EqualsNoCase(entry.second.Name(), name); });
}

// Opens by `open`, unless that cannot be.
template <typename Opening>
void Open(int number, Text name, OpenFile::Mode mode, Opening open) {
  if (number < 1 || number > kLastNumber) throw RuntimeError(ErrorNumber::kBadFileNumber);
  // What is being read cannot be emptied under the reader; several may read.
  const bool busy = mode == OpenFile::Mode::kOutput ? IsOpen(name) : IsOpenForOutput(name);
  if (Files().contains(number) || busy) {
    throw RuntimeError(ErrorNumber::kFileAlreadyOpen);
  }
  const FileHandle handle = open();
  Files().try_emplace(number, std::move(name), mode, handle);
}

}  // namespace

int FreeFile() {
  int number = 1;
  for (const auto& [taken, file] : Files()) {
    if (taken != number) break;
    ++number;
  }
  if (number > kLastNumber) throw RuntimeError(ErrorNumber::kTooManyFiles);
  return number;
}

void OpenInput(int number, const FileInHand& file) {
  Open(number, file.Name(), OpenFile::Mode::kInput, [&] { return file.OpenRead(); });
}
void OpenOutput(int number, const Text& name) {
  Open(number, name, OpenFile::Mode::kOutput, [&] { return CurrentPlatform().OpenWrite(name); });
}

bool AtEnd(int number) {
  return FileOf(number).AtEnd();
}

Text LineInput(int number, std::size_t longest) {
  OpenFile& file = FileOf(number);
  if (file.AtEnd()) throw RuntimeError(ErrorNumber::kEndOfFile);
  return FromCp1252(file.Line(longest));
}

Text LineStart(int number, std::size_t longest) {
  OpenFile& file = FileOf(number);
  if (file.AtEnd()) throw RuntimeError(ErrorNumber::kEndOfFile);
  return FromCp1252(file.Start(longest));
}

void Print(int number, TextView text) {
  FileOf(number).Write(ToCp1252(text));
}

void PrintLine(int number, TextView text) {
  OpenFile& file = FileOf(number);
  file.Write(ToCp1252(text));
  file.Write("\r\n");
}

void CloseFile(int number) {
  const auto found = Files().find(number);
  if (found == Files().end()) return;
  auto node = Files().extract(found);
  node.mapped().Close();
}

void CloseAllFiles() {
  while (!Files().empty()) {
    try {
      CloseFile(Files().begin()->first);
    } catch (const RuntimeError&) {
      // Whoever ends the program wants it ended.
    }
  }
}

bool IsOpenForOutput(const Text& name) {
  return std::any_of(Files().begin(), Files().end(), [&](const auto& entry) {
    return entry.second.IsOutput() && EqualsNoCase(entry.second.Name(), name);
  });
}

}  // namespace trovex
