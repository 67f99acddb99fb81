#include "Platform/Win32/Unfinished.h"

#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

class UnfinishedTest : public Contract {};

TEST_F(UnfinishedTest, AFileThatIsBeingWrittenGoesAndOneThatIsClosedStays) {
  const FileHandle whole = platform_.OpenWrite(u"D:\\ENTIER.TXT");
  platform_.Write(whole, "entier", 6);
  platform_.Close(whole);
  const FileHandle half = platform_.OpenWrite(u"D:\\DEMI.TXT");
  platform_.Write(half, "demi", 4);
  RemoveUnfinished();
  EXPECT_THAT(FindAll(u"D:\\*.*"), ElementsAre(u"ENTIER.TXT"));
  IgnoringErrors([&] { platform_.Close(half); });
}

}  // namespace
}  // namespace trovex::test
