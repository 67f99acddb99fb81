#include "Screen/HtmlExportTest.h"

namespace trovex::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// --- The three files ----------------------------------------------------------------------------

TEST_F(HtmlExportTest, TheThreeFilesLineByLine) {
  Program("JEUX/SETUP.EXE", {{"FileDescription", "Mon jeu \xE0 moi"},
                             {"FileVersion", "1.2"},
                             {"ProductName", "Jeu \xE9t\xE9"},
                             {"LegalCopyright", "\xA9 1997"},
                             {"InternalName", "JEU"},
                             {"CompanyName", "Moi & Cie"}});
  disc.File("JEUX/LISEZMOI.TXT", "Bonjour \xE0 tous\r\n\r\nAu revoir");
  Dos("VIDE/SETUP.EXE");
  Scan();
  Export();
  EXPECT_EQ(Frameset(),
            Page({"<HTML><HEAD><TITLE>Liste des ex\xE9"
                  "cutables et archives ZIP du r\xE9pertoire : "
                  "D:\\</TITLE></HEAD>",
                  "<FRAMESET ROWS=\"55, 45\" BORDER=5 FRAMEBORDER=\"YES\" FRAMESPACING=5>",
                  "<FRAME SCROLLING=AUTO SRC=\"Fichier_tableaux.htm\" NAME=\"table\">",
                  "<FRAME SCROLLING=AUTO SRC=\"Fichier_donnees.htm\" NAME=\"data\">",
                  "</FRAMESET></HTML>"}));
  EXPECT_EQ(
      Tables(),
      kTableHead +
          Page({"<CENTER><H3><A HREF=\"Fichier_donnees.htm#SETUPINSTALL\" TARGET=\"data\"\">Liste "
                "des proc&eacute;dures d'installation Setup/Install</A></H3></CENTER>",
                "<TABLE BORDER=2 CELLSPACING=1 CELLPADDING=3 WIDTH=98%>",
                "<P><TR>",
                "<TD ALIGN=CENTER><B> Description</B></TD>",
                "<TD ALIGN=CENTER><B> Emplacement</B></TD>",
                "<TD ALIGN=CENTER><B> Fichier</B></TD>",
                "<TD ALIGN=CENTER><B> Version</B></TD>",
                "</TR>",
                "<P><TR>",
                "<TD>Mon jeu &agrave; moi</TD>",
                "<TD><A HREF=\"Fichier_donnees.htm#D__JEUX__SETUP_EXE\" "
                "TARGET=\"data\"\">D:\\Jeux</A></TD>",
                "<TD> Setup.exe</TD>",
                "<TD>1.2</TD>",
                "</TR>",
                "<P><TR>",
                "<TD>Ne contient pas de nom produit.</TD>",
                "<TD> D:\\Vide</TD>",
                "<TD> Setup.exe</TD>",
                "<TD></TD>",
                "</TR>",
                "</TABLE></P>"}) +
          kTableEnd);
  EXPECT_EQ(Data(),
            kDataHead + Page({"<CENTER><H3><A NAME=\"SETUPINSTALL\">Informations sur les "
                              "proc&eacute;dures d'installation Setup/Install</H3></CENTER>",
                              "<TABLE BORDER=2 CELLSPACING=1 CELLPADDING=3 WIDTH=98%>",
                              "<TR><TD ALIGN=CENTER COLSPAN=2>",
                              "<H3><A NAME=\"D__JEUX__SETUP_EXE\"><B>Mon jeu &agrave; "
                              "moi</B></H3></TD></TR>",
                              "<TR VALIGN=TOP><TD><KBD>", "Bonjour &agrave; tous<BR><BR>Au revoir",
                              "</KBD>", "</TD><TD ALIGN=CENTER>",
                              "Jeu \xE9t\xE9<BR>\xA9 1997<BR>JEU<BR>Moi & Cie", "</TD></TR>",
                              "</TABLE><BR>", "<BR><HR SIZE=4>"}));
}

TEST_F(HtmlExportTest, TheTitleNamesTheDirectoryShown) {
  Dos("\xC3\x89T\xC3\x89/JEU.EXE");
  Dos("\xC3\x89T\xC3\x89/AUTRE.EXE");
  Scan(u"D:\\ÉTÉ");
  Export();
  EXPECT_THAT(Frameset(), HasSubstr("pertoire : D:\\\xC9T\xC9</TITLE>"));
}

