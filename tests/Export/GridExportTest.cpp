#include <fstream>
#include <sstream>

#include "Export/GridExport.h"

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_OBJECT_GRID.h"
#include "Lib/Lib_Form.h"
#include "Lib/Lib_SelectDlg.h"
#include "Platform/PartScope.h"
#include "Ui/CommonDialog.h"
#include "Ui/FileListBox.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

// A disk that is full from the first byte on.
class FullDisk : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  void Write(FileHandle, const void*, std::size_t) override {
    throw RuntimeError(ErrorNumber::kDiskFull);
  }
};

class GridExportTest : public LogicTest {
 protected:
  GridExportTest() {
    grid_.SetCols(3);
    Line(0, {u" Nom", u" Lieu", u" Date"});
    Line(1, {u"a", u"b c", u""});
  }

  void Line(int row, std::initializer_list<TextView> cells) {
    int col = 0;
    for (const TextView cell : cells) {
      grid_.SetRow(row);
      grid_.SetCol(col++);
      grid_.SetText(cell);
    }
  }

  std::string Contents(std::string_view path) const {
    std::ifstream file(disc.HostPath(path), std::ios::binary);
    std::ostringstream contents;
    contents << file.rdbuf();
    return contents.str();
  }
  int FilesOnTheDisc() const {
    FileListBox files;
    files.SetPath(u"D:\\");
    return files.ListCount();
  }
  bool Exists(std::string_view path) const { return std::filesystem::exists(disc.HostPath(path)); }

  // What the user does with the dialog of the formats.
  void Choose(int format) {
    view.AnswerForm([this, format](Form& form) {
      auto& dialog = static_cast<Lib_SelectDlg&>(form);
      title_ = dialog.Libelle().Caption();
      for (int i = 0; i < 3; ++i) options_.push_back(dialog.SelOptions(i).Caption());
      preselected_ = dialog.SelOptions(0).Value();
      Raise(dialog.SelOptions(format).on_click);
      dialog.Oui().Press();
    });
  }

  std::string Exported(int format, const Text& title) {
    Choose(format);
    view.AnswerFile(u"D:\\SORTIE");
    EXPECT_EQ(GridExportAscii(grid_), ExportOutcome::kWritten);
    EXPECT_THAT(view.FileDialogs(), ElementsAre(title));
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    return Contents("SORTIE");
  }

  Grid grid_;
  Text title_;
  std::vector<Text> options_;
  bool preselected_ = false;
};

TEST_F(GridExportTest, ALeftOutSeparatorIsATabAndALeftOutQuoteIsNothing) {
  GridExport(grid_, u"D:\\A.TXT");
  EXPECT_EQ(Contents("A.TXT"), " Nom\t Lieu\t Date\r\na\tb c\t\r\n");
}

TEST_F(GridExportTest, SeparatorAndQuoteMayBeAnyText) {
  GridExport(grid_, u"D:\\A.TXT", u"<>", u"''");
  EXPECT_EQ(Contents("A.TXT"), "'' Nom''<>'' Lieu''<>'' Date''\r\n''a''<>''b c''<>''''\r\n");
}

TEST_F(GridExportTest, TheThreeFormatsAreOfferedWithTheFirstPreselected) {
  Exported(0, u"Exportation brute avec separateurs virgules.");
  EXPECT_EQ(title_, u"Exporter le tableau courant au format ASCII :");
  EXPECT_THAT(options_, ElementsAre(u"CSV", u"PRN", u"TXT"));
  EXPECT_TRUE(preselected_);
}

TEST_F(GridExportTest, CsvHasQuotesAndCommas) {
  EXPECT_EQ(Exported(0, u"Exportation brute avec separateurs virgules."),
            "\" Nom\",\" Lieu\",\" Date\"\r\n\"a\",\"b c\",\"\"\r\n");
}

TEST_F(GridExportTest, PrnHasPlainCellsAndBlanks) {
  EXPECT_EQ(Exported(1, u"Exportation brute avec separateurs espaces."),
            " Nom  Lieu  Date\r\na b c \r\n");
}

TEST_F(GridExportTest, AnEmptyCellInPrnLeavesTwoBlanksBehindEachOther) {
  Line(1, {u"a", u"", u"z"});
  EXPECT_EQ(Exported(1, u"Exportation brute avec separateurs espaces."),
            " Nom  Lieu  Date\r\na  z\r\n");
}

TEST_F(GridExportTest, TxtHasQuotesAndTabs) {
  EXPECT_EQ(Exported(2, u"Exportation brute avec separateurs tabulations."),
            "\" Nom\"\t\" Lieu\"\t\" Date\"\r\n\"a\"\t\"b c\"\t\"\"\r\n");
}

TEST_F(GridExportTest, AFormatAcceptedWithoutAClickIsTheFirst) {
  view.AnswerForm([](Form& form) { static_cast<Lib_SelectDlg&>(form).Oui().Press(); });
  view.AnswerFile(u"D:\\A.CSV");
  GridExportAscii(grid_);
  EXPECT_THAT(Contents("A.CSV"), StartsWith("\" Nom\",\""));
}

TEST_F(GridExportTest, TheFileIsReplaced) {
  disc.File("A.TXT", std::string(5000, 'x'));
  GridExport(grid_, u"D:\\A.TXT");
  EXPECT_EQ(Contents("A.TXT").size(), 18u + 8u);
}

TEST_F(GridExportTest, TextIsWrittenInTheEightBitCodePage) {
  Line(1, {u"\u00C9t\u00E9 \u20AC", u"\u0416", u"\u0153"});
  GridExport(grid_, u"D:\\A.TXT");
  EXPECT_THAT(Contents("A.TXT"), testing::EndsWith("\r\n\xC9t\xE9 \x80\t?\t\x9C\r\n"));
}

