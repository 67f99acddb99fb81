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

// A file that is deleted unless it was kept.
class NewFile {
 public:
  explicit NewFile(const Text& name) : name_(name), handle_(CurrentPlatform().OpenWrite(name)) {}
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
    kept_ = true;
  }

 private:
  void Flush() {
    CurrentPlatform().Write(handle_, buffer_.data(), buffer_.size());
    buffer_.clear();
  }

  const Text& name_;
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
