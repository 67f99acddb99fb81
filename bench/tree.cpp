// trovex-bench-tree DEST [SCALE [EVERY]]: makes the tree that bench/run measures on, in the new
// directory DEST. At scale 1 (the default) it has 20,000 directories below DEST and 200,000 files:
// one in EVERY (10) is an executable, one in twice as many an archive, the rest are small texts and
// data. The same numbers give the same tree everywhere.
// Exit status: 0; 1 something could not be written; 2 the command line is wrong.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "support/ExecutableBuilder.h"

namespace {

constexpr std::size_t kDirectories = 20'000, kFiles = 200'000;
constexpr int kMaxDepth = 6;
constexpr std::uint64_t kSeed = 19960312;

// The engine's numbers are the same everywhere; the library's distributions are not.
class Dice {
 public:
  std::size_t Below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }

 private:
  std::mt19937_64 engine_{kSeed};
};

struct Directory {
  std::string path;
  int depth = 0;
  bool has_setup = false;
};

void Check(bool succeeded, const std::string& path) {
  if (!succeeded) throw std::system_error(errno, std::generic_category(), path);
}

// "NAME" and a number of five digits.
std::string Numbered(std::string_view name, std::size_t number) {
  const std::string digits = std::to_string(number);
  return std::string(name) + std::string(5 - std::min<std::size_t>(5, digits.size()), '0') + digits;
}

class Tree {
 public:
  Tree(const std::string& root, double scale, std::size_t every)
      : directories_(static_cast<std::size_t>(kDirectories * scale)),
        files_(static_cast<std::size_t>(kFiles * scale)),
        every_(every) {
    all_.push_back({root});
    open_.push_back(0);
  }

  void Write() {
    for (std::size_t i = 0; i < directories_; ++i) MakeDirectory(i);
    for (std::size_t i = 1; i < all_.size(); ++i) Describe(i);
    // The descriptions count among the files that are neither executable nor archive.
    std::size_t spare = described_;
    for (std::size_t i = 0; i < files_; ++i) {
      if (i % every_ == 0) {
        Executable(i / every_);
      } else if (i % (2 * every_) == every_ / 2) {
        Archive(i);
      } else if (spare > 0) {
        --spare;
      } else {
        Other(i);
      }
    }
  }

 private:
  // Below any directory made so far that is not too deep.
  void MakeDirectory(std::size_t number) {
    const Directory& parent = all_[open_[dice_.Below(open_.size())]];
    Directory made{parent.path + "/" + Numbered("REP", number), parent.depth + 1};
    Check(mkdir(made.path.c_str(), 0777) == 0, made.path);
    if (made.depth < kMaxDepth) open_.push_back(all_.size());
    all_.push_back(std::move(made));
  }

  void Describe(std::size_t number) {
    const std::string& path = all_[number].path;
    const std::string name = "logiciel " + std::to_string(number);
    if (number % 5 == 0) Description(path + "/FILE_ID.DIZ", "--------------------\r\nLe " + name);
    if (number % 7 == 1) Description(path + "/README.TXT", "Notes sur le " + name + "\r\nFin");
    if (number % 11 == 2) Description(path + "/SETUP.LST", "[Setup]\r\nTitle=Le " + name);
    if (number % 13 == 3) Description(path + "/SETUP.INI", "[Startup]\r\nAppName=Le " + name);
  }

  void Description(const std::string& path, const std::string& text) {
    File(path, text + "\r\n");
    ++described_;
  }

  Directory& AnyDirectory() { return all_[dice_.Below(all_.size())]; }

  // Nine in twenty have an 8-bit record, nine a 16-bit one, two none; one in eight is a setup.
  void Executable(std::size_t number) {
    Directory& directory = AnyDirectory();
    std::string name = Numbered("PROG", number);
    if (number % 8 == 0 && !directory.has_setup) {
      directory.has_setup = true;
      name = number % 16 == 0 ? "SETUP" : "INSTALL";
    }
    File(directory.path + "/" + name + ".EXE", Contents(number));
  }

  static std::string Contents(std::size_t number) {
    using namespace trovex::test;
    const std::string text = std::to_string(number);
    const VersionStrings strings = {{"CompanyName", "Maison " + text},
                                    {"FileDescription", "Programme " + text},
                                    {"FileVersion", "1." + text},
                                    {"ProductName", "Produit " + text}};
    const std::size_t kind = number % 20;
    if (kind == 18) return DosExecutable();
    if (kind == 19) return NeExecutable("");
    return kind % 2 == 0 ? NeExecutable(VersionBlock8(strings))
                         : PeExecutable(VersionBlock16(strings));
  }

  void Archive(std::size_t number) {
    File(AnyDirectory().path + "/" + Numbered("ARCH", number) + ".ZIP",
         trovex::test::ZipArchive(22 + dice_.Below(2000)));
  }

  void Other(std::size_t number) {
    static constexpr std::string_view kExtensions[] = {".TXT", ".DAT", ".DLL", ".HLP", ".BMP"};
    const std::string_view extension = kExtensions[number % std::size(kExtensions)];
    File(AnyDirectory().path + "/" + Numbered("FICH", number) + std::string(extension),
         std::string(dice_.Below(400), 'x'));
  }

  static void File(const std::string& path, const std::string& bytes) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    Check(file >= 0, path);
    const ssize_t written = write(file, bytes.data(), bytes.size());
    Check(close(file) == 0 && written == static_cast<ssize_t>(bytes.size()), path);
  }

  std::size_t directories_, files_, every_, described_ = 0;
  Dice dice_;
  std::vector<Directory> all_;
  std::vector<std::size_t> open_;  // indices of those that may have children
};

// The scale, or 0 where the text is none.
double Scale(const char* text) {
  char* end = nullptr;
  const double scale = std::strtod(text, &end);
  const bool sound = end != text && *end == '\0' && scale >= 0.001 && scale <= 4;
  return sound ? scale : 0;
}

// One executable in so many files, or 0 where the text is no such number.
std::size_t Every(const char* text) {
  char* end = nullptr;
  const unsigned long every = std::strtoul(text, &end, 10);
  return end != text && *end == '\0' && every >= 2 && every <= 1000 ? every : 0;
}

}  // namespace

int main(int count, char** arguments) {
  const double scale = count >= 3 ? Scale(arguments[2]) : 1;
  const std::size_t every = count >= 4 ? Every(arguments[3]) : 10;
  if (count < 2 || count > 4 || scale == 0 || every == 0) {
    std::cerr << "usage: trovex-bench-tree DEST [SCALE [EVERY]], SCALE from 0.001 to 4, "
                 "EVERY from 2 to 1000\n";
    return 2;
  }
  try {
    if (!std::filesystem::create_directories(arguments[1])) {
      std::cerr << "trovex-bench-tree: " << arguments[1] << " is there already\n";
      return 2;
    }
    Tree(arguments[1], scale, every).Write();
  } catch (const std::exception& error) {
    std::cerr << "trovex-bench-tree: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
