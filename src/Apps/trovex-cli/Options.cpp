#include "Apps/trovex-cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>

#include "Apps/trovex-cli/ReportLines.h"
#include "Resources/Version.h"

namespace trovex::cli {
namespace {

constexpr int kUsageError = 2;

// A drive is one letter, with or without its colon.
std::string CheckDrive(std::string& drive) {
  if (drive.size() == 2 && drive[1] == ':') drive.pop_back();
  const bool letter = drive.size() == 1 && std::isalpha(static_cast<unsigned char>(drive[0])) != 0;
  return letter ? std::string() : "a drive is a letter from A to Z";
}

std::string CheckNotEmpty(std::string& name) {
  return name.empty() ? "a file needs a name" : std::string();
}

// The library's message on one line.
std::string OneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

// What does not go together; empty where all does.
std::string Objection(const Options& options) {
  // A directory whose name looks like an option can be written with "./" in front.
  for (std::size_t i = 1; i < options.discs.size(); ++i) {
    if (options.discs[i].starts_with('-')) return "there is no option " + options.discs[i];
  }
  if (!options.report) {
    if (options.hash) return "--hash goes with --report only";
    if (options.discs.size() == 1) return {};
    return options.discs[1] + ": several discs go with --report only";
  }
  if (FormOf(*options.report) == ReportForm::kNone) return "--report: FILE ends in .csv or .jsonl";
  const bool other = options.json || options.inspect || options.html || options.csv ||
                     options.prn || options.txt || options.pdf || options.table ||
                     options.drop_drive;
  return other ? "--report goes with no other output" : std::string();
}

}  // namespace

Parsed ParseArguments(const std::vector<std::string>& arguments) {
  CLI::App app{
      "Catalogues the software on DISC: install procedures, other executables, ZIP archives.",
      "trovex-cli"};
  Options options;
  std::string drive = "D", disc;
  app.add_option("DISC", disc,
                 "The directory or disc image (.iso, .bin, .cue, .img, .mdf...) to catalogue; "
                 "several with --report")
      ->required();
  app.allow_extras();  // the other discs
  app.add_option("--drive", drive, "DISC is the root of this drive (on Windows: an image)")
      ->type_name("L")
      ->default_str("D")
      ->check(CLI::Validator(CheckDrive, "", "letter"));
  app.add_option("--start", options.start, "Starting directory, as D:\\JEUX")->type_name("PATH");
  app.add_flag("--json", options.json, "The catalogue as JSON on standard output");
  app.add_flag("--inspect", options.inspect, "Adds to the JSON what a click on each row shows");
  app.add_option("--ini", options.ini, "Settings file instead of Trovex.ini beside the program")
      ->type_name("FILE");
  app.add_option("--html", options.html, "Exports to HTML: frames, tables, data")
      ->type_name("FILE")
      ->check(CLI::Validator(CheckNotEmpty, "", "name"));
  app.add_option("--csv", options.csv, "Exports a table: cells in quotes, commas between them")
      ->type_name("FILE")
      ->check(CLI::Validator(CheckNotEmpty, "", "name"));
  app.add_option("--prn", options.prn, "Exports a table: plain cells, blanks between them")
      ->type_name("FILE")
      ->check(CLI::Validator(CheckNotEmpty, "", "name"));
  app.add_option("--txt", options.txt, "Exports a table: cells in quotes, tabs between them")
      ->type_name("FILE")
      ->check(CLI::Validator(CheckNotEmpty, "", "name"));
  app.add_option("--pdf", options.pdf, "Prints a table as PDF")
      ->type_name("FILE")
      ->check(CLI::Validator(CheckNotEmpty, "", "name"));
  app.add_option("--table", options.table, "One table only: 0, 1 or 2")
      ->type_name("N")
      ->check(CLI::Range(0, 2));
  app.add_flag("--drop-drive", options.drop_drive, "The HTML export leaves out the drive letter");
  app.add_option("--report", options.report,
                 "One row an entry over all of several discs; FILE ends in .csv or .jsonl")
      ->type_name("FILE")
      ->check(CLI::Validator(CheckNotEmpty, "", "name"));
  app.add_flag("--hash", options.hash,
               "Adds SHA-1 to the report, and writes FILE with the ending .sha1");
  app.add_flag("--unicode-records", options.unicode_records,
               "Reads version records in 16-bit characters, too");
  app.add_flag("--quiet", options.quiet, "No tables, no progress");
  app.set_version_flag("--version", std::string(kProgramName) + " " + kVersionText);

  std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
  try {
    app.parse(reversed);
  } catch (const CLI::CallForHelp&) {
    return {std::nullopt, 0, app.help()};
  } catch (const CLI::CallForVersion& version) {
    return {std::nullopt, 0, std::string(version.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    return {std::nullopt, kUsageError, "trovex-cli: " + OneLine(error.what()) + "\n"};
  }
  options.discs = app.remaining();
  options.discs.insert(options.discs.begin(), disc);
  const std::string objection = Objection(options);
  if (!objection.empty()) return {std::nullopt, kUsageError, "trovex-cli: " + objection + "\n"};
  options.drive = static_cast<char>(std::toupper(static_cast<unsigned char>(drive[0])));
  return {options, 0, {}};
}

}  // namespace trovex::cli
