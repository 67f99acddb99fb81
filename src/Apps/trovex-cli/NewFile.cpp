#include "Apps/trovex-cli/NewFile.h"

#include <string>

namespace trovex::cli {
namespace {

namespace fs = std::filesystem;

// The file itself, where the name is a link to it: the link shall stay.
fs::path Resolved(const fs::path& path) {
  std::error_code error;
  const fs::path whole = fs::weakly_canonical(path, error);
  return error ? path : whole;
}

// A name beside the target that nothing bears.
fs::path FreeName(const fs::path& target) {
  std::error_code error;
  for (int number = 1;; ++number) {
    fs::path name = target;
    name += "." + std::to_string(number) + ".tmp";
    if (!fs::exists(fs::symlink_status(name, error))) return name;
  }
}

}  // namespace

NewFile::NewFile(const fs::path& path) : target_(Resolved(path)), temporary_(FreeName(target_)) {
  std::error_code error;
  if (fs::is_directory(target_, error)) return;
  out_.open(temporary_, std::ios::binary);
  good_ = out_.is_open();
}

NewFile::~NewFile() {
  if (committed_ || !out_.is_open()) return;
  out_.close();
  std::error_code error;
  fs::remove(temporary_, error);
}

void NewFile::Write(std::string_view bytes) {
  if (!good_) return;
  out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  good_ = out_.good();
}

bool NewFile::Commit() {
  if (!good_ || !out_.flush()) return good_ = false;
  out_.close();
  std::error_code error;
  fs::rename(temporary_, target_, error);
  committed_ = !out_.fail() && !error;
  if (!committed_) fs::remove(temporary_, error);
  return good_ = committed_;
}

}  // namespace trovex::cli
