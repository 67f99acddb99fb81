// The text grid: a table of cells with a current cell, through which alone cells are reached.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

// Created with 2 rows, 4 columns, 1 fixed row and no fixed column. Row 0 is the title row of the
// tables. A row costs the same whether the grid holds ten or 32767 of them.
class Grid : public Control {
 public:
  static constexpr int kMaxRows = 32767;
  static constexpr int kMaxCols = 400;

  Grid();

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  int FixedRows() const { return fixed_rows_; }
  int FixedCols() const { return fixed_cols_; }
  // Raise kInvalidProperty outside fixed + 1 to the maximum. New cells are empty.
  void SetRows(int rows);
  void SetCols(int cols);
  void SetFixedRows(int rows);
  void SetFixedCols(int cols);

  // The current cell. Setting it raises kInvalidRow or kInvalidCol outside the grid.
  int Row() const { return row_; }
  int Col() const { return col_; }
  void SetRow(int row);
  void SetCol(int col);
  const Text& GetText() const { return cells_[Offset(row_, col_)]; }
  // A cell ends at its first NUL. TakeText keeps the text itself where SetText copies it.
  void SetText(TextView text);
  void TakeText(Text&& text);
  // For a view that draws: the cell without moving the current one.
  const Text& Cell(int row, int col) const { return cells_[Offset(row, col)]; }

  // Appends a row; tabs in the text separate its cells. Raises kOutOfMemory past kMaxRows.
  void AddItem(TextView text);
  // Raises kInvalidRow for a row that does not exist, is fixed, or is the only one not fixed.
  void RemoveItem(int row);

  // Width in twips and alignment of a column.
  double ColWidth(int col) const { return columns_.at(col).width; }
  void SetColWidth(int col, double width);
  Alignment ColAlignment(int col) const { return columns_.at(col).alignment; }
  void SetColAlignment(int col, Alignment alignment);

  // The highlighted columns of the current row.
  int SelStartCol() const { return sel_start_col_; }
  int SelEndCol() const { return sel_end_col_; }
  void SetSelStartCol(int col);
  void SetSelEndCol(int col);

  // The column in which the user finds a row by typing the beginning of its text.
  void SetSearchCol(int col) { search_col_ = col; }
  // The first row from `from` on, round and round, whose text in that column begins so, whatever
  // its case and the blanks before it; 0 if there is none. The current cell stays.
  int FindRow(TextView beginning, int from) const;
  // The cells of a row without the blanks around them, parted by tabs.
  Text RowText(int row) const;

  // A cell is free if it is empty or its numeric value is exactly -1 or -2.
  static bool IsFree(TextView text);
  // Number of free cells in the column, fixed rows left out: kept up to date, so that whoever
  // looks for a free row need not search a grid that has none.
  int FreeCells(int col);

 private:
  struct Column {
    double width = 1000;
    Alignment alignment = Alignment::kLeft;
  };

  std::size_t Offset(int row, int col) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(col);
  }
  int CountFree(int col) const;
  void CountChange(TextView text);
  void StopCounting() { counted_col_ = -1; }

  int rows_ = 2, cols_ = 4, fixed_rows_ = 1, fixed_cols_ = 0;
  int row_ = 1, col_ = 0;
  int sel_start_col_ = 0, sel_end_col_ = 0;
  int search_col_ = 0;
  std::vector<Text> cells_;
  std::vector<Column> columns_;
  int counted_col_ = -1;  // the column whose free cells are counted, -1 if none is
  int free_cells_ = 0;
};

}  // namespace trovex
