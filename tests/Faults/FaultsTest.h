// What the tests of faults share: the command line on the directory DISQUE of a drive, and the
// directory SORTIE beside it for what it writes.
#pragma once

#include <fstream>
#include <iterator>

#include "Apps/CliTest.h"

namespace trovex::test {

class FaultsTest : public CliTest {
 protected:
  FaultsTest() {
    disc_.Directory("DISQUE");
    disc_.Directory("SORTIE");
  }

  int Run(std::vector<std::string> options) {
    options.insert(options.begin(), Argument("DISQUE"));
    return RunWith(options);
  }
  // The catalogue that goes with an exit status.
  Json Catalogue(int status = cli::kDone, std::vector<std::string> options = {}) {
    options.push_back("--json");
    EXPECT_EQ(Run(options), status) << err_;
    return Json::parse(out_, nullptr, false);
  }
  // Rows of the table of executables.
  static Json Programs(const Json& catalogue) { return catalogue["tables"][1]["rows"]; }

  void OnDisc(const std::string& path, std::string_view contents) {
    disc_.File("DISQUE/" + path, contents);
  }
  static std::string Game(const std::string& description) {
    return NeExecutable(VersionBlock8({{"FileDescription", description}}));
  }
  // Programs in a directory of their own each.
  void Games(int count) {
    for (int game = 0; game < count; ++game) {
      const std::string name = "JEU" + std::to_string(game);
      OnDisc(name + "/" + name + ".EXE", Game("Le jeu de " + name));
    }
  }

  bool Exists(std::string_view path) const { return std::filesystem::exists(disc_.HostPath(path)); }
  std::string Contents(std::string_view path) const {
    std::ifstream file(disc_.HostPath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  // Names in a directory, in no promised order.
  std::vector<std::string> Names(std::string_view directory) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(disc_.HostPath(directory))) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  // How many error boxes began so, by the lines on standard error.
  int Errors(const std::string& beginning) const {
    int count = 0;
    std::istringstream lines(err_);
    for (std::string line; std::getline(lines, line);) {
      count += line.starts_with("trovex-cli: " + beginning) ? 1 : 0;
    }
    return count;
  }
};

}  // namespace trovex::test
