// trovex-damageddisc DEST: writes programs that are not what their headers say into DEST, a new or
// empty directory, for the command lines of both systems to read.
// Exit status: 0; 1 something could not be written; 2 the command line is wrong.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "support/DamagedPrograms.h"

namespace {

void WriteDisc(const std::filesystem::path& destination) {
  for (const auto& program : trovex::test::DamagedPrograms()) {
    const std::filesystem::path path = destination / program.path;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file << program.contents;
    file.close();
  }
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count != 2 ||
        (std::filesystem::exists(arguments[1]) && !std::filesystem::is_empty(arguments[1]))) {
      std::cerr << "usage: trovex-damageddisc DEST (new or empty)\n";
      return 2;
    }
    WriteDisc(arguments[1]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "trovex-damageddisc: " << error.what() << "\n";
    return 1;
  }
}
