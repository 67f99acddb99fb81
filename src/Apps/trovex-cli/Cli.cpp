#include "Apps/trovex-cli/Cli.h"

#include <cerrno>
#include <exception>
#include <new>
#include <optional>
#include <ostream>

#include "Apps/trovex-cli/Catalogue.h"
#include "Apps/trovex-cli/DiscHost.h"
#include "Apps/trovex-cli/GivenNames.h"
#include "Apps/trovex-cli/Incomplete.h"
#include "Apps/trovex-cli/Options.h"
#include "Apps/trovex-cli/Progress.h"
#include "Apps/trovex-cli/Report.h"
#include "Lib/Lib_SelectDlg.h"
#include "Paper/SavePdf.h"
#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "Resources/Strings.h"
#include "Screen/ConvertHTML.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/PrintCommands.h"
#include "Ui/Directory.h"
#include "Ui/FormsScope.h"
#include "Ui/Headless/HeadlessView.h"
#include "Ui/Preview.h"

namespace trovex::cli {
namespace {

int Complain(std::ostream& err, const std::string& complaint) {
  err << complaint << '\n';
  return kWrongCommandLine;
}

// The program from its start to the end of its work, on a host and a view that are in place.
class Session {
 public:
  // Relative names are taken from where the user stands: the program will go elsewhere.
  Session(const Options& options, Host& host, HeadlessView& view, GivenNames& names,
          const Unread& unread)
      : options_(options),
        host_(host),
        view_(view),
        names_(names),
        unread_(unread),
        ini_(options.ini ? NameOf(options.ini) : host.InstalledSettings()),
        html_(TargetOf(options.html, ".htm")),
        pdf_(TargetOf(options.pdf, ".pdf")),
        ascii_{TargetOf(options.csv, ".csv"), TargetOf(options.prn, ".prn"),
               TargetOf(options.txt, ".txt")} {}

  int Work(const Text& start, std::ostream& out) {
    MainForm form;
    Main(form);
    UseSettings(options_, ini_);
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
  Text NameOf(const std::optional<std::string>& argument, const char* extension = "") {
    if (!argument) return {};
    const Text name = host_.NameOf(*argument + extension);
    names_.Add(name, *argument);
    return name;
  }

  // A name without a point gets the extension, as the dialog for saving gives it to a user's.
  Text TargetOf(const std::optional<std::string>& argument, const char* extension) {
    if (!argument) return {};
    const std::string last = argument->substr(argument->find_last_of("/\\") + 1);
    const bool bare = !last.empty() && last.find('.') == std::string::npos;
    return NameOf(argument, bare ? extension : "");
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
    const ExportOutcome outcome = ConvertHTML_Click(form);
    view_.ForgetAnswers();  // an export that failed asked no more
    return outcome == ExportOutcome::kWritten;
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
    return Exporter_Click(form) == ExportOutcome::kWritten;
  }

  // Presses the button and saves what the preview shows.
  bool PrintPdf(MainForm& form, const Text& file) {
    ShowTable(form);
    bool saved = false;
    view_.AnswerPreview([&](const Preview& preview) {
      // Pages that stop in the middle of the table are no table.
      saved = preview.whole && SavePdf(preview.pages, file);
    });
    Imprimer_Click(form);
    return saved;
  }

  // What a user does who takes one of the options.
  void AnswerChoice(int option) {
    view_.AnswerForm([option](Form& dialog) {
      Lib_SelectDlg& choice = static_cast<Lib_SelectDlg&>(dialog);
      Raise(choice.SelOptions(option).on_click);
      choice.Oui().Press();
    });
  }

  const Options& options_;
  Host& host_;
  HeadlessView& view_;
  GivenNames& names_;
  const Unread& unread_;
  const Text ini_, html_, pdf_;
  const Text ascii_[3];  // in the order of the choices; empty where there is no export
};

int RunOn(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
          bool err_is_terminal) {
  const Parsed parsed = ParseArguments(arguments);
  if (!parsed.options) {
    (parsed.exit_status == 0 ? out : err) << parsed.output;
    return parsed.exit_status;
  }
  const Options& options = *parsed.options;
  if (options.report) return Report(options, err, err_is_terminal);
  std::string complaint;
  const auto host =
      OpenDisc(options.discs.front(), static_cast<char16_t>(options.drive), complaint);
  if (!host) return Complain(err, complaint);
  if (!complaint.empty()) err << complaint << '\n';

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
    GivenNames names;
    Progress progress(view, names, err, err_is_terminal && !options.quiet);
    status = Session(options, *host, view, names, unread).Work(start, out);
  } catch (const RuntimeError& error) {
    err << MessageOf(error) << '\n';
  }
  TellUnread(unread, *host, err);
  return status;
}

}  // namespace

// What is no run-time error of the program is a bug in it, or the end of the memory; the user gets
// a line all the same.
int Run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
        bool err_is_terminal) {
  try {
    return RunOn(arguments, out, err, err_is_terminal);
  } catch (const std::bad_alloc&) {
    err << "trovex-cli: mémoire insuffisante\n";
  } catch (const std::exception& error) {
    err << "trovex-cli: erreur interne : " << Printable(FromUtf8(error.what())) << '\n';
  }
  return kRuntimeError;
}

}  // namespace trovex::cli
