// What the tests of permissions share: files and directories that are closed to an ordinary user.
#pragma once

#include <sys/stat.h>

#include "Faults/FaultsTest.h"
#include "support/Posix/OrdinaryUser.h"

namespace trovex::test {

class PermissionTest : public FaultsTest {
 protected:
  PermissionTest() { OnDisc("OUVERT/JEU.EXE", Game("Un jeu")); }
  ~PermissionTest() override {
    for (const std::filesystem::path& path : closed_) chmod(path.c_str(), 0700);
  }

  void Allow(std::string_view path, mode_t mode) {
    ASSERT_EQ(chmod(disc_.HostPath(path).c_str(), mode), 0);
    closed_.push_back(disc_.HostPath(path));
  }
  // The texts of the first column and the places of the table of executables.
  std::vector<std::string> Places(const Json& catalogue) const {
    std::vector<std::string> places;
    for (const Json& row : Programs(catalogue)) {
      places.push_back(row[0].get<std::string>() + "|" + row[1].get<std::string>() + "|" +
                       row[2].get<std::string>());
    }
    return places;
  }

 private:
  std::vector<std::filesystem::path> closed_;
};

}  // namespace trovex::test
