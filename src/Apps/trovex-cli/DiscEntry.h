// An entry of a catalogue with all that a report tells of it.
#pragma once

#include <string>

#include "Apps/trovex-cli/ReportLines.h"
#include "Scanner/Finding.h"

namespace trovex::cli {

// "SETUP.LST [Setup] Title", "readme.txt, line 2"; empty for none.
std::string TextOf(const Origin& origin);

// What the analysis found; disc, volume, location, format and digest are left empty.
ReportRow RowOf(const Finding& finding);

// Format and, if wanted, digest of a file of the disc. False, and the row as it was, if it cannot
// be read to its end.
bool ReadContents(Platform& platform, const Text& name, bool hash, ReportRow& row);

}  // namespace trovex::cli
