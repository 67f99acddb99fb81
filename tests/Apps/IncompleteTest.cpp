#include "Apps/trovex-cli/Incomplete.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "Platform/Encoding.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

// A user who names the drive's root "cd".
class NamingHost : public Host {
 public:
  explicit NamingHost(Platform& platform) : platform_(platform) {}
  Platform& GetPlatform() override { return platform_; }
  Text Start() override { return u"D:\\"; }
  Text NameOf(const std::string& argument) override { return FromUtf8(argument); }
  std::string UserNameOf(const Text& name) override { return "cd/" + ToUtf8(name.substr(3)); }

 private:
  Platform& platform_;
};

TEST(Incomplete, RowsLeftOutAreToldByTheirTables) {
  TestDisc disc;
  NamingHost host(disc.GetPlatform());
  Unread unread;
  unread.Add(u"D:\\A.EXE");
  for (int i = 0; i < 12; ++i) unread.AddRow(1);
  unread.AddRow(2);
  EXPECT_THAT(cli::TextsOf(unread),
              ElementsAre(u"D:\\A.EXE", u"12 lignes de trop dans le tableau 1",
                          u"1 ligne de trop dans le tableau 2"));
  std::ostringstream err;
  cli::TellUnread(unread, host, err);
  EXPECT_EQ(err.str(),
            "trovex-cli: Lecture impossible : cd/A.EXE\n"
            "trovex-cli: 12 lignes de trop dans le tableau 1\n"
            "trovex-cli: 1 ligne de trop dans le tableau 2\n");
}

TEST(Incomplete, ACompleteCatalogueIsNoMatter) {
  TestDisc disc;
  NamingHost host(disc.GetPlatform());
  std::ostringstream err;
  cli::TellUnread({}, host, err);
  EXPECT_EQ(err.str(), "");
  EXPECT_TRUE(cli::TextsOf({}).empty());
}

}  // namespace
}  // namespace trovex::test