TEST_F(GridExportTest, FixedColumnsAreWrittenAsWell) {
  grid_.SetFixedCols(1);
  GridExport(grid_, u"D:\\A.TXT");
  EXPECT_EQ(Contents("A.TXT"), " Nom\t Lieu\t Date\r\na\tb c\t\r\n");
}

TEST_F(GridExportTest, RowsStandInTheOrderOfTheGrid) {
  grid_.AddItem(u"z\ty\tx");
  grid_.AddItem(u"b\tb\tb");
  GridExport(grid_, u"D:\\A.TXT", u",");
  EXPECT_EQ(Contents("A.TXT"), " Nom, Lieu, Date\r\na,b c,\r\nz,y,x\r\nb,b,b\r\n");
}

TEST_F(GridExportTest, EachFormatProposesItsNameFilterAndExtension) {
  struct Proposal {
    Text name, filter, extension;
  };
  const Proposal proposals[] = {
      {u"Fichier.csv", u"Fichiers CSV (*.csv)|*.csv", u".csv"},
      {u"Fichier.prn", u"PRN File (*.prn)|*.prn", u".prn"},
      {u"Fichier.txt", u"Fichiers TXT (*.txt)|*.txt", u".txt"},
  };
  for (int format = 0; format < 3; ++format) {
    Choose(format);
    view.AnswerFile({});  // going back leaves what was proposed
    GridExportAscii(grid_);
    const CommonDialog& dialog = Lib_Form().DialogueCommun();
    EXPECT_EQ(dialog.file_name, proposals[format].name);
    EXPECT_EQ(dialog.filter, proposals[format].filter);
    EXPECT_EQ(dialog.default_extension, proposals[format].extension);
  }
}

TEST_F(GridExportTest, ACancelledFormatChoiceLeavesNoFileAndNoHourglass) {
  view.AnswerForm([](Form& form) { static_cast<Lib_SelectDlg&>(form).Annuler().Press(); });
  BusyOn();
  EXPECT_EQ(GridExportAscii(grid_), ExportOutcome::kCancelled);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_THAT(view.FileDialogs(), IsEmpty());
  EXPECT_EQ(FilesOnTheDisc(), 0);
}

TEST_F(GridExportTest, ACancelledFileDialogLeavesNoFileAndNoHourglass) {
  Choose(0);
  view.AnswerFile({});
  EXPECT_EQ(GridExportAscii(grid_), ExportOutcome::kCancelled);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(FilesOnTheDisc(), 0);
}

TEST_F(GridExportTest, AFileNameOfBlanksIsACancelledOne) {
  Choose(0);
  view.AnswerFile(u"   ");
  EXPECT_EQ(GridExportAscii(grid_), ExportOutcome::kCancelled);
  EXPECT_EQ(FilesOnTheDisc(), 0);
}

TEST_F(GridExportTest, AnEmptyTableExportsTheHeaderAndOneLineOfEmptyCells) {
  ClearGrid(grid_, u"");
  GridExport(grid_, u"D:\\A.CSV", u",", u"\"");
  EXPECT_EQ(Contents("A.CSV"), "\" Nom\",\" Lieu\",\" Date\"\r\n\"\",\"\",\"\"\r\n");
}

TEST_F(GridExportTest, ADoubleQuoteInACellIsNotMended) {
  Line(1, {u"dit \"le Grand\"", u"a,b", u"c\td"});
  GridExport(grid_, u"D:\\A.CSV", u",", u"\"");
  EXPECT_THAT(Contents("A.CSV"),
              testing::EndsWith("\r\n\"dit \"le Grand\"\",\"a,b\",\"c\td\"\r\n"));
}

TEST_F(GridExportTest, AfterAnExportTheCurrentCellIsTheLast) {
  grid_.AddItem(u"d\te\tf");
  grid_.SetRow(1);
  grid_.SetCol(0);
  GridExport(grid_, u"D:\\A.TXT");
  EXPECT_EQ(grid_.Row(), 2);
  EXPECT_EQ(grid_.Col(), 2);
}

TEST_F(GridExportTest, AFileThatCannotBeOpenedIsReportedAndNothingWritten) {
  Choose(0);
  view.AnswerFile(u"D:\\ABSENT\\A.CSV");
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(GridExportAscii(grid_), ExportOutcome::kFailed);
  EXPECT_TRUE(LastBox().starts_with(u"Erreur d'écriture sur le fichier : D:\\ABSENT\\A.CSV"));
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_FALSE(Exists("ABSENT"));
}

TEST_F(GridExportTest, AFullDiskIsReportedAndTheFileClosed) {
  FullDisk full(disc.GetPlatform());
  PartScope scope(full);
  Choose(0);
  view.AnswerFile(u"D:\\A.CSV");
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(GridExportAscii(grid_), ExportOutcome::kFailed);
  EXPECT_TRUE(LastBox().starts_with(u"GridExport()"));
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_FALSE(IsOpenForOutput(u"D:\\A.CSV"));
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(GridExportTest, AKeyCellOfMinusOneOrMinusTwoCountsAsFree) {
  for (const TextView free : {u"-1", u"-2", u"-2.0"}) EXPECT_TRUE(Grid::IsFree(free));
  for (const TextView taken : {u"-3", u"0", u" Setup.exe"}) EXPECT_FALSE(Grid::IsFree(taken));
}

}  // namespace
}  // namespace trovex::test
