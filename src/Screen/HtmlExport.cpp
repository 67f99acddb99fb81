#include "Screen/HtmlExport.h"

#include "Html/LIB_HTML.h"
#include "Html/Lib_OptionsHTML.h"
#include "Lib/FileNumbers.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr std::size_t kExtensionLength = 4;  // whatever the extension is
constexpr int kNotOpened = -1;
constexpr int kColEmplacement = 1;
constexpr int kColFichier = 2;

const Text kAttribut = u"TARGET=\"data\"";
const Text kTable = u"<TABLE BORDER=2 CELLSPACING=1 CELLPADDING=3 WIDTH=98%>";

// A table's anchor and its headings on the two pages.
struct Section {
  const char16_t* sCle;
  StringId titreTable;
  StringId titreDonnees;
};

constexpr Section kSections[kTableCount] = {
    {u"SetupInstall", StringId::kListeInstallation, StringId::kInfosInstallation},
    {u"Executbale", StringId::kListeExecutables, StringId::kInfosExecutables},
    {u"Zip", StringId::kListeArchives, StringId::kInfosArchives},
};

class HtmlExport {
 public:
  HtmlExport(MainForm& form, const HtmlExportWish& wish)
      : form_(form),
        wish_(wish),
        sPageTable_(PageName(u"tableaux")),
        sPageDonnees_(PageName(u"donnees")) {}

  ExportOutcome Run() {
    const InputBreak input_break;
    BusyOn();
    const std::size_t iAbandonnes = iTextesAbandonnes();
    const int iOngletDepart = form_.ZoneDesTableaux.Tab();
    form_.Refresh();
    hTable_ = iOuvreEcriture(wish_.sFichier);
    if (hTable_ == kNotOpened) return ExportOutcome::kFailed;
    try {
      WriteFrameset();
      if (!OpenPages()) return ExportOutcome::kFailed;
      WritePages();
      if (form_.ZoneDesTableaux.Tab() != iOngletDepart) form_.ZoneDesTableaux.SetTab(iOngletDepart);
      const bool bEntier = iTextesAbandonnes() == iAbandonnes;
      Offer();
      BusyOff();
      return bEntier ? ExportOutcome::kWritten : ExportOutcome::kFailed;
    } catch (const RuntimeError& error) {
      Abandon(error);
      return ExportOutcome::kFailed;
    }
  }

 private:
  Text PageName(TextView sRole) const {
    const Text& N = wish_.sFichier;
    const std::size_t size = N.size() > kExtensionLength ? N.size() - kExtensionLength : 0;
    return N.substr(0, size) + u"_" + Text(sRole) + u".htm";
  }

  void Table(const Text& sLigne) { PrintLine(hTable_, sLigne); }
  void Data(const Text& sLigne) { PrintLine(hDonnees_, sLigne); }

  void WriteFrameset() {
    const DirListBox& liste = form_.ListeRepertoire;
    Table(u"<HTML><HEAD><TITLE>" + ResString(StringId::kTitreFrameset) +
          liste.List(liste.ListIndex()) + u"</TITLE></HEAD>");
    Table(u"<FRAMESET ROWS=\"55, 45\" BORDER=5 FRAMEBORDER=\"YES\" FRAMESPACING=5>");
    Table(u"<FRAME SCROLLING=AUTO SRC=\"" + sNomSeul(sPageTable_) + u"\" NAME=\"table\">");
    Table(u"<FRAME SCROLLING=AUTO SRC=\"" + sNomSeul(sPageDonnees_) + u"\" NAME=\"data\">");
    Table(u"</FRAMESET></HTML>");
    CloseFile(hTable_);
  }

  bool OpenPages() {
    hTable_ = iOuvreEcriture(sPageTable_);
    if (hTable_ == kNotOpened) return false;
    hDonnees_ = iOuvreEcriture(sPageDonnees_);
    return hDonnees_ != kNotOpened;
  }

  void WritePages() {
    OptionsHTML& options = Lib_OptionsHTML();
    if (options.CheckEntete.Value()) {
      Table(sEnteteHTML(ResString(StringId::kTableauxDesFichiers)));
      Data(sEnteteHTML(ResString(StringId::kListeDesDonnees)));
    }
    for (int i = 0; i < kTableCount; ++i) WriteTable(i);
    if (options.CheckFin.Value()) Table(sFinHTML());
    CloseFile(hTable_);
    CloseFile(hDonnees_);
  }

