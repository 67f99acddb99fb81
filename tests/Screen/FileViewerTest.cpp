#include "Platform/PartScope.h"
#include "ScreenTest.h"

namespace trovex::test {
namespace {

class FileViewerTest : public ScreenTest {
 protected:
  FileViewerTest() {
    form.Show();
    form.ListFichier.SetTag(u"D:\\J");
  }

  // Offers the file of drive D:'s directory J in the list, and chooses it.
  void View(const Text& name) {
    form.ListFichier.AddItem(name);
    Choose(name);
  }
  static std::size_t LinesOf(const Text& text) {
    return 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\n'));
  }
};

TEST_F(FileViewerTest, ATextIsShown) {
  Lines("J/README.TXT", {u"Été", u"", u"fin"});
  View(u"Readme.txt");
  EXPECT_EQ(Info(0), u"Été\r\n\r\nfin");
  EXPECT_EQ(Pane(), "text");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Help(), u"");
}

TEST_F(FileViewerTest, AFileDescriptionIsShownLikeAText) {
  Lines("J/FILE_ID.DIZ", {u"Description"});
  View(u"File_id.diz");
  EXPECT_EQ(Info(0), u"Description");
  EXPECT_EQ(Pane(), "text");
}

TEST_F(FileViewerTest, TheStatusLineTellsFileAndLengthWhileItLoads) {
  disc.File("J/A.TXT", "12345");
  std::vector<Text> told;
  view.on_repaint = [&](Control&) { told.push_back(Help()); };
  View(u"A.txt");
  EXPECT_THAT(told, testing::ElementsAre(
                        u"Traitement en cours, patientez s.v.p",
                        u"Patientez, chargement du fichier : D:\\J\\A.txt - 5 Octets", u""));
}

TEST_F(FileViewerTest, AnEmptyTextShowsTheMessageAndNoPane) {
  disc.File("J/FILE.TXT");
  view.Answer(BoxAnswer::kOk);
  View(u"File.txt");
  EXPECT_EQ(
      LastBox(),
      u"Affichage annulé du fichier : \r\nD:\\J\\File.txt\r\ncar la taille du fichier est de 0 "
      u"Octets");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
  EXPECT_EQ(Pane(), "");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

// A disk on which every file says that it is so long.
class LongFiles : public ForwardingFiles {
 public:
  LongFiles(FilePort& target, std::int64_t bytes) : ForwardingFiles(target), length_(bytes) {}
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    const bool found = ForwardingFiles::GetFileStatus(name, status);
    status.length = length_;
    return found;
  }

 private:
  std::int64_t length_;
};

TEST_F(FileViewerTest, ATextWhoseLengthIsNegativeIn32BitsShowsTheMessage) {
  Lines("J/A.TXT", {u"Bonjour"});
  LongFiles files(CurrentPlatform(), std::int64_t{2} << 30);
  PartScope scope(files);
  view.Answer(BoxAnswer::kOk);
  View(u"A.txt");
  EXPECT_EQ(LastBox(),
            u"Affichage annulé du fichier : \r\nD:\\J\\A.txt\r\ncar la taille du fichier est de "
            u"-2147483648 Octets");
  EXPECT_EQ(Pane(), "");
}

TEST_F(FileViewerTest, ATextOfOneByteLessIsShown) {
  Lines("J/A.TXT", {u"Bonjour"});
  LongFiles files(CurrentPlatform(), (std::int64_t{2} << 30) - 1);
  PartScope scope(files);
  View(u"A.txt");
  EXPECT_EQ(Info(0), u"Bonjour");
}

TEST_F(FileViewerTest, AnEmptyTextLeavesTheIconWhereItIs) {
  disc.File("J/A.ICO", IconFile());
  disc.File("J/FILE.TXT");
  View(u"A.ico");
  view.Answer(BoxAnswer::kOk);
  View(u"File.txt");
  EXPECT_EQ(Pane(), "icon");
}

TEST_F(FileViewerTest, AThousandLinesShowTheirFirst301) {
  std::vector<Text> lines;
  for (int i = 1; i <= 1000; ++i) lines.push_back(u"ligne " + Decimal(i));
  Lines("J/LONG.TXT", lines);
  View(u"Long.txt");
  EXPECT_EQ(LinesOf(Info(0)), 301u);
  EXPECT_TRUE(Info(0).starts_with(u"ligne 1\r\nligne 2\r\n"));
  EXPECT_TRUE(Info(0).ends_with(u"\r\nligne 301"));
}

TEST_F(FileViewerTest, ExactlyThreeHundredAndOneLinesAreShownWhole) {
  Lines("J/A.TXT", std::vector<Text>(301, u"x"));
  View(u"A.txt");
  EXPECT_EQ(Info(0).size(), 301u + 600u);
}

TEST_F(FileViewerTest, AnEmptyFirstLineCounts) {
  std::vector<Text> lines(400, u"x");
  lines[0] = u"";
  Lines("J/A.TXT", lines);
  View(u"A.txt");
  EXPECT_EQ(LinesOf(Info(0)), 301u);
  EXPECT_TRUE(Info(0).starts_with(u"\r\nx"));
}

TEST_F(FileViewerTest, AMillionLinesAreNotReadToTheEnd) {
  std::string bytes;
  for (int i = 0; i < 1000000; ++i) bytes += "ab\r\n";
  disc.File("J/A.TXT", bytes);
  View(u"A.txt");
  EXPECT_EQ(LinesOf(Info(0)), 301u);
  EXPECT_LT(machine.bytes_read, 300000u);
}

TEST_F(FileViewerTest, OneVeryLongLineIsReadInPieces) {
  constexpr std::size_t kLength = 16 << 20;
  disc.File("J/A.TXT", std::string(kLength, 'x') + "\r\nfin");
  View(u"A.txt");
  EXPECT_EQ(Info(0).size(), (1u << 20) + 5);
  EXPECT_TRUE(Info(0).ends_with(u"x\r\nfin"));
  EXPECT_LT(machine.largest_read, std::size_t{2} << 20);
}

TEST_F(FileViewerTest, ATextMissingInTheListsDirectoryIsTakenFromTheRows) {
  Lines("APP/DISK1/LISEZ.TXT", {u"Disque 1"});
  form.ListFichier.SetTag(u"D:\\APP\\DISK2");
  form.TextInfo(5).SetText(u"D:\\APP\\DISK1\\SETUP.EXE");
  View(u"Lisez.txt");
  EXPECT_EQ(Info(0), u"Disque 1");
}

TEST_F(FileViewerTest, ATextThatIsNowhereShowsTheMessage) {
  form.TextInfo(5).SetText(u"D:\\J\\X.EXE");
  view.Answer(BoxAnswer::kOk);
  View(u"Parti.txt");
  EXPECT_EQ(
      LastBox(),
      u"Affichage annulé du fichier : \r\nD:\\J\\Parti.txt\r\ncar la taille du fichier est de "
      u"0 Octets");
}

TEST_F(FileViewerTest, ATextCutOffByARemovedDiscShowsTheMessage) {
  Lines("J/A.TXT", {u"Bonjour"});
  machine.gone = {u"D:"};
  view.Answer(BoxAnswer::kOk);
  View(u"A.txt");
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_EQ(Pane(), "");
}

TEST_F(FileViewerTest, AReadThatFailsLeavesTheLinesReadSoFar) {
  Lines("J/A.TXT", std::vector<Text>(100, Text(2000, u'x')));
  machine.read_fails_after = 100000;
  View(u"A.txt");
  EXPECT_GT(LinesOf(Info(0)), 10u);
  EXPECT_LT(LinesOf(Info(0)), 100u);
  EXPECT_EQ(Pane(), "text");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(FileViewerTest, AnUnreadableTextIsReportedAndThePaneStaysEmpty) {
  Lines("J/A.TXT", {u"Bonjour"});
  machine.unreadable = {u"D:\\J\\A.TXT"};
  view.Answer(BoxAnswer::kOk);
  View(u"A.txt");
  EXPECT_EQ(BoxMessage(), u"Ouverture impossibleD:\\J\\A.txt");
  EXPECT_EQ(Info(0), u"");
  EXPECT_EQ(Pane(), "text");
}

TEST_F(FileViewerTest, AnIconIsShownInPlaceOfTheText) {
  Lines("J/A.TXT", {u"Bonjour"});
  disc.File("J/A.ICO", IconFile());
  machine.icons[u"D:\\J\\A.ICO"] = 1;
  View(u"A.txt");
  View(u"A.ico");
  EXPECT_EQ(Pane(), "icon");
  EXPECT_EQ(form.ImageSelect.GetPicture(), (Picture{Picture::Source::kFile, u"D:\\J\\A.ico"}));
  View(u"A.txt");
  EXPECT_EQ(Pane(), "text");
}

TEST_F(FileViewerTest, ABadIconLeavesTheFrameEmptyButVisible) {
  disc.File("J/A.ICO", "aucune icône");
  View(u"A.ico");
  EXPECT_EQ(Pane(), "icon");
  EXPECT_EQ(form.ImageSelect.GetPicture(), Picture());
}

TEST_F(FileViewerTest, AHelpFileOpensTheHelpEngineOnItsIndex) {
  disc.File("J/AIDE.HLP", "?");
  View(u"Aide.hlp");
  EXPECT_THAT(view.Helps(),
              testing::ElementsAre(HeadlessView::HelpShown{u"D:\\J\\Aide.hlp", 0, u""}));
  EXPECT_EQ(Pane(), "");
}

TEST_F(FileViewerTest, AHelpFileThatTheSystemCannotShowGetsABoxForEachClickAndStartsNothing) {
  machine.help_engine = false;
  machine.programs[u"HLP"] = u"C:\\WINHLP32.EXE";
  disc.File("J/AIDE.HLP", "?");
  view.Answer(BoxAnswer::kOk);
  View(u"Aide.hlp");
  const Text box = LastBox();
  EXPECT_TRUE(
      box.starts_with(u"Affichage de l'aide impossible, le fichier d'aide : D:\\J\\Aide.hlp"));
  view.Answer(BoxAnswer::kOk);
  Raise(form.ListFichier.on_dbl_click);
  EXPECT_EQ(LastBox(), box);
  EXPECT_TRUE(view.Helps().empty());
  EXPECT_TRUE(machine.started.empty());
}

TEST_F(FileViewerTest, AnotherKindStartsItsProgramAtOnce) {
  machine.programs[u"DOC"] = u"C:\\TEXTE.EXE";
  View(u"Notice.doc");
  EXPECT_THAT(machine.started, testing::ElementsAre(FakeShell::Started{
                                   u"C:\\TEXTE.EXE \"D:\\J\\Notice.doc\"", 1, u"D:\\"}));
  EXPECT_EQ(Pane(), "");
}

TEST_F(FileViewerTest, AnotherKindLeavesThePanesAlone) {
  Lines("J/A.TXT", {u"Bonjour"});
  machine.programs[u"WAV"] = u"C:\\SON.EXE";
  View(u"A.txt");
  View(u"Son.wav");
  EXPECT_EQ(Pane(), "text");
  EXPECT_EQ(Info(0), u"Bonjour");
}

TEST_F(FileViewerTest, AKindWithoutAssociationShowsTheBox) {
  view.Answer(BoxAnswer::kOk);
  View(u"Image.bmp");
  EXPECT_EQ(LastBox(),
            u"Ouverture impossibleD:\\J\\Image.bmp\r\n\r\nL'extension du fichier ne possède pas "
            u"d'association vers un exécutable.");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
}

TEST_F(FileViewerTest, ADoubleClickStartsAFileWithoutViewerTwice) {
  machine.programs[u"DOC"] = u"C:\\TEXTE.EXE";
  View(u"Notice.doc");
  Raise(form.ListFichier.on_dbl_click);
  EXPECT_EQ(machine.started.size(), 2u);
}

TEST_F(FileViewerTest, ADoubleClickOpensATextByItsAssociation) {
  Lines("J/A.TXT", {u"Bonjour"});
  machine.programs[u"TXT"] = u"C:\\BLOC.EXE";
  View(u"A.txt");
  Raise(form.ListFichier.on_dbl_click);
  ASSERT_EQ(machine.started.size(), 1u);
  EXPECT_EQ(machine.started[0].command, u"C:\\BLOC.EXE \"D:\\J\\A.txt\"");
}

TEST_F(FileViewerTest, MovingThroughTheListByKeyboardShowsEachEntry) {
  Lines("J/A.TXT", {u"un"});
  Lines("J/B.TXT", {u"deux"});
  for (const Text name : {u"A.txt", u"B.txt", u"C.doc"}) form.ListFichier.AddItem(name);
  machine.programs[u"DOC"] = u"C:\\TEXTE.EXE";
  form.ListFichier.SetListIndex(0);
  EXPECT_EQ(Info(0), u"un");
  form.ListFichier.SetListIndex(1);
  EXPECT_EQ(Info(0), u"deux");
  form.ListFichier.SetListIndex(2);
  EXPECT_EQ(machine.started.size(), 1u);
}

}  // namespace
}  // namespace trovex::test
