// Images that the usual tools make of a directory: the catalogue is that of the directory itself.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "Apps/CliTest.h"
#include "support/RawSectors.h"
#include "support/SampleDisc.h"

namespace trovex::test {
namespace {

// A directory of its own for images, beside the drive.
class MadeImages : public CliTest {
 protected:
  MadeImages() {
    WriteSampleDisc(disc_.HostPath("disque"));
    directory_ = Argument("disque");
  }

  void Make(const std::string& command) {
    ASSERT_EQ(std::system((command + " >/dev/null 2>&1").c_str()), 0) << command;
  }
  // The image of the directory, by genisoimage with these options.
  std::string MadeBy(const std::string& options, const std::string& charset = "utf-8") {
    Make("genisoimage -quiet -input-charset " + charset + " " + options + " -o " + image_ + " " +
         directory_);
    return image_;
  }
  // Takes what bears other letters than ASCII's from the directory.
  void LeaveDosNames() {
    std::vector<std::filesystem::path> others;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory_)) {
      const std::string name = entry.path().filename().string();
      const bool ascii = std::all_of(name.begin(), name.end(), [](char c) { return c > 0; });
      if (!ascii) others.push_back(entry.path());
    }
    ASSERT_FALSE(others.empty());
    for (const auto& path : others) std::filesystem::remove_all(path);
    expected_.clear();
  }
  std::string Bytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string Write(const std::string& name, const std::string& bytes) {
    const std::string path = Argument(name);
    std::ofstream(path, std::ios::binary).write(bytes.data(), std::ssize(bytes));
    return path;
  }
  std::string JsonOf(const std::string& disc, const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments{disc, "--json", "--inspect"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    EXPECT_EQ(RunWith(arguments), cli::kDone) << err_;
    return out_;
  }
  // The whole catalogue with all details, letter by letter.
  void ExpectSame(const std::string& image) {
    if (expected_.empty()) expected_ = JsonOf(directory_);
    const std::string json = JsonOf(image);
    EXPECT_GT(json.size(), 10000u);
    EXPECT_TRUE(json == expected_) << image << "\n" << FirstDifference(json, expected_);
  }
  static std::string FirstDifference(const std::string& a, const std::string& b) {
    const std::size_t at = static_cast<std::size_t>(
        std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
    const std::size_t from = at < 200 ? 0 : at - 200;
    return a.substr(from, 400) + "\n--- but ---\n" + b.substr(from, 400);
  }

  std::string directory_, expected_;
  std::string image_ = Argument("disque.iso");
};

// Plain names as long and as they stand, in the letters of DOS; and Joliet.
constexpr char kPlain[] = "-U -output-charset cp850";
constexpr char kJoliet[] = "-J -joliet-long";
// Some of its ways know no other letters.
constexpr char kLatin[] = "iso8859-1";

TEST_F(MadeImages, OfEveryLayoutShowTheDirectory) {
  for (const char* names : {kJoliet, kPlain}) {
    // Plain names are those of DOS, in its letters: the maker of the image knows no others.
    if (names == kPlain) LeaveDosNames();
    const std::string sectors = Bytes(MadeBy(names));
    ExpectSame(image_);
    for (const auto& [stride, mode] :
         {std::pair(2352u, 1), std::pair(2352u, 2), std::pair(2336u, 2), std::pair(2448u, 1),
          std::pair(2448u, 2)}) {
      for (const unsigned gap : {0u, 150u}) {
        ExpectSame(Write("disque.bin", RawImage(sectors, {stride, mode, gap})));
      }
    }
  }
}

TEST_F(MadeImages, WithRockRidgeNamesShowTheOthers) {
  MadeBy(std::string("-R ") + kJoliet);
  ExpectSame(image_);
  LeaveDosNames();
  MadeBy("-R -U", kLatin);
  ExpectSame(image_);
}

TEST_F(MadeImages, OfXorrisoShowTheDirectory) {
  Make("xorriso -as mkisofs -J -joliet-long -input-charset utf-8 -o " + image_ + " " + directory_);
  ExpectSame(image_);
}

TEST_F(MadeImages, ThroughTheirCueSheetShowTheDirectory) {
  Write("Disque.BIN", RawImage(Bytes(MadeBy(kJoliet)), {2352, 1}) + AudioSectors(400));
  ExpectSame(
      Write("disque.cue",
            "FILE \"disque.bin\" BINARY\r\n  TRACK 01 MODE1/2352\r\n    INDEX 01 00:00:00\r\n"
            "  TRACK 02 AUDIO\r\n    INDEX 01 20:00:00\r\n"));
}

TEST_F(MadeImages, MakeTheSameExports) {
  MadeBy(kJoliet);
  const auto exported = [&](const std::string& disc, const std::string& name) {
    EXPECT_EQ(RunWith({disc, "--quiet", "--html", Argument(name + ".htm"), "--csv",
                       Argument(name + ".csv"), "--prn", Argument(name + ".prn"), "--txt",
                       Argument(name + ".txt")}),
              cli::kDone);
    std::string all;
    for (const char* end : {".csv", ".prn", ".txt", "_tableaux.htm", "_donnees.htm"}) {
      all += Bytes(Argument(name + end)) + "\n";
    }
    return all;
  };
  const std::string of_directory = exported(directory_, "export");
  const std::string of_image = exported(image_, "export");
  EXPECT_GT(of_image.size(), 10000u);
  EXPECT_TRUE(of_image == of_directory) << FirstDifference(of_image, of_directory);
}

TEST_F(MadeImages, OfTwoSessionsShowTheLast) {
  // The second session adds to the first, whose files it refers to.
  LeaveDosNames();
  const std::string names = std::string("-R ") + kJoliet;  // by which the sessions are joined
  MadeBy(names, kLatin);
  std::string sectors = Bytes(image_);
  const std::size_t next = (sectors.size() / 2048 + 15) / 16 * 16 + 5000;
  std::filesystem::create_directories(directory_ + "/NEUF");
  Write("disque/NEUF/LISEZMOI.TXT", "Une session de plus.\r\n");
  Write("disque/NEUF/NEUF.EXE", DosExecutable());
  const std::string first = Argument("premiere.iso");
  std::filesystem::rename(image_, first);
  MadeBy(names + " -C 0," + std::to_string(next) + " -M " + first, kLatin);
  const std::string added = Bytes(image_);
  sectors.resize(next * 2048);
  ExpectSame(Write("sessions.iso", sectors + added));
  // Raw sectors leave out what lies between.
  ExpectSame(
      Write("sessions.bin", RawImage(Bytes(first), {2352, 1}) +
                                RawImage(added, {2352, 1, 0, static_cast<std::int64_t>(next)})));
}

TEST_F(MadeImages, OfASessionSavedAloneShowIt) {
  // Made as a second session of a disc whose first one held nothing of it.
  MadeBy(std::string(kJoliet) + " -C 0,12000");
  ExpectSame(image_);
}

TEST_F(MadeImages, OfAMacintoshHybridShowTheDirectory) {
  LeaveDosNames();
  MadeBy(std::string("-hfs ") + kJoliet, kLatin);
  ExpectSame(image_);
}

TEST_F(MadeImages, InAnotherTimeZoneShowTheSameDates) {
  MadeBy(kJoliet);
  setenv("TZ", "America/Montreal", 1);
  tzset();
  ExpectSame(image_);
  setenv("TZ", "UTC", 1);
  tzset();
}

}  // namespace
}  // namespace trovex::test
