#include "Platform/ScanCache.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "support/ExecutableBuilder.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What reaches the platform beneath.
class Beneath : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    ++searches;
    const FindHandle handle = ForwardingPlatform::FindFirstFile(pattern, data);
    if (handle != FindHandle::kInvalid) ++open_searches;
    return handle;
  }
  void FindClose(FindHandle handle) override {
    --open_searches;
    ForwardingPlatform::FindClose(handle);
  }
  FileHandle OpenRead(const Text& name) override {
    ++opened;
    const FileHandle file = ForwardingPlatform::OpenRead(name);
    ++open_files;
    return file;
  }
  void Close(FileHandle file) override {
    --open_files;
    ForwardingPlatform::Close(file);
  }
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    if (read_fails) throw RuntimeError(ErrorNumber::kDeviceIo);
    const std::size_t read = ForwardingPlatform::Read(file, buffer, size);
    bytes += read;
    return read;
  }
  std::uint32_t GetFileVersionInfoSize(const Text& name) override {
    ++records;
    return ForwardingPlatform::GetFileVersionInfoSize(name);
  }
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override {
    ++profiles;
    return ForwardingPlatform::GetPrivateProfileString(section, key, fallback, buffer, size, file);
  }
  void Forget() override {
    ++forgotten;
    ForwardingPlatform::Forget();
  }

  int searches = 0, open_searches = 0, opened = 0, open_files = 0;
  int records = 0, profiles = 0, forgotten = 0;
  std::size_t bytes = 0;
  bool read_fails = false;
};

class ScanCacheTest : public testing::Test {
 protected:
  ScanCacheTest() : cache_(std::make_unique<ScanCache>(beneath_)) {}

  std::vector<Text> FindAll(Platform& platform, const Text& pattern) {
    std::vector<Text> names;
    FindData data;
    const FindHandle handle = platform.FindFirstFile(pattern, data);
    if (handle == FindHandle::kInvalid) return names;
    do {
      names.push_back(data.name);
    } while (platform.FindNextFile(handle, data));
    platform.FindClose(handle);
    return names;
  }
  std::vector<Text> Find(const Text& pattern) { return FindAll(*cache_, pattern); }

  std::string Contents(const Text& name, std::size_t piece = 4096) {
    std::string contents, buffer(piece, '\0');
    const FileHandle file = cache_->OpenRead(name);
    while (const std::size_t read = cache_->Read(file, buffer.data(), piece)) {
      contents.append(buffer, 0, read);
    }
    cache_->Close(file);
    return contents;
  }

  std::string Record(const Text& name) {
    std::string block;
    cache_->GetFileVersionInfo(name, cache_->GetFileVersionInfoSize(name), block);
    return block;
  }

  Text Profile(const Text& key, const Text& file, std::uint32_t size = 255) {
    Text buffer;
    cache_->GetPrivateProfileString(u"Setup", key, u"absent", buffer, size, file);
    return buffer;
  }

  TestDisc disc_;
  Beneath beneath_{disc_.GetPlatform()};
  std::unique_ptr<ScanCache> cache_;
};

TEST_F(ScanCacheTest, SearchesOfADirectoryAreAnsweredFromOneListing) {
  disc_.File("JEUX/A.EXE");
  disc_.File("JEUX/B.TXT");
  disc_.Directory("JEUX/SOUS");
  const auto plain = FindAll(disc_.GetPlatform(), u"D:\\JEUX\\*.*");
  EXPECT_EQ(Find(u"D:\\JEUX\\*.*"), plain);
  EXPECT_EQ(Find(u"D:\\JEUX\\*"), plain);
  EXPECT_THAT(Find(u"d:\\jeux\\*.exe"), ElementsAre(u"A.EXE"));
  EXPECT_THAT(Find(u"D:\\JEUX\\a.exe"), ElementsAre(u"A.EXE"));
  EXPECT_THAT(Find(u"D:\\JEUX\\SOUS"), ElementsAre(u"SOUS"));
  EXPECT_THAT(Find(u"D:\\JEUX\\?.txt"), ElementsAre(u"B.TXT"));
  EXPECT_THAT(Find(u"D:\\JEUX\\C.EXE"), IsEmpty());
  EXPECT_THAT(Find(u"D:\\JEUX\\*.zip"), IsEmpty());
  EXPECT_EQ(beneath_.searches, 1);
  EXPECT_EQ(beneath_.open_searches, 0);
}

TEST_F(ScanCacheTest, ASearchTellsAttributesAndLeavesNothingBehindAFailure) {
  disc_.Directory("SOUS");
  FindData data{7, u"reste"};
  EXPECT_EQ(cache_->FindFirstFile(u"D:\\RIEN.TXT", data), FindHandle::kInvalid);
  EXPECT_EQ(data.name, u"");
  EXPECT_EQ(data.attributes, 0u);
  const FindHandle handle = cache_->FindFirstFile(u"D:\\SOUS", data);
  EXPECT_NE(data.attributes & kAttributeDirectory, 0u);
  EXPECT_FALSE(cache_->FindNextFile(handle, data));
  EXPECT_EQ(data.name, u"SOUS");
  cache_->FindClose(handle);
  cache_->FindClose(handle);
}