TEST_F(HtmlExportTest, WithoutTheDriveLetterOnlyTheTextOfTheLocationsChanges) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export({.keep_drive = false});
  EXPECT_THAT(Tables(), HasSubstr("<TD><A HREF=\"Fichier_donnees.htm#D__JEUX__DAMES_EXE\" "
                                  "TARGET=\"data\"\">\\Jeux</A></TD>\r\n"));
  EXPECT_THAT(Tables(), HasSubstr("<TD>\\Vide</TD>\r\n"));
  EXPECT_THAT(Tables(), Not(HasSubstr("D:\\")));
  EXPECT_THAT(Data(), HasSubstr("<A NAME=\"D__JEUX__DAMES_EXE\">"));
  EXPECT_THAT(Frameset(), HasSubstr("D:\\</TITLE>"));
}

TEST_F(HtmlExportTest, ALocationWithoutAColonStaysWhole) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Grid& grid = form.GridLogiciel(1);
  grid.SetRow(1);
  grid.SetCol(1);
  grid.SetText(u" AILLEURS");
  Prepare({.keep_drive = false});
  // Nothing is found there: on the way to the tab, and when the row's turn comes.
  for (int box = 0; box < 2; ++box) view.Answer(BoxAnswer::kOk);
  view.Answer(BoxAnswer::kNo);
  Raise(form.ConvertHTML.on_click);
  EXPECT_THAT(Tables(), HasSubstr("<TD> AILLEURS</TD>\r\n"));
}

TEST_F(HtmlExportTest, ALinkedLocationWithoutAColonStaysWhole) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Grid& grid = form.GridLogiciel(1);
  const auto locate = [&grid](TextView location) {
    if (grid.Row() != 1) return;
    grid.SetCol(1);
    grid.SetText(location);
  };
  // The text is found where it stands; the cell that is exported has no drive.
  const auto click = grid.on_click;
  grid.on_click = [&] {
    locate(u" D:\\JEUX");
    click();
    locate(u" AILLEURS");
  };
  for (const bool keep : {false, true}) {
    Export({.keep_drive = keep});
    EXPECT_THAT(Tables(), HasSubstr("<TD><A HREF=\"Fichier_donnees.htm#AILLEURS__DAMES_EXE\" "
                                    "TARGET=\"data\"\">AILLEURS</A></TD>\r\n"))
        << keep;
    EXPECT_THAT(Data(), HasSubstr("<A NAME=\"AILLEURS__DAMES_EXE\">")) << keep;
  }
  grid.on_click = click;
}

TEST_F(HtmlExportTest, AnEmptyTableLeavesNoTrace) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("JEUX/ECHECS.EXE");
  Scan();
  Export();
  for (const std::string& page : {Tables(), Data()}) {
    EXPECT_THAT(page, HasSubstr("EXECUTBALE"));
    EXPECT_THAT(page, Not(HasSubstr("SETUPINSTALL")));
    EXPECT_THAT(page, Not(HasSubstr("#ZIP")));
    EXPECT_THAT(page, Not(HasSubstr("\"ZIP\"")));
  }
  EXPECT_THAT(Data(), EndsWith("</TABLE><BR>\r\n<BR><HR SIZE=4>\r\n"));
}

TEST_F(HtmlExportTest, AnEmptyTableAskedForAloneLeavesHeadAndTail) {
  Game("JEUX", "DAMES", "Un jeu");
  Scan();
  Export({.table = 0});
  EXPECT_EQ(Tables(), kTableHead + kTableEnd);
  EXPECT_EQ(Data(), kDataHead);
}

TEST_F(HtmlExportTest, ARowWithAnEmptyPaneHasAPlainLocationAndNoBlock) {
  Dos("VIDE/RIEN.EXE");
  Dos("VIDE/RIEN2.EXE");
  Scan();
  Export();
  EXPECT_THAT(Tables(), HasSubstr("<TD> D:\\Vide</TD>\r\n<TD> Rien.exe</TD>"));
  EXPECT_THAT(Data(), Not(HasSubstr("<TABLE")));
}

TEST_F(HtmlExportTest, ArchivesBearTheirSizeAsTitle) {
  disc.File("Z/A.ZIP", ZipArchive(12345));
  disc.File("Z/A.TXT", "Une archive");
  Scan();
  Export();
  EXPECT_THAT(Data(), HasSubstr("<CENTER><H3><A NAME=\"ZIP\">Informations sur les archives "
                                "ZIP</H3></CENTER>\r\n"));
  EXPECT_THAT(Data(), HasSubstr("<H3><A NAME=\"D__Z__A_ZIP\"><B>12</B></H3></TD></TR>\r\n"));
  EXPECT_THAT(Tables(), HasSubstr("<CENTER><H3><A HREF=\"Fichier_donnees.htm#ZIP\" "
                                  "TARGET=\"data\"\">Liste des archives ZIP</A></H3></CENTER>"));
}

