#include "Platform/Win32/CommandLine.h"

#include <gtest/gtest.h>

#include <set>

namespace trovex::test {
namespace {

class CommandLineTest : public ::testing::Test {
 protected:
  CommandLine Split(const Text& line) {
    return SplitCommandLine(line, [this](const Text& name) { return files.contains(name); });
  }
  std::set<Text> files;
};

TEST_F(CommandLineTest, ALineThatNamesAFileIsTheProgram) {
  files = {u"D:\\Mes jeux\\setup.exe", u"D:\\Mes"};
  const CommandLine line = Split(u"D:\\Mes jeux\\setup.exe");
  EXPECT_EQ(line.program, u"D:\\Mes jeux\\setup.exe");
  EXPECT_EQ(line.arguments, u"");
  EXPECT_EQ(line.Whole(), u"\"D:\\Mes jeux\\setup.exe\"");
}

TEST_F(CommandLineTest, ANameWithoutBlanksNeedsNoQuotes) {
  files = {u"D:\\SETUP.EXE"};
  EXPECT_EQ(Split(u"D:\\SETUP.EXE").Whole(), u"D:\\SETUP.EXE");
  EXPECT_EQ(Split(u"D:\\SETUP.EXE /S").Whole(), u"D:\\SETUP.EXE /S");
}

TEST_F(CommandLineTest, TheLongestNameOfAFileIsTheProgram) {
  files = {u"C:\\Mes", u"C:\\Mes outils\\Zip.exe"};
  const CommandLine line = Split(u"C:\\Mes outils\\Zip.exe  \"D:\\a b.zip\"");
  EXPECT_EQ(line.program, u"C:\\Mes outils\\Zip.exe");
  EXPECT_EQ(line.arguments, u"\"D:\\a b.zip\"");
  EXPECT_EQ(line.Whole(), u"\"C:\\Mes outils\\Zip.exe\" \"D:\\a b.zip\"");
}

TEST_F(CommandLineTest, QuotesTellWhereTheProgramEnds) {
  const CommandLine line = Split(u"\"C:\\Mes outils\\Zip.exe\" D:\\a.zip");
  EXPECT_EQ(line.program, u"C:\\Mes outils\\Zip.exe");
  EXPECT_EQ(line.arguments, u"D:\\a.zip");
  EXPECT_EQ(line.Whole(), u"\"C:\\Mes outils\\Zip.exe\" D:\\a.zip");
}

TEST_F(CommandLineTest, WhereNoFileIsNamedTheFirstWordIsTheProgram) {
  const CommandLine line = Split(u"notepad D:\\a.txt");
  EXPECT_EQ(line.program, u"notepad");
  EXPECT_EQ(line.arguments, u"D:\\a.txt");
  EXPECT_EQ(line.Whole(), u"notepad D:\\a.txt");
  EXPECT_EQ(Split(u"").Whole(), u"");
  EXPECT_EQ(Split(u"\"sans fin").program, u"\"sans");
}

TEST_F(CommandLineTest, AProgramThatHasGoneIsNotTakenForOneThatBearsTheBeginningOfItsName) {
  const CommandLine line = Split(u"D:\\Mes jeux\\setup.exe");
  EXPECT_EQ(line.program, u"D:\\Mes jeux\\setup.exe");
  EXPECT_EQ(line.Whole(), u"\"D:\\Mes jeux\\setup.exe\"");
  EXPECT_EQ(Split(u"\\\\serveur\\Mes jeux\\A.Exe").program, u"\\\\serveur\\Mes jeux\\A.Exe");
}

TEST_F(CommandLineTest, AProgramThatHasGoneEndsBehindItsExtension) {
  const CommandLine line = Split(u"C:\\Mes outils.exeter\\Zip.EXE  /s \"D:\\a.exe\"");
  EXPECT_EQ(line.program, u"C:\\Mes outils.exeter\\Zip.EXE");
  EXPECT_EQ(line.arguments, u"/s \"D:\\a.exe\"");
  EXPECT_EQ(Split(u"C:\\Mes outils\\Zip.com /s").program, u"C:\\Mes outils\\Zip.com /s");
}

}  // namespace
}  // namespace trovex::test
