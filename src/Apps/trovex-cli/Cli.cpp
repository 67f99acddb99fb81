#include "Apps/trovex-cli/Cli.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <ostream>

#include "Apps/trovex-cli/Catalogue.h"
#include "Apps/trovex-cli/Incomplete.h"
#include "Apps/trovex-cli/Options.h"
#include "Lib/LIB_INI.h"
#include "Lib/Lib_SelectDlg.h"
#include "Paper/SavePdf.h"
#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "Resources/Strings.h"
#include "Screen/LIB_GENERALE.h"
#include "Ui/Directory.h"
#include "Ui/FormsScope.h"
#include "Ui/Headless/HeadlessView.h"
#include "Ui/Preview.h"

namespace trovex::cli {
namespace {

// Shows the directory in hand on the terminal's last line, and error boxes on lines of their own.
class Progress {
 public:
  Progress(HeadlessView& view, std::ostream& err, bool shown) : err_(err), shown_(shown) {
    view.on_repaint = [this](Control& control) { OnRepaint(control); };
    view.on_box = [this](const Box& box) { OnBox(box); };
  }
  ~Progress() { ClearLine(); }

 private:
  static constexpr std::size_t kLineWidth = 78;

  void OnRepaint(Control& control) {
    if (!shown_ || control.Kind() != ControlKind::kStatusBar) return;
    const Text& text = static_cast<StatusBar&>(control).PanelText(u"Msg");
    ClearLine();
    err_ << Printable(TextView(text).substr(0, kLineWidth)) << std::flush;
    line_used_ = !text.empty();
  }

  void OnBox(const Box& box) {
    if (box.style != BoxStyle::kErreur) return;
    ClearLine();
    err_ << "trovex-cli: " << Printable(OneLine(box.text)) << '\n';
  }

  static Text OneLine(Text text) {
    for (char16_t& unit : text) {
      if (unit == u'\r' || unit == u'\n') unit = u' ';
    }
    return text;
  }

  void ClearLine() {
    if (line_used_) err_ << "\r\x1B[K" << std::flush;
    line_used_ = false;
  }

  std::ostream& err_;
  bool shown_;
  bool line_used_ = false;
};

int Complain(std::ostream& err, const std::string& complaint) {
  err << complaint << '\n';
  return kWrongCommandLine;
}

// The program from its start to the end of its work, on a host and a view that are in place.
class Session {
 public:
  // Relative names are taken from where the user stands: the program will go elsewhere.
  Session(const Options& options, Host& host, HeadlessView& view, const Unread& unread)
      : options_(options),
        view_(view),
        unread_(unread),
        ini_(options.ini ? host.NameOf(*options.ini) : host.InstalledSettings()),
        html_(TargetOf(host, options.html, ".htm")),
        pdf_(TargetOf(host, options.pdf, ".pdf")),
        ascii_{TargetOf(host, options.csv, ".csv"), TargetOf(host, options.prn, ".prn"),
               TargetOf(host, options.txt, ".txt")} {}

  int Work(const Text& start, std::ostream& out) {
    MainForm form;
    Main(form);
    if (options_.ini || !ini_.empty()) sFichierIni = ini_;
    form.ListeRepertoire.SetPath(start);
    form.Explorer.Press();
    std::optional<Inspection> inspection;
    if (options_.inspect) inspection = InspectRows(form);
    const auto unprinted = Print(form, start, inspection ? &*inspection : nullptr, out);
    bool exported = !options_.html || ExportHtml(form, html_);
    exported = ExportTable(form) && exported;
    if (options_.pdf) exported = PrintPdf(form, pdf_) && exported;
    form.Quitter.Press();
    if (unprinted) throw *unprinted;
    if (!exported) return kExportFailed;
    return unread_.IsEmpty() ? kDone : kIncomplete;
  }

 private:
  // A name without a point gets the extension, as the dialog for saving gives it to a user's.
  static Text TargetOf(Host& host, const std::optional<std::string>& argument,
                       const char* extension) {
    if (!argument) return {};
    const std::string last = argument->substr(argument->find_last_of("/\\") + 1);
    const bool bare = !last.empty() && last.find('.') == std::string::npos;
    return host.NameOf(bare ? *argument + extension : *argument);
  }

  // Why standard output did not take everything, if so; the exports have not to suffer from it.
  std::optional<RuntimeError> Print(MainForm& form, const Text& start, const Inspection* inspection,
                                    std::ostream& out) {
    errno = 0;
    if (options_.json) {
      out << ToJson(form, start, inspection, view_.Boxes(), TextsOf(unread_));
    } else if (!options_.quiet) {
      PrintTables(form, out);
    }
    out.flush();
    if (out) return std::nullopt;
    const bool nobody_reads = errno == EPIPE || errno == EBADF;
    return RuntimeError(nobody_reads ? ErrorNumber::kDeviceIo : ErrorNumber::kDiskFull,
                        u"trovex-cli");
  }

