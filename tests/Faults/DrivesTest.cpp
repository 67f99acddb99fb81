// A drive that is taken out, and room that is used up, on whatever system: what happens at each
// single operation that could be the first to notice.
#include "Export/GridExport.h"
#include "Lib/LIB_INI.h"
#include "Paper/SavePdf.h"
#include "Screen/ScreenTest.h"

namespace trovex::test {
namespace {

using testing::StartsWith;

// A disc that is gone after some operations, and whose owner has room for some bytes only.
class FaultyDisc : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  static constexpr int kStays = -1;
  int until_gone = kStays;  // operations
  std::size_t room = static_cast<std::size_t>(-1);

  bool IsGone() const { return until_gone == 0; }

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    data = {};
    return Gone() ? FindHandle::kInvalid : Target().FindFirstFile(pattern, data);
  }
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    return !Gone() && Target().GetFileStatus(name, status);
  }
  FileHandle OpenRead(const Text& name) override {
    if (Gone()) throw RuntimeError(ErrorNumber::kPathNotFound);
    return Target().OpenRead(name);
  }
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    if (Gone()) throw RuntimeError(ErrorNumber::kDeviceIo);
    return Target().Read(file, buffer, size);
  }
  void Write(FileHandle file, const void* data, std::size_t size) override {
    if (size > room) throw RuntimeError(ErrorNumber::kDiskFull);
    room -= size;
    Target().Write(file, data, size);
  }
  std::uint32_t GetFileVersionInfoSize(const Text& name) override {
    return Gone() ? 0 : Target().GetFileVersionInfoSize(name);
  }
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override {
    return room > 0 && Target().WritePrivateProfileString(section, key, value, file);
  }
  void ChangeDirectory(const Text& directory) override {
    if (Gone()) throw RuntimeError(ErrorNumber::kPathNotFound);
    Target().ChangeDirectory(directory);
  }
  void ChangeDrive(const Text& drive) override {
    if (Gone()) throw RuntimeError(ErrorNumber::kDeviceUnavailable);
    Target().ChangeDrive(drive);
  }

 private:
  bool Gone() {
    if (until_gone > 0) --until_gone;
    return until_gone == 0;
  }
};

class DrivesTest : public ScreenTest {
 protected:
  std::vector<Text> Places() {
    std::vector<Text> places;
    for (int table = 0; table < kTableCount; ++table) {
      const Grid& grid = form.GridLogiciel(table);
      for (int row = 1; row < grid.Rows() && !grid.Cell(row, 2).empty(); ++row) {
        places.push_back(grid.Cell(row, 1) + u"\\" + grid.Cell(row, 2));
      }
    }
    return places;
  }
  void AnswerAllBoxes() {
    for (int box = 0; box < 1000; ++box) view.Answer(BoxAnswer::kOk);
  }

  FaultyDisc drive{CurrentPlatform()};
  PlatformScope drive_scope{drive};
};

TEST_F(DrivesTest, WhateverNoticesFirstThatTheDriveIsGoneTheRowsSoFarStay) {
  Program("JEUX/SETUP.EXE", {{"FileDescription", "Un jeu"}});
  Lines("JEUX/README.TXT", {u"Un texte", u"et un autre"});
  Lines("JEUX/SETUP.LST", {u"[Setup]", u"Title=Un titre"});
  Dos("JEUX/SOUS/DAMES.EXE");
  disc.File("ZIP/A.ZIP", ZipArchive(2000));
  Scan();
  const std::vector<Text> whole = Places();
  ASSERT_EQ(whole.size(), 3u);
  int ended = 0;
  for (int operations = 1; !testing::Test::HasFailure(); ++operations) {
    drive.until_gone = operations;
    AnswerAllBoxes();
    try {
      Raise(form.Explorer.on_click);
    } catch (const RuntimeError& error) {
      // What the program ends with: a message with this number.
      EXPECT_TRUE(error.Kind() == ErrorNumber::kPathNotFound ||
                  error.Kind() == ErrorNumber::kDeviceUnavailable)
          << error.Number();
      ++ended;
    }
    view.ForgetAnswers();
    for (const Text& place : Places()) {
      EXPECT_THAT(whole, testing::Contains(place)) << operations;
    }
    if (!drive.IsGone()) break;
  }
  EXPECT_GT(ended, 0) << "the walk comes to a directory that is gone";
  drive.until_gone = FaultyDisc::kStays;
  Scan();
  EXPECT_EQ(Places(), whole) << "back in its drive the disc is as it was";
}

TEST_F(DrivesTest, AUsedUpQuotaIsReportedByEachExport) {
  Program("JEUX/SETUP.EXE", {{"FileDescription", "Un jeu"}});
  Scan();
  for (const char16_t* separator : {u",", u" ", u"\t"}) {
    drive.room = 0;
    view.Answer(BoxAnswer::kOk);
    GridExport(form.GridLogiciel(0), u"D:\\A.TXT", separator, u"\"");
    EXPECT_THAT(ToUtf8(view.Boxes().back().text), StartsWith("GridExport()\r\n\r\nError #61 by "));
  }
  view.Answer(BoxAnswer::kOk);
  EXPECT_FALSE(SavePdf(Pages(), u"D:\\A.PDF"));
  EXPECT_THAT(ToUtf8(view.Boxes().back().text),
              StartsWith("Erreur lors de la création du fichier PDF : "));
  FileStatus status;
  EXPECT_FALSE(drive.GetFileStatus(u"D:\\A.PDF", status));
  view.Answer(BoxAnswer::kOk);
  PutIniString(u"html", u"html_titre", u"Titre", u"D:\\Trovex.ini");
  EXPECT_EQ(view.Boxes().back().text,
            u"PutIniString() : Erreur d'écriture sur le fichier : D:\\Trovex.ini\r\n"
            u"Item : html_titre");
}

}  // namespace
}  // namespace trovex::test