TEST_F(HtmlExportTest, ARowWithABlankFirstCellHasItsKeyAsTitle) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Grid& grid = form.GridLogiciel(1);
  grid.SetRow(1);
  grid.SetCol(0);
  grid.SetText(u"  ");
  grid.SetRow(2);
  form.ZoneDesTableaux.SetTab(2);  // so that the count is taken from a row with a description
  Export();
  EXPECT_THAT(Data(), HasSubstr("<H3><A NAME=\"D__JEUX__DAMES_EXE\"><B>D:\\Jeux\\ "
                                "Dames.exe</B></H3></TD></TR>\r\n"));
  EXPECT_THAT(Tables(), HasSubstr("<P><TR>\r\n<TD>  </TD>\r\n"));
}

TEST_F(HtmlExportTest, AnAddressAtALinesEndRunsIntoTheMark) {
  Game("JEUX", "DAMES", "voir http://exemple\r\nfin");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export();
  EXPECT_THAT(Data(), HasSubstr("\r\nvoir  <A HREF=\"http://exemple<\">http://exemple<</A>BR>fin"
                                "\r\n</KBD>\r\n"));
}

TEST_F(HtmlExportTest, TagsOfATextStayTags) {
  Game("JEUX", "DAMES", "<B>gras</B> & \"cit\xE9\"");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export();
  EXPECT_THAT(Data(), HasSubstr("<B>gras</B> & \"cit&eacute;\"\r\n"));
}

TEST_F(HtmlExportTest, ACharacterThatTheCodePageLacksBecomesAQuestionMark) {
  Game("\xD0\x98\xD0\xB3", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export();
  EXPECT_THAT(Tables(), HasSubstr("#D__\?\?__DAMES_EXE\" TARGET=\"data\"\">D:\\?\?</A>"));
}

// --- Options ------------------------------------------------------------------------------------

TEST_F(HtmlExportTest, WithoutHeadsThePagesBeginWithTheirFirstHeading) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Lib_OptionsHTML().CheckEntete.SetValue(false);
  Export();
  for (const std::string& page : {Tables(), Data()}) {
    EXPECT_THAT(page, StartsWith("<CENTER><H3>"));
    for (const char* tag : {"<HTML>", "<HEAD>", "<BODY"}) EXPECT_THAT(page, Not(HasSubstr(tag)));
  }
  EXPECT_THAT(Tables(), EndsWith("</TABLE></P>\r\n</BODY>\r\n</HTML>\r\n"));
}

TEST_F(HtmlExportTest, TheDataPageHasNoClosingTagsWhateverTheOption) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  for (bool on : {true, false}) {
    Lib_OptionsHTML().CheckFin.SetValue(on);
    Export();
    EXPECT_THAT(Data(), EndsWith("<BR><HR SIZE=4>\r\n"));
    EXPECT_THAT(Tables(), EndsWith(on ? "</TABLE></P>\r\n</BODY>\r\n</HTML>\r\n"
                                      : "<TD></TD>\r\n</TR>\r\n</TABLE></P>\r\n"));
  }
}

// --- Names --------------------------------------------------------------------------------------

TEST_F(HtmlExportTest, FourCharactersAreCutFromTheNameWhateverTheyAre) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export({.name = u"D:\\SITE\\liste.html"});
  EXPECT_THAT(Contents("liste.html"), HasSubstr("SRC=\"liste._tableaux.htm\""));
  EXPECT_THAT(Contents("liste.html"), HasSubstr("SRC=\"liste._donnees.htm\""));
  EXPECT_THAT(Contents("liste._tableaux.htm"), HasSubstr("<A HREF=\"liste._donnees.htm#"));
  EXPECT_THAT(Contents("liste._donnees.htm"), HasSubstr("<A NAME="));
}

TEST_F(HtmlExportTest, ASecondExportReplacesTheFiles) {
  Game("JEUX", "DAMES", "Un jeu");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export();
  const std::string first = Tables() + Data();
  disc.File("SITE/Fichier_donnees.htm", std::string(100000, 'x'));
  Export();
  EXPECT_EQ(Tables() + Data(), first);
}

}  // namespace
}  // namespace trovex::test
