#include <algorithm>
#include <array>
#include <ostream>

#include "Apps/trovex-cli/Catalogue.h"
#include "Platform/Encoding.h"
#include "Resources/Strings.h"

namespace trovex::cli {
namespace {

constexpr std::size_t kColumns = 4;
constexpr std::size_t kWidest = 48;  // characters; a longer cell pushes its line to the right

constexpr StringId kNames[] = {StringId::kTableInstallation, StringId::kTableExecutables,
                               StringId::kTableArchives};

using Widths = std::array<std::size_t, kColumns>;

TextView CellOf(const Grid& grid, int row, std::size_t col) {
  return Trimmed(grid.Cell(row, static_cast<int>(col)));
}

Widths WidthsOf(const Grid& grid) {
  Widths widths = {};
  for (int row = 0; row < grid.Rows(); ++row) {
    for (std::size_t col = 0; col < kColumns; ++col) {
      widths[col] = std::max(widths[col], std::min(CellOf(grid, row, col).size(), kWidest));
    }
  }
  return widths;
}

void PrintRow(const Grid& grid, int row, const Widths& widths, std::ostream& out) {
  std::string line;
  for (std::size_t col = 0; col < kColumns; ++col) {
    const TextView cell = CellOf(grid, row, col);
    line += "  " + Printable(cell);
    if (cell.size() < widths[col]) line.append(widths[col] - cell.size(), ' ');
  }
  out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}

void PrintRule(const Widths& widths, std::ostream& out) {
  for (std::size_t width : widths) out << "  " << std::string(width, '-');
  out << '\n';
}

void PrintTable(const Grid& grid, StringId name, std::ostream& out) {
  const int count = IsEmptyTable(grid) ? 0 : grid.Rows() - 1;
  out << Printable(ResString(name)) << " (" << count << ")\n";
  if (count == 0) return;
  const Widths widths = WidthsOf(grid);
  PrintRow(grid, 0, widths, out);
  PrintRule(widths, out);
  for (int row = 1; row < grid.Rows(); ++row) PrintRow(grid, row, widths, out);
}

}  // namespace

bool IsEmptyTable(const Grid& grid) {
  return grid.Rows() == 2 && grid.Cell(1, 2).empty();
}

void PrintTables(MainForm& form, std::ostream& out) {
  for (int i = 0; i < kTableCount; ++i) {
    if (i > 0) out << '\n';
    PrintTable(form.GridLogiciel(i), kNames[i], out);
  }
}

std::string Printable(TextView text) {
  Text shown(text);
  for (char16_t& unit : shown) {
    const bool control = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F);
    if (control) unit = u'?';
  }
  return ToStrictUtf8(shown);
}

}  // namespace trovex::cli
