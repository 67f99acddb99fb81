// Files that grow shorter, and directories that vanish, while they are being read.
#include <unistd.h>

#include <functional>

#include "Faults/FaultsTest.h"
#include "Lib/LIB_INI.h"
#include "Platform/ForwardingPlatform.h"
#include "Scanner/TextLines.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

// Runs what a test wants between two readings of a file.
class WatchedReads : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  std::function<void()> after_first_read;

  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    const std::size_t read = Target().Read(file, buffer, size);
    if (after_first_read) std::exchange(after_first_read, {})();
    return read;
  }
};

constexpr std::size_t kPiece = 4096;  // of a file's bytes, read at a time

class ShrinkingTest : public LogicTest {
 protected:
  void Shrink(std::string_view path, off_t size) {
    EXPECT_EQ(truncate(disc.HostPath(path).c_str(), size), 0);
  }
  void ShrinkAfterTheFirstPiece(std::string_view path) {
    reads.after_first_read = [this, path] { Shrink(path, 10); };
  }

  WatchedReads reads{disc.GetPlatform()};
  PlatformScope scope{reads};
};

TEST_F(ShrinkingTest, ATextKeepsWhatWasReadOfIt) {
  disc.File("README.TXT", std::string(10000, 'x') + "\r\nfin");
  ShrinkAfterTheFirstPiece("README.TXT");
  EXPECT_EQ(TextLines(u"D:\\README.TXT").sPremiereLigne(), Text(kPiece, u'x'));
  disc.File("README.TXT", std::string(10000, 'x') + "\r\nfin");
  ShrinkAfterTheFirstPiece("README.TXT");
  EXPECT_EQ(TextLines(u"D:\\README.TXT").sDeuxiemeLigne(), u"");
  disc.File("README.TXT", "Un\r\n" + std::string(10000, 'x') + "\r\nfin");
  ShrinkAfterTheFirstPiece("README.TXT");
  TextBox box;
  ChargeTexte(u"D:\\README.TXT", box);
  EXPECT_EQ(box.GetText(), u"Un\r\n" + Text(kPiece - 4, u'x'));
}

TEST_F(ShrinkingTest, ALargeSettingsFileGivesTheDefault) {
  disc.File("GROS.INI", std::string(400000, ';') + "\r\n[a]\r\nk=1\r\n");
  ShrinkAfterTheFirstPiece("GROS.INI");
  EXPECT_EQ(sLitIni(u"a", u"k", u"rien", u"D:\\GROS.INI"), u"rien");
}

TEST_F(ShrinkingTest, AVersionRecordIsThereAsAWholeOrNotAtAll) {
  const std::string record = VersionBlock8({{"FileDescription", "Un jeu"}});
  const std::string file = NeExecutable(record);
  for (std::size_t size = 0; size <= file.size(); size += 16) {
    disc.File("JEU.EXE", file);
    const std::uint32_t length = reads.GetFileVersionInfoSize(u"D:\\JEU.EXE");
    EXPECT_EQ(length, record.size());
    Shrink("JEU.EXE", static_cast<off_t>(size));
    std::string block;
    const bool there = reads.GetFileVersionInfo(u"D:\\JEU.EXE", length, block);
    EXPECT_EQ(block, there ? record : "") << size;
  }
}

// Watches the progress that a person would see.
class WatchedBuffer : public std::stringbuf {
 public:
  explicit WatchedBuffer(std::function<void(const std::string&)> watcher)
      : watcher_(std::move(watcher)) {}

  int sync() override {
    watcher_(str());
    return 0;
  }

 private:
  std::function<void(const std::string&)> watcher_;
};

class VanishingTest : public FaultsTest {};

TEST_F(VanishingTest, ADirectoryThatVanishesUnderTheScanEndsItWithItsMessageAndWithoutExports) {
  OnDisc("JEUX/SOUS/JEU.EXE", Game("Un jeu"));
  OnDisc("ZEBRE/JEU.EXE", Game("Un autre"));
  WatchedBuffer watched([&](const std::string& shown) {
    if (shown.find("D:\\Jeux...") != std::string::npos) disc_.Remove("DISQUE/ZEBRE");
  });
  std::ostringstream out;
  std::ostream err(&watched);
  EXPECT_EQ(
      cli::Run({Argument("DISQUE"), "--json", "--csv", Argument("SORTIE/A.csv")}, out, err, true),
      cli::kRuntimeError);
  EXPECT_EQ(out.str(), "");
  EXPECT_THAT(watched.str(), testing::HasSubstr("trovex-cli: erreur d'exécution 76 : "));
  EXPECT_THAT(Names("SORTIE"), testing::IsEmpty());
}

}  // namespace
}  // namespace trovex::test
