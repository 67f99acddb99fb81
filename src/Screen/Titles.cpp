#include "Resources/Strings.h"
#include "Screen/MainForm.h"

namespace trovex {
namespace {

struct Column {
  StringId title;
  double width;  // twips
  Alignment alignment;
};

using Columns = std::array<Column, 4>;

constexpr Columns kPrograms = {{{StringId::kDescription, 4000, Alignment::kLeft},
                                {StringId::kEmplacement, 4200, Alignment::kLeft},
                                {StringId::kFichier, 1450, Alignment::kLeft},
                                {StringId::kVersion, 1000, Alignment::kCentre}}};

constexpr Columns kArchives = {{{StringId::kTailleEnKo, 1300, Alignment::kCentre},
                                {StringId::kEmplacement, 4600, Alignment::kLeft},
                                {StringId::kFichier, 3100, Alignment::kLeft},
                                {StringId::kDate, 1500, Alignment::kCentre}}};

void WriteTitles(Grid& grid, const Columns& columns) {
  for (int col = 0; col < grid.Cols(); ++col) {
    const Column& column = columns[static_cast<std::size_t>(col)];
    grid.SetRow(0);
    grid.SetCol(col);
    grid.SetText(ResString(column.title));
    grid.SetColWidth(col, column.width);
    grid.SetColAlignment(col, column.alignment);
  }
}

}  // namespace

void MainForm::InitTitresTableaux() {
  for (Table table : {Table::kInstallation, Table::kExecutables}) {
    WriteTitles(GridLogiciel(static_cast<int>(table)), kPrograms);
  }
  WriteTitles(GridLogiciel(static_cast<int>(Table::kArchives)), kArchives);
}

}  // namespace trovex
