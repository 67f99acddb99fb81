#include "Platform/NewFile.h"

#include <utility>

namespace trovex {
namespace {

constexpr std::size_t kBuffer = 65536;

// A name beside `file` that nothing bears.
Text NameBeside(FilePort& files, const Text& file) {
  const Text directory = file.substr(0, file.find_last_of(u'\\') + 1);
  FileStatus status;
  for (long long number = 0;; ++number) {
    Text name = directory + u"~Trvx" + Decimal(number) + u".tmp";
    if (!files.GetFileStatus(name, status)) return name;
  }
}

}  // namespace

NewFile::NewFile(FilePort& files, Text place)
    : files_(files),
      place_(std::move(place)),
      name_(NameBeside(files, place_)),
      handle_(files.OpenWrite(name_)) {}

NewFile::~NewFile() {
  if (kept_) return;
  IgnoringErrors([&] { files_.Close(handle_); });
  IgnoringErrors([&] { files_.DeleteFile(name_); });
}

void NewFile::Write(std::string_view bytes) {
  buffer_ += bytes;
  if (buffer_.size() >= kBuffer) Flush();
}

void NewFile::Keep() {
  Flush();
  files_.Close(std::exchange(handle_, FileHandle::kInvalid));
  files_.PutInPlace(name_, place_);
  kept_ = true;
}

void NewFile::Flush() {
  files_.Write(handle_, buffer_.data(), buffer_.size());
  buffer_.clear();
}

}  // namespace trovex