TEST_F(ScanCacheTest, AMissingDirectoryIsLookedForOnce) {
  EXPECT_THAT(Find(u"D:\\RIEN\\*.*"), IsEmpty());
  EXPECT_THAT(Find(u"D:\\RIEN\\A.EXE"), IsEmpty());
  EXPECT_EQ(beneath_.searches, 1);
}

TEST_F(ScanCacheTest, SearchesMayNestAndOutliveTheListingsKept) {
  for (int i = 10; i < 30; ++i) disc_.File("N" + std::to_string(i) + "/A.EXE");
  FindData data;
  const FindHandle outer = cache_->FindFirstFile(u"D:\\*", data);
  std::vector<Text> names;
  do {
    names.push_back(data.name);
    EXPECT_THAT(Find(u"D:\\" + data.name + u"\\*.exe"), ElementsAre(u"A.EXE"));
  } while (cache_->FindNextFile(outer, data));
  EXPECT_EQ(names.size(), 20u);
  EXPECT_EQ(beneath_.searches, 21);
}

TEST_F(ScanCacheTest, AnInvalidHandleDoesNoHarm) {
  FindData data{7, u"reste"};
  EXPECT_FALSE(cache_->FindNextFile(FindHandle::kInvalid, data));
  EXPECT_EQ(data.name, u"reste");
  cache_->FindClose(FindHandle::kInvalid);
}

TEST_F(ScanCacheTest, AFileIsOpenedOnceHoweverOftenItIsRead) {
  disc_.File("README.TXT", "un\r\ndeux");
  EXPECT_EQ(Contents(u"D:\\README.TXT"), "un\r\ndeux");
  EXPECT_EQ(Contents(u"D:\\readme.txt", 3), "un\r\ndeux");
  EXPECT_EQ(beneath_.opened, 1);
  EXPECT_EQ(beneath_.bytes, 8u);
}

TEST_F(ScanCacheTest, TwoReadersOfAFileDoNotDisturbEachOther) {
  disc_.File("README.TXT", "abcdef");
  const FileHandle first = cache_->OpenRead(u"D:\\README.TXT");
  const FileHandle second = cache_->OpenRead(u"D:\\README.TXT");
  char buffer[6] = {};
  EXPECT_EQ(cache_->Read(first, buffer, 4), 4u);
  EXPECT_EQ(std::string(buffer, 4), "abcd");
  EXPECT_EQ(cache_->Read(second, buffer, 2), 2u);
  EXPECT_EQ(std::string(buffer, 2), "ab");
  cache_->Close(second);
  EXPECT_EQ(cache_->Read(first, buffer, 0), 0u);
  EXPECT_EQ(cache_->Read(first, buffer, 6), 2u);
  EXPECT_EQ(std::string(buffer, 2), "ef");
  cache_->Close(first);
}

TEST_F(ScanCacheTest, AReadOfNothingIsNotTheEnd) {
  disc_.File("README.TXT", "abc");
  char buffer[3];
  const FileHandle file = cache_->OpenRead(u"D:\\README.TXT");
  EXPECT_EQ(cache_->Read(file, buffer, 0), 0u);
  EXPECT_EQ(cache_->Read(file, buffer, 3), 3u);
  cache_->Close(file);
}

