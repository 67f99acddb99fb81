// The catalogue on its way out: as JSON, and as tables for a person to read.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "Screen/MainForm.h"

namespace trovex::cli {

// True if the table holds no entry: its one data row is blank.
bool IsEmptyTable(const Grid& grid);

// The whole catalogue as one JSON text with a line end; cells stand as in the grids.
std::string ToJson(MainForm& form, const Text& start, const std::vector<Box>& boxes);

// The three tables with their names and counts.
void PrintTables(MainForm& form, std::ostream& out);

// A text for a terminal: UTF-8, control characters shown as '?'.
std::string Printable(TextView text);

}  // namespace trovex::cli
