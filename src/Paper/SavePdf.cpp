#include "Paper/SavePdf.h"

#include <string>
#include <utility>

#include "Lib/LIB_DIALOGUE.h"
#include "Paper/PdfFile.h"
#include "Platform/Platform.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr std::size_t kBuffer = 65536;

// A name beside `file` that nothing bears.
Text NameBeside(const Text& file) {
  const Text directory = file.substr(0, file.find_last_of(u'\\') + 1);
  FileStatus status;
  for (long long number = 0;; ++number) {
    Text name = directory + u"~Trvx" + Decimal(number) + u".tmp";
    if (!CurrentPlatform().GetFileStatus(name, status)) return name;
  }
}

// Written beside the file whose place it takes when it is kept; else it goes, and a former file
// stays as it was.
class NewFile {
 public:
  explicit NewFile(const Text& place)
      : place_(place), name_(NameBeside(place)), handle_(CurrentPlatform().OpenWrite(name_)) {}
  ~NewFile() {
    if (kept_) return;
    IgnoringErrors([&] { CurrentPlatform().Close(handle_); });
    IgnoringErrors([&] { CurrentPlatform().DeleteFile(name_); });
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void Write(std::string_view bytes) {
    buffer_ += bytes;
    if (buffer_.size() >= kBuffer) Flush();
  }

  void Keep() {
    Flush();
    CurrentPlatform().Close(std::exchange(handle_, FileHandle::kInvalid));
    CurrentPlatform().PutInPlace(name_, place_);
    kept_ = true;
  }

 private:
  void Flush() {
    CurrentPlatform().Write(handle_, buffer_.data(), buffer_.size());
    buffer_.clear();
  }

  const Text& place_;
  const Text name_;
  FileHandle handle_;
  std::string buffer_;
  bool kept_ = false;
};

}  // namespace

bool SavePdf(const Pages& pages, const Text& file) {
  try {
    NewFile output(file);
    WritePdf(pages, [&](std::string_view bytes) { output.Write(bytes); });
    output.Keep();
    return true;
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurPdf) + file);
    return false;
  }
}

}  // namespace trovex