  // Presses the button and answers for the user; false if it could not be written.
  bool ExportHtml(MainForm& form, const Text& file) {
    view_.AnswerFile(file);
    view_.AnswerQuestion(options_.table ? BoxAnswer::kNo : BoxAnswer::kYes);  // all the tables?
    if (options_.table) AnswerChoice(*options_.table);
    view_.AnswerQuestion(options_.drop_drive ? BoxAnswer::kNo : BoxAnswer::kYes);  // keep it?
    view_.AnswerQuestion(BoxAnswer::kNo);                                          // look at it?
    const std::size_t before = ExportErrors();
    Raise(form.ConvertHTML.on_click);
    view_.ForgetAnswers();  // an export that failed asked no more
    return ExportErrors() == before;
  }

  // The exports of one table: that of --table, or the one that came up.
  bool ExportTable(MainForm& form) {
    bool exported = true;
    for (int format = 0; format < 3; ++format) {
      if (ascii_[format].empty()) continue;
      ShowTable(form);
      exported = ExportAscii(form, format, ascii_[format]) && exported;
    }
    return exported;
  }

  void ShowTable(MainForm& form) {
    if (options_.table) form.ZoneDesTableaux.SetTab(*options_.table);
  }

  bool ExportAscii(MainForm& form, int format, const Text& file) {
    AnswerChoice(format);
    view_.AnswerFile(file);
    const std::size_t before = ExportErrors();
    Raise(form.Exporter.on_click);
    return ExportErrors() == before;
  }

  // Presses the button and saves what the preview shows.
  bool PrintPdf(MainForm& form, const Text& file) {
    ShowTable(form);
    const std::size_t before = ExportErrors();
    view_.AnswerPreview([&](const Preview& preview) {
      // Pages that stop in the middle of the table are no table.
      if (ExportErrors() == before) SavePdf(preview.pages, file);
    });
    Raise(form.Imprimer.on_click);
    return ExportErrors() == before;
  }

  // What a user does who takes one of the options.
  void AnswerChoice(int option) {
    view_.AnswerForm([option](Form& dialog) {
      Lib_SelectDlg& choice = static_cast<Lib_SelectDlg&>(dialog);
      Raise(choice.SelOptions(option).on_click);
      choice.Oui().Press();
    });
  }

  std::size_t ExportErrors() const {
    // What rows say of missing disks is no failure of the export.
    const auto is_error = [](const Box& box) {
      return box.text.starts_with(ResString(StringId::kErreurHtml)) ||
             box.text.starts_with(ResString(StringId::kErreurEcriture)) ||
             box.text.starts_with(ResString(StringId::kErreurChangeCaractere)) ||  // a text lost
             box.text.starts_with(ResString(StringId::kErreurPdf)) ||
             box.text.starts_with(ResString(StringId::kDocumentTropLong)) ||
             box.text.starts_with(u"GridExport()");
    };
    return static_cast<std::size_t>(
        std::count_if(view_.Boxes().begin(), view_.Boxes().end(), is_error));
  }

  const Options& options_;
  HeadlessView& view_;
  const Unread& unread_;
  const Text ini_, html_, pdf_;
  const Text ascii_[3];  // in the order of the choices; empty where there is no export
};

std::string MessageOf(const RuntimeError& error) {
  return "trovex-cli: erreur d'exécution " + std::to_string(error.Number()) + " : " +
         Printable(error.Description()) + " (" + Printable(error.Source()) + ")";
}

}  // namespace

int Run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
        bool err_is_terminal) {
  const Parsed parsed = ParseArguments(arguments);
  if (!parsed.options) {
    (parsed.exit_status == 0 ? out : err) << parsed.output;
    return parsed.exit_status;
  }
  const Options& options = *parsed.options;
  std::string complaint;
  const auto host = OpenHost(options.directory, static_cast<char16_t>(options.drive), complaint);
  if (!host) return Complain(err, complaint);

  PlatformScope platform(host->GetPlatform());
  HeadlessView view;
  ViewScope view_scope(view);
  FormsScope forms;
  const Text start = options.start ? FromUtf8(*options.start) : host->Start();
  if (!DirectoryExists(start)) {
    return Complain(err, "trovex-cli: --start " + Printable(start) + ": no such directory");
  }
  Unread unread;
  UnreadScope unread_scope(unread);
  int status = kRuntimeError;
  try {
    Progress progress(view, err, err_is_terminal && !options.quiet);
    status = Session(options, *host, view, unread).Work(start, out);
  } catch (const RuntimeError& error) {
    err << MessageOf(error) << '\n';
  }
  TellUnread(unread, *host, err);
  return status;
}

}  // namespace trovex::cli
