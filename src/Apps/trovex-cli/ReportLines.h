// The lines of a report: an entry of a catalogue as a row of CSV or as a line of JSON.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Platform.h"

namespace trovex::cli {

enum class ReportForm { kNone, kCsv, kJsonLines };

// Told by the ending of the report's file, in any case.
ReportForm FormOf(std::string_view file);

// One entry. Texts are UTF-8.
struct ReportRow {
  std::string disc, volume, table, description, source, location, file, version, product, company,
      copyright;
  std::optional<std::int64_t> size;  // bytes
  std::optional<LocalTime> modified;
  std::string format;
  std::optional<std::string> sha1;  // empty where it could not be told; none without digests
};

// What a report begins with: the mark of UTF-8 and the titles, or nothing. `hashed`: with digests.
std::string ReportHead(ReportForm form, bool hashed);
// A row with its line end. In CSV a cell that begins with =, +, -, @, a tab or a carriage return,
// which a spreadsheet would take for a formula, has an apostrophe in front.
std::string ReportLine(ReportForm form, const ReportRow& row);

// A line of a list of digests for sha1sum -c; `path` as it shall be found.
std::string DigestLine(const std::string& digest, const std::string& path);

}  // namespace trovex::cli
