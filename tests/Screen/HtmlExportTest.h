// What the tests of the HTML export share: the user who answers, the site that comes of it, and a
// disk that fails where a test says so.
#pragma once

#include <filesystem>

#include "Html/Lib_OptionsHTML.h"
#include "Lib/Lib_SelectDlg.h"
#include "Platform/PartScope.h"
#include "Screen/ScreenTest.h"

namespace trovex::test {

inline constexpr std::size_t kNever = static_cast<std::size_t>(-1);
inline const Text kBusy = u"Traitement en cours, patientez s.v.p";

// A disk on which creating a file or writing to it fails where a test says so.
class FailingDisk : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;

  Text refused;               // the name of a file that cannot be created
  std::size_t room = kNever;  // bytes until the disk is full

  FileHandle OpenWrite(const Text& name) override {
    if (EqualsNoCase(name, refused)) throw RuntimeError(ErrorNumber::kPathFileAccess);
    return Target().OpenWrite(name);
  }
  void Write(FileHandle file, const void* data, std::size_t size) override {
    longest_write = std::max(longest_write, size);
    if (size > room) throw RuntimeError(ErrorNumber::kDiskFull);
    room -= size;
    Target().Write(file, data, size);
  }

  std::size_t longest_write = 0;
};

// The export of a disc whose catalogue a test spells out, to the directory SITE.
class HtmlExportTest : public ScreenTest {
 protected:
  HtmlExportTest() {
    disc.Directory("SITE");
    sFichierIni = u"D:\\SITE\\AUCUN.INI";
    form.Show();
  }
  ~HtmlExportTest() override { sFichierIni.clear(); }

  // What the user answers: a name, all tables or one, whether the drive stays, whether to look.
  struct Answers {
    int table = -1;
    bool keep_drive = true;
    bool look = false;
    Text name = u"D:\\SITE\\Fichier.htm";
  };
  static BoxAnswer YesOrNo(bool yes) { return yes ? BoxAnswer::kYes : BoxAnswer::kNo; }

  void ChooseTable(int table) {
    view.Answer(BoxAnswer::kNo);
    view.AnswerForm([table](Form& dialog) {
      auto& choice = dynamic_cast<Lib_SelectDlg&>(dialog);
      Raise(choice.SelOptions(table).on_click);
      choice.Oui().Press();
    });
  }
  void Prepare(const Answers& answers) {
    view.AnswerFile(answers.name);
    if (answers.table == -1) view.Answer(BoxAnswer::kYes);
    if (answers.table >= 0) ChooseTable(answers.table);
    view.Answer(YesOrNo(answers.keep_drive));
  }
  // The whole command, which comes to its end.
  void Export(const Answers& answers) {
    Prepare(answers);
    view.Answer(YesOrNo(answers.look));
    Raise(form.ConvertHTML.on_click);
  }
  void Export() { Export(Answers()); }

  // Bytes of a file of the site; "missing" where there is none.
  std::string Contents(std::string_view name) {
    std::string path = "SITE/" + std::string(name);
    std::error_code error;
    if (!std::filesystem::exists(disc.HostPath(path), error)) return "missing";
    const FileHandle file = disc.GetPlatform().OpenRead(u"D:\\" + FromUtf8(path));
    std::string contents;
    char piece[4096];
    while (const std::size_t count = disc.GetPlatform().Read(file, piece, sizeof piece)) {
      contents.append(piece, count);
    }
    disc.GetPlatform().Close(file);
    return contents;
  }
  std::string Frameset() { return Contents("Fichier.htm"); }
  std::string Tables() { return Contents("Fichier_tableaux.htm"); }
  std::string Data() { return Contents("Fichier_donnees.htm"); }

  void ExpectNoFile() {
    for (const char* name : {"Fichier.htm", "Fichier_tableaux.htm", "Fichier_donnees.htm"}) {
      EXPECT_EQ(Contents(name), "missing") << name;
    }
  }

  // One program with a text beside it, in a directory of its own.
  void Game(const std::string& directory, const std::string& name, const std::string& text) {
    Dos(directory + "/" + name + ".EXE");
    disc.File(directory + "/" + name + ".TXT", text);
  }

  FailingDisk disk{CurrentPlatform()};
  PartScope<FailingDisk> disk_scope{disk};
};

inline std::string Page(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

inline const std::string kHeadStart =
    "<!-- DOCUMENT HTML GENERE PAR L'APPLICATION (c) Trovex 1.0.0 - 1999 -->\r\n"
    "<!-- DOCTYPE HTML SYSTEM \"html.dtd\" -->\r\n";
inline const std::string kHeadEnd =
    "<BODY BACKGROUND=\"\" BGCOLOR=\"\"><!--IMG SRC=\"\" ALIGN=\"MIDDLE\"-->\r\n\r\n";
inline const std::string kTableHead =
    kHeadStart + "<HTML><HEAD><TITLE>Tableaux des fichiers</TITLE></HEAD>\r\n" + kHeadEnd;
inline const std::string kDataHead =
    kHeadStart + "<HTML><HEAD><TITLE>Liste des donn&eacute;es</TITLE></HEAD>\r\n" + kHeadEnd;
inline const std::string kTableEnd = "</BODY>\r\n</HTML>\r\n";

// The same on a disc of two programs, one with a text.
class HtmlQuestionsTest : public HtmlExportTest {
 protected:
  HtmlQuestionsTest() {
    Game("JEUX", "DAMES", "Un jeu");
    Dos("VIDE/RIEN.EXE");
    Scan();
  }
};

}  // namespace trovex::test
