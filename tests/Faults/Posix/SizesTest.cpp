// Names, paths, directories, files and dates of the largest kind.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Faults/FaultsTest.h"
#include "Platform/Console.h"
#include "Platform/Posix/FileDescriptor.h"

namespace trovex::test {
namespace {

using posix::FileDescriptor;
using testing::HasSubstr;

// A chain of directories of one name, one in the other. It is taken away from the top, since
// nothing that goes by whole paths could.
class Chain {
 public:
  Chain(const std::filesystem::path& top, std::string level, int depth)
      : top_(open(top.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), level_(std::move(level)) {
    bottom_ = FileDescriptor(dup(top_.Get()));
    for (int i = 0; i < depth; ++i) {
      EXPECT_EQ(mkdirat(bottom_.Get(), level_.c_str(), 0700), 0);
      bottom_ =
          FileDescriptor(openat(bottom_.Get(), level_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
  }
  ~Chain() {
    for (const std::string& file : files_) unlinkat(bottom_.Get(), file.c_str(), 0);
    const std::string below = level_ + "/" + level_;
    while (renameat(top_.Get(), below.c_str(), top_.Get(), ".below") == 0) {
      unlinkat(top_.Get(), level_.c_str(), AT_REMOVEDIR);
      renameat(top_.Get(), ".below", top_.Get(), level_.c_str());
    }
    unlinkat(top_.Get(), level_.c_str(), AT_REMOVEDIR);
  }
  Chain(const Chain&) = delete;
  Chain& operator=(const Chain&) = delete;

  // A file at the bottom.
  void File(const std::string& name, std::string_view contents) {
    const FileDescriptor file(openat(bottom_.Get(), name.c_str(), O_WRONLY | O_CREAT, 0600));
    EXPECT_EQ(write(file.Get(), contents.data(), contents.size()), std::ssize(contents));
    files_.push_back(name);
  }

 private:
  FileDescriptor top_, bottom_;
  std::string level_;
  std::vector<std::string> files_;
};

// The process may hold only so many files open for the life of the object.
class OpenFilesLimit {
 public:
  explicit OpenFilesLimit(rlim_t most) {
    getrlimit(RLIMIT_NOFILE, &former_);
    const rlimit limit = {most, former_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &limit);
  }
  ~OpenFilesLimit() { setrlimit(RLIMIT_NOFILE, &former_); }
  OpenFilesLimit(const OpenFilesLimit&) = delete;
  OpenFilesLimit& operator=(const OpenFilesLimit&) = delete;

 private:
  rlimit former_ = {};
};

class SizesTest : public FaultsTest {
 protected:
  std::filesystem::path Root() const { return disc_.HostPath("DISQUE"); }
  // A file of holes, its beginning filled.
  void Sparse(const std::string& name, std::string_view beginning, off_t size) {
    OnDisc(name, beginning);
    ASSERT_EQ(truncate((Root() / name).c_str(), size), 0);
  }
  void Date(const std::string& name, std::time_t seconds) {
    const timespec dates[] = {{seconds, 0}, {seconds, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, (Root() / name).c_str(), dates, 0), 0);
  }
};

constexpr off_t kFiveGiB = off_t{5} << 30;

TEST_F(SizesTest, ANameOf255BytesIsCatalogued) {
  const std::string stem(251, 'N');
  OnDisc(stem + ".EXE", Game("Long"));
  OnDisc(std::string(255, 'D') + "/" + stem + ".ZIP", ZipArchive(2000));
  const Json catalogue = Catalogue(cli::kDone, {"--inspect"});
  EXPECT_EQ(Programs(catalogue)[0][0], "Long");
  EXPECT_EQ(Programs(catalogue)[0][2], " N" + std::string(250, 'n') + ".exe");
  EXPECT_EQ(catalogue["tables"][2]["rows"][0][1], " D:\\D" + std::string(254, 'd'));
}

TEST_F(SizesTest, APathOf4096BytesIsCataloguedInspectedAndExported) {
  constexpr int kLevels = 21;
  const std::string level(199, 'N');
  Chain chain(Root(), level, kLevels);
  chain.File("FOND.EXE", Game("Au fond"));
  chain.File("README.TXT", "Texte du fond\r\n");
  const Json catalogue = Catalogue(cli::kDone, {"--inspect"});
  ASSERT_EQ(Programs(catalogue).size(), 1u);
  EXPECT_EQ(Programs(catalogue)[0][0], "Au fond");
  EXPECT_GT(Programs(catalogue)[0][1].get<std::string>().size(), 4096u);
  EXPECT_THAT(catalogue["tables"][1]["details"][0].dump(), HasSubstr("Texte du fond"));
  EXPECT_EQ(Run({"--quiet", "--table", "1", "--csv", Argument("SORTIE/A.csv"), "--html",
                 Argument("SORTIE/A.htm"), "--pdf", Argument("SORTIE/A.pdf")}),
            cli::kDone);
  EXPECT_THAT(Contents("SORTIE/A.csv"), HasSubstr("Au fond"));
  EXPECT_THAT(Contents("SORTIE/A_tableaux.htm"), HasSubstr("Au fond"));
}

TEST_F(SizesTest, AnExportIsWrittenUnderAPathOf4096Bytes) {
  OnDisc("JEU.EXE", Game("Un jeu"));
  constexpr int kLevels = 19;
  const std::string level(199, 'N');
  Chain chain(disc_.HostPath("SORTIE"), level, kLevels);
  chain.File("A.csv", "avant");
  std::string name = Argument("SORTIE");
  for (int i = 0; i < kLevels; ++i) name += "/" + level;
  EXPECT_EQ(Run({"--quiet", "--table", "1", "--csv", name + "/A.csv"}), cli::kDone) << err_;
  std::ifstream file(name + "/A.csv");
  std::string titles, row;
  std::getline(file, titles);
  std::getline(file, row);
  EXPECT_THAT(row, HasSubstr("Un jeu"));
}

TEST_F(SizesTest, ADirectoryOf100000FilesIsCatalogued) {
  constexpr int kFiles = 100000, kPrograms = 100;
  const std::string directory = (Root() / "FOULE").string();
  std::filesystem::create_directory(directory);
  for (int i = 0; i < kFiles; ++i) {
    const char* const ending = i < kPrograms ? ".EXE" : ".TXT";
    const std::string name = directory + "/F" + std::to_string(100000 + i) + ending;
    ASSERT_EQ(mknod(name.c_str(), S_IFREG | 0600, 0), 0);
  }
  const Json catalogue = Catalogue();
  ASSERT_EQ(Programs(catalogue).size(), static_cast<std::size_t>(kPrograms));
  EXPECT_EQ(Programs(catalogue)[0][2], " F100000.exe");
  EXPECT_EQ(Programs(catalogue)[kPrograms - 1][2], " F100099.exe");
}

TEST_F(SizesTest, ATableThatIsFullSaysSoForEachFurtherFile) {
  constexpr int kFiles = 33000, kRows = 32766;
  const std::string directory = (Root() / "FOULE").string();
  std::filesystem::create_directory(directory);
  for (int i = 0; i < kFiles; ++i) {
    const std::string name = directory + "/F" + std::to_string(100000 + i) + ".ZIP";
    ASSERT_EQ(mknod(name.c_str(), S_IFREG | 0600, 0), 0);
  }
  const Json catalogue = Catalogue(cli::kIncomplete);
  EXPECT_EQ(catalogue["tables"][2]["rows"].size(), static_cast<std::size_t>(kRows));
  EXPECT_EQ(catalogue["messages"].size(), static_cast<std::size_t>(kFiles - kRows));
}

TEST_F(SizesTest, ATreeOf10000LevelsIsWalkedToItsEnd) {
  constexpr int kLevels = 10000;
  Chain chain(Root(), "n", kLevels);
  chain.File("FOND.EXE", Game("Au fond"));
  const OpenFilesLimit limit(256);
  PrepareStack();
  const Json catalogue = Catalogue();
  ASSERT_EQ(Programs(catalogue).size(), 1u);
  EXPECT_EQ(Programs(catalogue)[0][0], "Au fond");
  EXPECT_EQ(Programs(catalogue)[0][1].get<std::string>().size(), 3u + 2 * kLevels);
}

TEST_F(SizesTest, FilesOf5GiBCostNoMoreThanSmallOnes) {
  Sparse("GROS.EXE", Game("Gros jeu"), kFiveGiB);
  Sparse("GROS.ZIP", ZipArchive(200), kFiveGiB);
  const Json catalogue = Catalogue(cli::kDone, {"--inspect"});
  EXPECT_EQ(Programs(catalogue)[0][0], "Gros jeu");
  EXPECT_EQ(catalogue["tables"][2]["rows"][0][0], "5368 709");
}

TEST_F(SizesTest, SettingsOf5GiBAreReadWhereTheKeyStandsEarly) {
  OnDisc("JEU.EXE", DosExecutable());
  Sparse("SETUP.LST", "[Setup]\r\nTitle=Un titre\r\n", kFiveGiB);
  EXPECT_EQ(Programs(Catalogue())[0][0], "Un titre");
}

TEST_F(SizesTest, TextsOf5GiBAreReadAtTheirBeginning) {
  OnDisc("JEU.EXE", DosExecutable());
  Sparse("README.TXT", "Un texte sans fin\r\n", kFiveGiB);
  EXPECT_EQ(Programs(Catalogue(cli::kDone, {"--inspect"}))[0][0], "Un texte sans fin");
}

TEST_F(SizesTest, DatesBefore1970AndAfter2038AreShown) {
  OnDisc("AVANT.ZIP", ZipArchive(2000));
  OnDisc("APRES.ZIP", ZipArchive(2000));
  Date("AVANT.ZIP", -1);
  Date("APRES.ZIP", std::time_t{1} << 31);
  const Json rows = Catalogue()["tables"][2]["rows"];
  EXPECT_EQ(rows[0][3], "19/01/2038");
  EXPECT_EQ(rows[1][3], "31/12/1969");
}

TEST_F(SizesTest, DatesBeyondWhatTheFileSystemKnowsAreShownAllTheSame) {
  OnDisc("JEU.ZIP", ZipArchive(2000));
  for (const std::time_t seconds : {std::time_t{-1} << 45, std::time_t{1} << 45}) {
    Date("JEU.ZIP", seconds);
    const std::string date = Catalogue()["tables"][2]["rows"][0][3];
    EXPECT_EQ(date.size(), 10u) << date;
  }
}

}  // namespace
}  // namespace trovex::test
