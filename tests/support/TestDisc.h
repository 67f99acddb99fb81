// A drive D: whose contents a test spells out.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "Platform/Platform.h"

namespace trovex::test {

// An empty drive D: for the life of the object, and the real platform of this system over it,
// installed as the current one. Posix: a temporary directory. Win32: the drive that the
// environment variable TROVEX_TEST_DRIVE names ("D:", emptied first), else a substituted one.
// Everything a test could see of its surroundings is fixed: Windows directory C:\WINDOWS, system
// directory C:\WINDOWS\SYSTEM (Posix), the time zone UTC.
class TestDisc {
 public:
  TestDisc();
  ~TestDisc();
  TestDisc(const TestDisc&) = delete;
  TestDisc& operator=(const TestDisc&) = delete;

  // Paths are UTF-8 with '/', relative to the root: "JEUX/SETUP.EXE". Missing directories on the
  // way are made. The file is dated `modified`, local time.
  void File(std::string_view path, std::string_view contents = {},
            const LocalTime& modified = {1997, 3, 1, 12, 0, 0});
  void Directory(std::string_view path);
  void Remove(std::string_view path);  // a file, or a directory with all it holds
  // Win32: sets the hidden attribute; Posix has none, there only a leading point hides.
  void Hide(std::string_view path);
  // Where the path stands on the host; "" is the root.
  std::filesystem::path HostPath(std::string_view path) const;

  Platform& GetPlatform();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace trovex::test
