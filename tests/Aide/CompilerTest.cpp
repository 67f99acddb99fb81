#include "Apps/trovex-aide/Compiler.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "AideTest.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

namespace fs = std::filesystem;

// The compiler on the files of a folder.
class CompilerTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return disc.HostPath(name).string(); }

  int Compile(std::vector<std::string> arguments = {}) {
    if (arguments.empty()) {
      arguments = {Path("SOURCE"), "--hlp", Path("AIDE.HLP"), "--html", Path("PAGES")};
    }
    std::ostringstream err;
    const int status = aide::Run(arguments, err);
    err_ = err.str();
    return status;
  }

  void ExpectRefused(const std::string& complaint) {
    EXPECT_EQ(Compile(), kFailed);
    EXPECT_EQ(err_, Path(complaint.substr(0, complaint.find(':'))) +
                        complaint.substr(complaint.find(':')) + "\n");
    EXPECT_FALSE(fs::exists(Path("AIDE.HLP")));
    EXPECT_FALSE(fs::exists(Path("PAGES")));
  }

  TestDisc disc;
  std::string err_;
};

TEST_F(CompilerTest, WritesTheHelpFileAndThePages) {
  disc.File("SOURCE/a.txt", "sujet: a\ntitre: A\n\n[[b|b]]\n");
  disc.File("SOURCE/b.txt", "sujet: b\ntitre: B\n\nx\n");
  disc.File("SOURCE/notes.md", "pas un sujet");
  EXPECT_EQ(Compile(), kDone);
  EXPECT_EQ(err_, "");
  EXPECT_GT(fs::file_size(Path("AIDE.HLP")), 4096U);
  EXPECT_TRUE(fs::exists(Path("PAGES/index.html")));
  EXPECT_TRUE(fs::exists(Path("PAGES/b.html")));
}

TEST_F(CompilerTest, ALinkToAnUnknownTopicIsNamedByFileAndLineAndNothingIsWritten) {
  disc.File("SOURCE/a.txt", "sujet: a\ntitre: A\n\nx\n[[b|b]]\n");
  ExpectRefused("SOURCE/a.txt:5: a link to an unknown topic: b");
}

TEST_F(CompilerTest, ATopicNameTwiceIsNamedByFileAndLineAndNothingIsWritten) {
  disc.File("SOURCE/a.txt", "sujet: a\ntitre: A\n\nx\n");
  disc.File("SOURCE/b.txt", "sujet: a\ntitre: B\n\nx\n");
  ExpectRefused("SOURCE/b.txt:1: the topic a cannot be told from a of " + Path("SOURCE/a.txt"));
}

TEST_F(CompilerTest, AMissingTitleIsNamedByFileAndLineAndNothingIsWritten) {
  disc.File("SOURCE/a.txt", "sujet: a\n\nx\n");
  ExpectRefused("SOURCE/a.txt:1: the title of the topic is missing (titre:)");
}

TEST_F(CompilerTest, ACharacterOutsideTheCodePageIsNamedByFileAndLineAndNothingIsWritten) {
  disc.File("SOURCE/a.txt", "sujet: a\ntitre: A\n\nx → y\n");
  ExpectRefused("SOURCE/a.txt:4: a character that Windows-1252 lacks: →");
}

TEST_F(CompilerTest, AFolderWithoutTopicsIsAMistake) {
  disc.Directory("SOURCE");
  ExpectRefused("SOURCE:0: no topics (*.txt) here");
}

TEST_F(CompilerTest, AFileThatCannotBeWrittenIsNamed) {
  disc.File("SOURCE/a.txt", "sujet: a\ntitre: A\n\nx\n");
  const std::string place = Path("NULLE/PART.HLP");
  EXPECT_EQ(Compile({Path("SOURCE"), "--hlp", place}), kFailed);
  EXPECT_EQ(err_, "trovex-aide: cannot be written: " + place + "\n");
}

TEST_F(CompilerTest, AWrongCommandLineTellsTheRightOne) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--hlp"}, {"a", "b"}, {"--foo", "a"}, {"--hlp", "x"}}) {
    EXPECT_EQ(Compile(arguments), kWrongCommandLine);
    EXPECT_EQ(err_, "usage: trovex-aide SOURCE-FOLDER [--hlp FILE] [--html FOLDER] [--cpp FILE]\n");
  }
}

}  // namespace
}  // namespace trovex::test
