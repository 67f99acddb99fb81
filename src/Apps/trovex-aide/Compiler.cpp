#include "Apps/trovex-aide/Compiler.h"

#include <filesystem>
#include <fstream>
#include <ostream>

#include "Apps/trovex-aide/HelpFile.h"
#include "Apps/trovex-aide/Html.h"

namespace trovex::aide {
namespace {

namespace fs = std::filesystem;

struct Wishes {
  std::string source;
  std::string help_file;
  std::string pages;
  std::string source_of_pages;
};

bool ReadArguments(const std::vector<std::string>& arguments, Wishes& wishes) {
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    std::string* wish = nullptr;
    if (argument == "--hlp") wish = &wishes.help_file;
    if (argument == "--html") wish = &wishes.pages;
    if (argument == "--cpp") wish = &wishes.source_of_pages;
    if (wish == nullptr) {
      if (argument.starts_with("-") || !wishes.source.empty()) return false;
      wishes.source = argument;
    } else {
      if (++i == arguments.size()) return false;
      *wish = arguments[i];
    }
  }
  return !wishes.source.empty();
}

bool Write(const fs::path& file, const std::string& bytes, std::ostream& err) {
  std::ofstream out(file, std::ios::binary);
  out << bytes;
  out.close();
  if (out) return true;
  err << "trovex-aide: cannot be written: " << file.string() << '\n';
  return false;
}

bool WritePages(const fs::path& folder, const Book& book, std::ostream& err) {
  std::error_code error;
  fs::create_directories(folder, error);
  for (const auto& [name, page] : BuildPages(book)) {
    if (!Write(folder / name, page, err)) return false;
  }
  return true;
}

}  // namespace

int Run(const std::vector<std::string>& arguments, std::ostream& err) {
  Wishes wishes;
  if (!ReadArguments(arguments, wishes)) {
    err << "usage: trovex-aide SOURCE-FOLDER [--hlp FILE] [--html FOLDER] [--cpp FILE]\n";
    return kWrongCommandLine;
  }
  std::vector<Mistake> mistakes;
  const Book book = ReadBook(wishes.source, mistakes);
  for (const Mistake& mistake : mistakes) {
    err << mistake.file << ':' << mistake.line << ": " << mistake.text << '\n';
  }
  if (!mistakes.empty()) return kFailed;
  if (!wishes.help_file.empty() && !Write(wishes.help_file, BuildHelpFile(book), err)) {
    return kFailed;
  }
  if (!wishes.source_of_pages.empty() &&
      !Write(wishes.source_of_pages, BuildPagesSource(book), err)) {
    return kFailed;
  }
  return wishes.pages.empty() || WritePages(wishes.pages, book, err) ? kDone : kFailed;
}

}  // namespace trovex::aide
