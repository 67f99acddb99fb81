#include "Apps/trovex-cli/Report.h"

#include <filesystem>
#include <ostream>

#include "Apps/trovex-cli/Catalogue.h"
#include "Apps/trovex-cli/Cli.h"
#include "Apps/trovex-cli/DiscEntry.h"
#include "Apps/trovex-cli/DiscHost.h"
#include "Apps/trovex-cli/DiskSpelling.h"
#include "Apps/trovex-cli/Incomplete.h"
#include "Apps/trovex-cli/Progress.h"
#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "Platform/NewFile.h"
#include "Screen/LIB_GENERALE.h"
#include "Ui/Directory.h"
#include "Ui/FormsScope.h"

namespace trovex::cli {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDriveRoot = 3;  // "D:\"

fs::path PathOf(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}
std::string Utf8Of(const std::u8string& text) {
  return {text.begin(), text.end()};
}

// As seen from a directory, '/' between; whole where no way leads there.
std::string Relative(const std::string& name, const fs::path& directory) {
  const fs::path path = PathOf(name);
  const fs::path relative = path.is_absolute() ? path.lexically_relative(directory) : path;
  return Utf8Of((relative.empty() ? path : relative).generic_u8string());
}

// The name of the list of digests beside a report.
std::string DigestsOf(const std::string& report) {
  return Utf8Of(PathOf(report).replace_extension(".sha1").u8string());
}

// The report's file, and the list of digests beside it, on a host that stays for all the discs.
// Once something could not be written, neither is wanted any more.
class Files {
 public:
  explicit Files(const Options& options)
      : host_(OpenHostWithoutDisc(static_cast<char16_t>(options.drive))),
        form_(FormOf(*options.report)),
        hash_(options.hash) {
    Try([&] {
      rows_.emplace(host_->GetPlatform(), host_->NameOf(*options.report));
      rows_->Write(ReportHead(form_, hash_));
      if (hash_) digests_.emplace(host_->GetPlatform(), host_->NameOf(DigestsOf(*options.report)));
    });
  }

  bool Hash() const { return hash_; }
  bool Good() const { return good_; }

  void Put(const ReportRow& row) {
    Try([&] { rows_->Write(ReportLine(form_, row)); });
  }
  void PutDigest(const ReportRow& row, const std::string& path) {
    Try([&] { digests_->Write(DigestLine(*row.sha1, path)); });
  }
  // A list of digests without its report would be no harm, but a report without its list is not
  // what was asked for.
  bool Keep() {
    Try([&] {
      if (digests_) digests_->Keep();
      rows_->Keep();
    });
    return good_;
  }

 private:
  template <typename Step>
  void Try(Step step) {
    if (!good_) return;
    try {
      step();
    } catch (const RuntimeError&) {
      good_ = false;
    }
  }

  std::unique_ptr<Host> host_;
  ReportForm form_;
  bool hash_;
  std::optional<NewFile> rows_, digests_;
  bool good_ = true;
};

// The rows of one disc.
class DiscRows {
 public:
  DiscRows(std::string disc, Host& host, Files& files, const fs::path& directory)
      : host_(host), files_(files), directory_(directory), disc_(std::move(disc)) {
    std::error_code error;
    in_directory_ = fs::is_directory(directory_ / PathOf(disc_), error);
    volume_ = ToStrictUtf8(host.GetPlatform().GetVolumeLabel(host.Start().substr(0, kDriveRoot)));
    RegisterFindingListener([this](const Finding& finding) { Take(finding); });
  }
  ~DiscRows() { RegisterFindingListener({}); }
  DiscRows(const DiscRows&) = delete;
  DiscRows& operator=(const DiscRows&) = delete;

 private:
  void Take(const Finding& finding) {
    if (walked_ != finding.directory || location_.empty()) {
      walked_ = finding.directory;
      location_ = spelling_.Of(walked_);
    }
    ReportRow row = RowOf(finding);
    row.disc = ToStrictUtf8(FromUtf8(disc_));
    row.volume = volume_;
    row.location = ToStrictUtf8(location_);
    if (files_.Hash()) row.sha1 = "";
    AddContents(WithBackslash(location_) + finding.file, row);
    files_.Put(row);
  }