  void WriteTable(int i) {
    BusyOn();
    if (wish_.iTableau != -1 && wish_.iTableau != i) return;
    form_.ZoneDesTableaux.SetTab(i);
    form_.Refresh();
    BusyOn();
    if (Trimmed(form_.TextInfo(6).GetText()) == u"0") return;
    const Section& section = kSections[i];
    const Text sLien = sLienAncre(ResString(section.titreTable), sNomSeul(sPageDonnees_), kAttribut,
                                  Text(section.sCle));
    const Text sNom = sAncreNom(ResString(section.titreDonnees), false, true, Text(section.sCle));
    Table(u"<CENTER><H3>" + sLien + u"</H3></CENTER>");
    Data(u"<CENTER><H3>" + sNom + u"</H3></CENTER>");
    Grid& grid = form_.GridLogiciel(i);
    const int R = grid.Rows();
    Table(kTable);
    for (int r = 0; r < R; ++r) WriteRow(grid, i, r);
    Table(u"</TABLE></P>");
    Data(u"<BR><HR SIZE=4>");
  }

  void WriteRow(Grid& grid, int i, int r) {
    grid.SetRow(r);
    Raise(form_.GridLogiciel(i).on_click);
    BusyOn();
    const int C = grid.Cols();
    for (int c = 0; c < C; ++c) {
      grid.SetCol(c);
      if (c == 0) {
        Table(u"<P><TR>");
        ReadAnchor(grid);
      }
      Table(CellOf(grid.GetText(), r, c));
      if (c == 0 && r != 0 && HasText()) WriteBlock(grid.GetText());
      if (c == C - 1) Table(u"</TR>");
    }
  }

  bool HasText() const { return !form_.TextInfo(0).GetText().empty(); }

  // The key of the row: the full name, with the blank in front of the file's cell.
  void ReadAnchor(Grid& grid) {
    grid.SetCol(kColEmplacement);
    const Text sEmplacement = sAjouteBackslash(grid.GetText());
    grid.SetCol(kColFichier);
    sAncre_ = Trim(sEmplacement + grid.GetText());
    grid.SetCol(0);
  }

  Text CellOf(const Text& sTexte, int r, int c) const {
    if (r == 0) return u"<TD ALIGN=CENTER><B>" + sTexteVersHTML(sTexte) + u"</B></TD>";
    if (c != kColEmplacement) return u"<TD>" + sTexteVersHTML(sTexte) + u"</TD>";
    return u"<TD>" + (HasText() ? LinkedLocation(sTexte) : PlainLocation(sTexte)) + u"</TD>";
  }

  Text PlainLocation(const Text& sTexte) const {
    const Text sHtml = sTexteVersHTML(sTexte);
    return wish_.bGarderLecteur ? sHtml : sDroiteDe(sHtml, u":");
  }

  Text LinkedLocation(const Text& sTexte) const {
    const Text sLibelle = wish_.bGarderLecteur ? Trim(sTexte) : sDroiteDe(Trim(sTexte), u":");
    return sLienAncre(sLibelle, sNomSeul(sPageDonnees_), kAttribut, sAncre_);
  }

  void WriteBlock(const Text& sDescription) {
    const Text sTitre = Trim(sDescription);
    const auto info = [this](int i) { return form_.TextInfo(i).GetText(); };
    Data(kTable);
    Data(u"<TR><TD ALIGN=CENTER COLSPAN=2>");
    Data(u"<H3>" + sAncreNom(sTitre.empty() ? sAncre_ : sTitre, true, true, sAncre_) +
         u"</H3></TD></TR>");
    Data(u"<TR VALIGN=TOP><TD><KBD>");
    Data(sTexteVersHTML(sChangeCaractere(info(0), kCrLf, u"<BR>")));
    Data(u"</KBD>");
    Data(u"</TD><TD ALIGN=CENTER>");
    Data(info(4) + u"<BR>" + info(1) + u"<BR>" + info(2) + u"<BR>" + info(3));
    Data(u"</TD></TR>");
    Data(u"</TABLE><BR>");
  }

  void Offer() {
    if (iQuestion(ResString(StringId::kConsulterResultat)) == BoxAnswer::kYes) {
      OuvrirDocument(wish_.sFichier);
    }
  }

  void Abandon(const RuntimeError& error) {
    for (int hFichier : {hTable_, hDonnees_}) IgnoringErrors([&] { CloseFile(hFichier); });
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurHtml) + u".");
  }

  MainForm& form_;
  const HtmlExportWish& wish_;
  const Text sPageTable_, sPageDonnees_;
  int hTable_ = 0;  // the frameset file's at first
  int hDonnees_ = 0;
  Text sAncre_;
};

}  // namespace

ExportOutcome ExportHtml(MainForm& form, const HtmlExportWish& wish) {
  return HtmlExport(form, wish).Run();
}

}  // namespace trovex
