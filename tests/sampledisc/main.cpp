// trovex-sampledisc DEST: writes the sample disc into DEST, to try the programs on. DEST is a new
// or empty directory, or one that holds an earlier sample disc.
// Exit status: 0; 1 something could not be written; 2 the command line is wrong.
#include <exception>
#include <filesystem>
#include <iostream>

#include "support/SampleDisc.h"

namespace {

// Why DEST cannot be used; nothing if it can.
const char* Objection(const std::filesystem::path& destination) {
  namespace fs = std::filesystem;
  if (!fs::exists(destination)) return nullptr;
  if (!fs::is_directory(destination)) return "not a directory";
  if (fs::is_empty(destination) || trovex::test::IsSampleDisc(destination)) return nullptr;
  return "the directory is neither empty nor a sample disc";
}

int Run(int count, char** arguments) {
  if (count != 2 || *arguments[1] == '\0' || *arguments[1] == '-') {
    std::cerr << "usage: trovex-sampledisc DEST\n";
    return 2;
  }
  const std::filesystem::path destination = arguments[1];
  if (const char* objection = Objection(destination)) {
    std::cerr << "trovex-sampledisc: " << arguments[1] << ": " << objection << "\n";
    return 2;
  }
  trovex::test::WriteSampleDisc(destination);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return Run(count, arguments);
  } catch (const std::exception& error) {
    std::cerr << "trovex-sampledisc: " << error.what() << "\n";
    return 1;
  }
}