TEST_F(ScanCacheTest, AFileLargerThanWhatIsSharedIsReadToItsEnd) {
  std::string contents;
  for (int i = 0; contents.size() < 200'000; ++i) contents += std::to_string(i) + "\r\n";
  disc_.File("GROS.TXT", contents);
  EXPECT_EQ(Contents(u"D:\\GROS.TXT"), contents);
  EXPECT_EQ(Contents(u"D:\\GROS.TXT", 10'007), contents);
  EXPECT_EQ(Contents(u"D:\\GROS.TXT", 300'000), contents);
}

TEST_F(ScanCacheTest, FilesOfADirectoryAreClosedWhenTheNextIsInHand) {
  disc_.File("A/README.TXT", "a");
  disc_.File("B/README.TXT", "b");
  Contents(u"D:\\A\\README.TXT");
  EXPECT_EQ(beneath_.open_files, 1);
  EXPECT_EQ(Contents(u"D:\\B\\README.TXT"), "b");
  EXPECT_EQ(beneath_.open_files, 1);
  cache_.reset();
  EXPECT_EQ(beneath_.open_files, 0);
}

TEST_F(ScanCacheTest, NotManyFilesStayOpen) {
  for (int i = 10; i < 60; ++i) {
    const std::string name = "T" + std::to_string(i) + ".TXT";
    disc_.File(name, name);
    EXPECT_EQ(Contents(u"D:\\T" + Decimal(i) + u".TXT"), name);
    EXPECT_LE(beneath_.open_files, 16);
  }
}

TEST_F(ScanCacheTest, AFileThatIsMissingRaisesEachTime) {
  for (int i = 0; i < 2; ++i) {
    try {
      cache_->OpenRead(u"D:\\RIEN.TXT");
      ADD_FAILURE() << "no error was raised";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Kind(), ErrorNumber::kFileNotFound);
    }
  }
  EXPECT_EQ(beneath_.opened, 2);
}

TEST_F(ScanCacheTest, AReadErrorPassesThroughAndIsNotTheEnd) {
  disc_.File("README.TXT", "abc");
  const FileHandle file = cache_->OpenRead(u"D:\\README.TXT");
  char buffer[3];
  beneath_.read_fails = true;
  EXPECT_THROW(cache_->Read(file, buffer, 3), RuntimeError);
  beneath_.read_fails = false;
  EXPECT_EQ(cache_->Read(file, buffer, 3), 3u);
  cache_->Close(file);
}

TEST_F(ScanCacheTest, ARecordIsReadOnce) {
  const std::string block = VersionBlock8({{"FileVersion", "1.0"}});
  disc_.File("A.EXE", NeExecutable(block));
  disc_.File("B.EXE", DosExecutable());
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Record(u"D:\\A.EXE"), block);
    EXPECT_EQ(Record(u"D:\\b.exe"), "");
    EXPECT_EQ(Record(u"D:\\RIEN.EXE"), "");
  }
  EXPECT_EQ(beneath_.records, 2);
  std::string cut;
  EXPECT_TRUE(cache_->GetFileVersionInfo(u"D:\\A.EXE", 10, cut));
  EXPECT_EQ(cut, block.substr(0, 10));
  EXPECT_FALSE(cache_->GetFileVersionInfo(u"D:\\B.EXE", 10, cut));
  EXPECT_EQ(cut, "");
}

TEST_F(ScanCacheTest, TheRecordThatADirectoryComesBackToIsReadOnce) {
  for (int i = 10; i < 50; ++i) {
    disc_.File("JEU" + std::to_string(i) + ".EXE", DosExecutable());
  }
  for (int i = 10; i < 50; ++i) {
    Record(u"D:\\JEU" + Decimal(i) + u".EXE");
    Record(u"D:\\JEU11.EXE");
  }
  EXPECT_EQ(beneath_.records, 40);
}

TEST_F(ScanCacheTest, ProfileAnswersAreKeptByAllThatWasAsked) {
  disc_.File("SETUP.LST", "[Setup]\r\nTitle=Mon Jeu\r\n");
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Profile(u"Title", u"D:\\SETUP.LST"), u"Mon Jeu");
    EXPECT_EQ(Profile(u"Autre", u"D:\\SETUP.LST"), u"absent");
    EXPECT_EQ(Profile(u"Title", u"D:\\SETUP.LST", 4), u"Mon");
    EXPECT_EQ(Profile(u"Title", u"D:\\RIEN.LST"), u"absent");
  }
  EXPECT_EQ(beneath_.profiles, 4);
}

TEST_F(ScanCacheTest, WritingThroughItDropsWhatItKnew) {
  disc_.File("A.TXT", "avant");
  disc_.File("SETUP.LST", "[Setup]\r\nTitle=avant\r\n");
  const auto look = [&] {
    return std::make_tuple(Find(u"D:\\*.TXT"), Contents(u"D:\\A.TXT"),
                           Profile(u"Title", u"D:\\SETUP.LST"));
  };
  look();
  const FileHandle file = cache_->OpenWrite(u"D:\\A.TXT");
  cache_->Write(file, "apres", 5);
  cache_->Close(file);
  cache_->CopyFile(u"D:\\A.TXT", u"D:\\B.TXT");
  EXPECT_TRUE(cache_->WritePrivateProfileString(u"Setup", u"Title", u"apres", u"D:\\SETUP.LST"));
  const auto [names, contents, title] = look();
  EXPECT_THAT(names, testing::UnorderedElementsAre(u"A.TXT", u"B.TXT"));
  EXPECT_EQ(contents, "apres");
  EXPECT_EQ(title, u"apres");
  cache_->DeleteFile(u"D:\\B.TXT");
  EXPECT_THAT(Find(u"D:\\*.TXT"), ElementsAre(u"A.TXT"));
}

TEST_F(ScanCacheTest, ForgettingReadsEverythingAfresh) {
  disc_.File("A.TXT", "avant");
  Find(u"D:\\*.TXT");
  Contents(u"D:\\A.TXT");
  disc_.File("A.TXT", "maintenant");
  disc_.File("B.TXT");
  EXPECT_THAT(Find(u"D:\\*.TXT"), ElementsAre(u"A.TXT"));
  cache_->Forget();
  EXPECT_EQ(Find(u"D:\\*.TXT").size(), 2u);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "maintenant");
}

TEST_F(ScanCacheTest, TheNextScanSeesTheDiskAsItIs) {
  disc_.File("A.TXT", "avant");
  Find(u"D:\\*.TXT");
  cache_ = nullptr;
  disc_.File("B.TXT");
  cache_ = std::make_unique<ScanCache>(beneath_);
  EXPECT_EQ(Find(u"D:\\*.TXT").size(), 2u);
  EXPECT_EQ(beneath_.forgotten, 3);
}

}  // namespace
}  // namespace trovex::test
