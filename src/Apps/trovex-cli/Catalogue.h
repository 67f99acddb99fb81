// The catalogue on its way out: as JSON, and as tables for a person to read.
#pragma once

#include <array>
#include <iosfwd>
#include <string>
#include <vector>

#include "Screen/MainForm.h"

namespace trovex::cli {

// True if the table holds no entry: its one data row is blank.
bool IsEmptyTable(const Grid& grid);

// What a click on each row showed, a JSON object a row, table by table.
using Inspection = std::array<std::vector<std::string>, kTableCount>;

// Clicks every row of tables 0, 1 and 2, without changing the tab or the current cells.
Inspection InspectRows(MainForm& form);

// The whole catalogue as one JSON text with a line end; cells stand as in the grids. `inspection`
// may be null; `unread` is left out where it is empty.
std::string ToJson(MainForm& form, const Text& start, const Inspection* inspection,
                   const std::vector<Box>& boxes, const std::vector<Text>& unread);

// The three tables with their names and counts.
void PrintTables(MainForm& form, std::ostream& out);

// A text for a terminal: UTF-8, control characters shown as '?'.
std::string Printable(TextView text);

}  // namespace trovex::cli