  void AddContents(const Text& name, ReportRow& row) {
    if (!ReadContents(host_.GetPlatform(), name, files_.Hash(), row)) {
      NoteUnread(name);
    } else if (files_.Hash() && in_directory_) {
      files_.PutDigest(row, Relative(host_.UserNameOf(name), directory_));
    }
  }

  Host& host_;
  Files& files_;
  const fs::path& directory_;  // that digests are told from
  const std::string disc_;
  bool in_directory_ = false;  // not in an image, where no other program finds a file by its name
  std::string volume_;
  DiskSpelling spelling_;
  Text walked_, location_;  // of the directory in hand
};

class Reporter {
 public:
  Reporter(const Options& options, std::ostream& err, bool progress)
      : options_(options), err_(err), progress_(progress), files_(options) {
    std::error_code error;
    directory_ = fs::current_path(error);
  }

  int Run() {
    bool whole = true;
    for (std::size_t i = 0; i < options_.discs.size() && files_.Good(); ++i) {
      whole = Catalogue(i) && whole;
    }
    if (files_.Keep()) return whole ? kDone : kIncomplete;
    err_ << "trovex-cli: " << Printable(FromUtf8(*options_.report)) << ": cannot be written\n";
    return kExportFailed;
  }

 private:
  // One line about a disc.
  bool Complain(const std::string& complaint) {
    err_ << complaint << '\n';
    return false;
  }

  // False if the disc, or a part of it, could not be read.
  bool Catalogue(std::size_t i) {
    // The program goes elsewhere; names are taken from where the user stands.
    std::error_code error;
    fs::current_path(directory_, error);
    std::string complaint;
    const auto host = OpenDisc(options_.discs[i], static_cast<char16_t>(options_.drive), complaint);
    if (!host) return Complain(complaint);
    if (!complaint.empty()) Complain(complaint);
    PlatformScope platform(host->GetPlatform());
    HeadlessView view;
    ViewScope view_scope(view);
    FormsScope forms;
    const Text start = options_.start ? FromUtf8(*options_.start) : host->Start();
    if (!DirectoryExists(start)) {
      return Complain("trovex-cli: " + Printable(FromUtf8(options_.discs[i])) + ": --start " +
                      Printable(start) + ": no such directory");
    }
    const GivenNames names;
    Progress progress(view, names, err_, progress_, PlaceOf(i));
    return Scan(i, *host, start);
  }

  // "disc 2 of 10, "
  std::string PlaceOf(std::size_t i) const {
    return "disc " + std::to_string(i + 1) + " of " + std::to_string(options_.discs.size()) + ", ";
  }

  bool Scan(std::size_t i, Host& host, const Text& start) {
    Unread unread;
    UnreadScope scope(unread);
    bool ended = true;
    try {
      Walk(i, host, start);
    } catch (const RuntimeError& error) {
      ended = Complain(MessageOf(error));
    }
    TellUnread(unread, host, err_);
    return ended && unread.IsEmpty();
  }

  void Walk(std::size_t i, Host& host, const Text& start) {
    const Text ini = options_.ini ? host.NameOf(*options_.ini) : host.InstalledSettings();
    MainForm form;
    Main(form);
    UseSettings(options_, ini);
    form.ListeRepertoire.SetPath(start);
    DiscRows rows(options_.discs[i], host, files_, directory_);
    form.Explorer.Press();
    form.Quitter.Press();
  }

  const Options& options_;
  std::ostream& err_;
  const bool progress_;
  Files files_;
  fs::path directory_;  // where the user stands
};

}  // namespace

int Report(const Options& options, std::ostream& err, bool err_is_terminal) {
  return Reporter(options, err, err_is_terminal && !options.quiet).Run();
}

}  // namespace trovex::cli
