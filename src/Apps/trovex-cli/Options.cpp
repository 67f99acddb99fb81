#include "Apps/trovex-cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>

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

}  // namespace

Parsed ParseArguments(const std::vector<std::string>& arguments) {
  CLI::App app{
      "Catalogues the software on DISC: install procedures, other executables, ZIP archives.",
      "trovex-cli"};
  Options options;
  std::string drive = "D";
  app.add_option("DISC", options.directory,
                 "The directory or disc image (.iso, .bin, .cue, .img, .mdf...) to catalogue")
      ->required();
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
  options.drive = static_cast<char>(std::toupper(static_cast<unsigned char>(drive[0])));
  return {options, 0, {}};
}

}  // namespace trovex::cli
