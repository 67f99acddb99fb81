#include "Platform/Posix/InstalledSettings.h"

#include <gtest/gtest.h>

namespace trovex::posix {
namespace {

TEST(InstalledSettingsTest, AnInstalledProgramHasThemInTheUsersDirectory) {
  EXPECT_EQ(InstalledSettings("/usr/bin", "/home/eva/conf", "/home/eva"),
            "/home/eva/conf/trovex/Trovex.ini");
  EXPECT_EQ(InstalledSettings("/usr/local/bin", "", "/home/eva"),
            "/home/eva/.config/trovex/Trovex.ini");
}

TEST(InstalledSettingsTest, ADirectoryThatIsNotAbsoluteCountsAsMissing) {
  EXPECT_EQ(InstalledSettings("/usr/bin", "conf", "/home/eva"),
            "/home/eva/.config/trovex/Trovex.ini");
  EXPECT_EQ(InstalledSettings("/usr/bin", "conf", ""), "");
}

TEST(InstalledSettingsTest, AnyOtherProgramHasThemBesideItself) {
  EXPECT_EQ(InstalledSettings("/work/build/native", "/home/eva/conf", "/home/eva"), "");
}

}  // namespace
}  // namespace trovex::posix
