// The real system's redirection cannot be had everywhere: calls of the test's own stand for it.
#include "Platform/Win32/Redirection.h"

#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

int off = 0, most = 0, calls = 0;

int __stdcall Disable(void** former) {
  *former = &off;
  most = std::max(most, ++off);
  ++calls;
  return 1;
}

int __stdcall Revert(void* former) {
  EXPECT_EQ(former, &off) << "what the system gave is given back";
  --off;
  return 1;
}

int __stdcall Refuse(void**) {
  return 0;
}

class RedirectionTest : public Contract {
 protected:
  RedirectionTest() : former_(Redirection()) {
    off = most = calls = 0;
    Redirection() = {Disable, Revert};
  }
  ~RedirectionTest() override { Redirection() = former_; }

  // True if the operation turned redirection off, and put it back.
  bool Reads(const std::function<void()>& operation) {
    const int before = calls;
    operation();
    EXPECT_EQ(off, 0) << "put back";
    return calls > before;
  }

 private:
  RedirectionCalls former_;
};

TEST_F(RedirectionTest, IsOffWhileTheDiscIsRead) {
  disc_.File("A.EXE", "contenu");
  FindData data;
  FileStatus status;
  std::string block;
  Text buffer;
  EXPECT_TRUE(Reads([&] { platform_.FindClose(platform_.FindFirstFile(u"D:\\*.*", data)); }));
  EXPECT_TRUE(Reads([&] { platform_.GetFileStatus(u"D:\\A.EXE", status); }));
  EXPECT_TRUE(Reads([&] { platform_.Close(platform_.OpenRead(u"D:\\A.EXE")); }));
  EXPECT_TRUE(Reads([&] { platform_.GetFileVersionInfoSize(u"D:\\A.EXE"); }));
  EXPECT_TRUE(Reads([&] { platform_.GetFileProperties(u"D:\\A.EXE", status, block); }));
  EXPECT_TRUE(Reads([&] { platform_.ExtractIconEx(u"D:\\A.EXE", 0, IconOwner::kSystem); }));
  EXPECT_TRUE(Reads(
      [&] { platform_.GetPrivateProfileString(u"S", u"K", u"", buffer, 255, u"D:\\A.EXE"); }));
  EXPECT_TRUE(Reads([&] { platform_.OpenDirectory(u"D:\\"); }));
}

TEST_F(RedirectionTest, IsPutBackWhereAReadFails) {
  EXPECT_TRUE(Reads([&] { ErrorOf([&] { platform_.OpenRead(u"D:\\RIEN"); }); }));
}

TEST_F(RedirectionTest, StaysWhereFilesAreWritten) {
  EXPECT_FALSE(Reads([&] { platform_.Close(platform_.OpenWrite(u"D:\\A.TXT")); }));
}

TEST_F(RedirectionTest, WhatTheSystemRefusesIsNotPutBack) {
  Redirection().disable = Refuse;
  { const Unredirected unredirected; }
  EXPECT_EQ(off, 0);
  Redirection() = {};
  const Unredirected without_the_calls;
}

TEST_F(RedirectionTest, ScopesMayNest) {
  {
    const Unredirected outer, inner;
    EXPECT_EQ(off, 2);
  }
  EXPECT_EQ(off, 0);
}

}  // namespace
}  // namespace trovex::test
