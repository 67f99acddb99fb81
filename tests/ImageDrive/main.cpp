// The port's contract tests on a drive that is a disc image, but for those of what a disc image is
// not for; tests/Image has tests of its own for what comes instead.
#include <gtest/gtest.h>

namespace {

// Nothing on an image can be written, copied over, renamed or deleted. That holds for every such
// test, be its subject another one: the system's code of a failed deletion, a long or foreign name.
constexpr char kWriting[] =
    "*Writ*:*Written*:*Copy*:*Copi*:*Delet*:"
    "FileContract.AFileTakesTheNameOfAnotherOne:FileContract.WhatCannotBePutInPlaceStays:"
    "FileContract.ADirectoryIsMadeOnce:FileContract.ClosingNothingDoesNoHarm:"
    "FileContract.NamesBeyondTheCodePageOpen:FileContract.NamesLongerThan260CharactersWork:"
    "DirectoryContract.AFailureBringsTheSystemsCodeAndItsText:"
    "ProfileContract.ANewKeyEndsItsSection:ProfileContract.EmptyLinesStayBehindANewKey:"
    "ProfileContract.ANewSectionEndsTheFile:ProfileContract.ALastLineWithoutEndGetsOne:"
    "ProfileContract.SeveralValuesFollowEachOther:ProfileContract.AFileInUtf16StaysOne:";

// What lies on an image never goes; no directory of the host holds it; the image is made anew for
// each file, a thousand times would last too long; and this program bears another name.
constexpr char kOthers[] =
    "*HasGone*:HostContract.*:SearchContract.AManyFilesDirectoryComesWhole:"
    "SystemDataContract.ThisProgramRuns";

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  std::string filter = GTEST_FLAG_GET(filter);
  filter += filter.find('-') == std::string::npos ? "-" : ":";
  GTEST_FLAG_SET(filter, filter + kWriting + kOthers);
  return RUN_ALL_TESTS();
}
