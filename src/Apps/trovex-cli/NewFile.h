// A file that comes into being whole or not at all.
#pragma once

#include <filesystem>
#include <fstream>
#include <string_view>

namespace trovex::cli {

// Written under a name of its own beside `path`, put in its place by Commit. What was not committed
// goes with the object; a file that stood there before stays as it was.
class NewFile {
 public:
  explicit NewFile(const std::filesystem::path& path);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void Write(std::string_view bytes);
  // False once something could not be opened or written.
  bool Good() const { return good_; }
  // True if the file stands complete under its name.
  bool Commit();

 private:
  std::filesystem::path target_, temporary_;
  std::ofstream out_;
  bool good_ = false;
  bool committed_ = false;
};

}  // namespace trovex::cli
