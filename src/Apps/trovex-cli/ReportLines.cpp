#include "Apps/trovex-cli/ReportLines.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace trovex::cli {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kCsvEnd = "\r\n";
constexpr std::string_view kFormulaStarts = "=+-@\t\r";

bool EndsWithNoCase(std::string_view text, std::string_view ending) {
  return text.size() > ending.size() &&
         std::equal(ending.rbegin(), ending.rend(), text.rbegin(), [](char a, char b) {
           return a == std::tolower(static_cast<unsigned char>(b));
         });
}

// "1997-06-02T10:30:00"
std::string IsoOf(const LocalTime& time) {
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", time.year, time.month, time.day,
                time.hour, time.minute, time.second);
  return text;
}

// Calls `take` with title and value of every column: a text, or a number where there is one.
template <typename Take>
void ForEachColumn(const ReportRow& row, Take take) {
  take("disc", row.disc);
  take("volume", row.volume);
  take("table", row.table);
  take("description", row.description);
  take("source", row.source);
  take("location", row.location);
  take("file", row.file);
  take("version", row.version);
  take("product", row.product);
  take("company", row.company);
  take("copyright", row.copyright);
  take("size", row.size);
  take("modified", row.modified ? IsoOf(*row.modified) : std::string());
  take("format", row.format);
  if (row.sha1) take("sha1", *row.sha1);
}

std::string CsvCell(const std::string& text) {
  const bool formula = !text.empty() && kFormulaStarts.find(text[0]) != std::string_view::npos;
  const std::string safe = formula ? "'" + text : text;
  if (safe.find_first_of(";\"\r\n\t") == std::string::npos) return safe;
  std::string quoted = "\"";
  for (const char sign : safe) quoted += sign == '"' ? "\"\"" : std::string(1, sign);
  return quoted + '"';
}
std::string CsvCell(const std::optional<std::int64_t>& number) {
  return number ? std::to_string(*number) : std::string();
}

std::string CsvLine(const ReportRow& row) {
  std::string line;
  ForEachColumn(row, [&](const char*, const auto& value) { line += CsvCell(value) + ';'; });
  line.pop_back();
  return line += kCsvEnd;
}

std::string JsonLine(const ReportRow& row) {
  nlohmann::ordered_json object;
  const auto put = [&](const char* title, const auto& value) {
    if constexpr (requires { value.has_value(); }) {
      object[title] = value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json();
    } else {
      object[title] = value;
    }
  };
  ForEachColumn(row, put);
  return object.dump() + '\n';
}

}  // namespace

ReportForm FormOf(std::string_view file) {
  if (EndsWithNoCase(file, ".csv")) return ReportForm::kCsv;
  return EndsWithNoCase(file, ".jsonl") ? ReportForm::kJsonLines : ReportForm::kNone;
}

std::string ReportHead(ReportForm form, bool hashed) {
  if (form != ReportForm::kCsv) return {};
  ReportRow titles;
  if (hashed) titles.sha1 = "";
  std::string line(kMark);
  ForEachColumn(titles, [&](const char* title, const auto&) { line += std::string(title) + ';'; });
  line.pop_back();
  return line += kCsvEnd;
}

std::string ReportLine(ReportForm form, const ReportRow& row) {
  return form == ReportForm::kCsv ? CsvLine(row) : JsonLine(row);
}

std::string DigestLine(const std::string& digest, const std::string& path) {
  std::string escaped;
  for (const char sign : path) {
    if (sign == '\\') {
      escaped += "\\\\";
    } else if (sign == '\n') {
      escaped += "\\n";
    } else if (sign == '\r') {
      escaped += "\\r";
    } else {
      escaped += sign;
    }
  }
  // The mark in front says that the name is written with such signs.
  return (escaped == path ? "" : "\\") + digest + "  " + escaped + '\n';
}

}  // namespace trovex::cli
