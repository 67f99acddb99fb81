// What the tests of permissions share: another user, and files and directories that are closed to
// him.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include "Faults/FaultsTest.h"

namespace trovex::test {

// The process is somebody without privileges for the life of the object; anybody but the
// privileged user is that already.
class AsNobody {
 public:
  AsNobody() {
    constexpr unsigned kNobody = 65534;
    if (geteuid() != 0) return;
    EXPECT_EQ(setegid(kNobody), 0);
    EXPECT_EQ(seteuid(kNobody), 0);
    changed_ = true;
  }
  ~AsNobody() {
    if (!changed_) return;
    EXPECT_EQ(seteuid(0), 0);
    EXPECT_EQ(setegid(0), 0);
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  bool changed_ = false;
};

class PermissionTest : public FaultsTest {
 protected:
  PermissionTest() {
    Allow("", 0755);
    Allow("SORTIE", 0777);
    OnDisc("OUVERT/JEU.EXE", Game("Un jeu"));
  }
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
