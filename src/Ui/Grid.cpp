#include "Ui/Grid.h"

#include <algorithm>

namespace trovex {
namespace {

const Text kSource = u"MSGrid.Grid";

void Require(bool condition, ErrorNumber number) {
  if (!condition) throw RuntimeError(number, kSource);
}

}  // namespace

Grid::Grid() : Control(ControlKind::kGrid), cells_(8), columns_(4) {}

void Grid::SetRows(int rows) {
  Require(rows > fixed_rows_ && rows <= kMaxRows, ErrorNumber::kInvalidProperty);
  StopCounting();
  cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols_));
  rows_ = rows;
  row_ = std::min(row_, rows_ - 1);
  Notify(Property::kList);
}

void Grid::SetCols(int cols) {
  Require(cols > fixed_cols_ && cols <= kMaxCols, ErrorNumber::kInvalidProperty);
  StopCounting();
  std::vector<Text> cells(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(cols));
  for (int row = 0; row < rows_; ++row) {
    const std::size_t start = static_cast<std::size_t>(row) * static_cast<std::size_t>(cols);
    for (int col = 0; col < std::min(cols, cols_); ++col) {
      cells[start + static_cast<std::size_t>(col)] = std::move(cells_[Offset(row, col)]);
    }
  }
  cells_ = std::move(cells);
  cols_ = cols;
  col_ = std::min(col_, cols_ - 1);
  columns_.resize(static_cast<std::size_t>(cols));
  Notify(Property::kList);
}

void Grid::SetFixedRows(int rows) {
  Require(rows >= 0 && rows < rows_, ErrorNumber::kInvalidProperty);
  StopCounting();
  fixed_rows_ = rows;
  Notify(Property::kList);
}

void Grid::SetFixedCols(int cols) {
  Require(cols >= 0 && cols < cols_, ErrorNumber::kInvalidProperty);
  fixed_cols_ = cols;
  Notify(Property::kList);
}

void Grid::SetRow(int row) {
  Require(row >= 0 && row < rows_, ErrorNumber::kInvalidRow);
  if (row == row_) return;
  row_ = row;
  Notify(Property::kSelection);
}

void Grid::SetCol(int col) {
  Require(col >= 0 && col < cols_, ErrorNumber::kInvalidCol);
  col_ = col;
}

void Grid::SetText(TextView text) {
  text = text.substr(0, text.find(u'\0'));
  CountChange(text);
  cells_[Offset(row_, col_)] = text;
  Notify(Property::kCell);
}

void Grid::TakeText(Text&& text) {
  if (const std::size_t end = text.find(u'\0'); end != Text::npos) text.resize(end);
  CountChange(text);
  cells_[Offset(row_, col_)] = std::move(text);
  Notify(Property::kCell);
}

void Grid::CountChange(TextView text) {
  if (col_ != counted_col_ || row_ < fixed_rows_) return;
  free_cells_ += static_cast<int>(IsFree(text)) - static_cast<int>(IsFree(GetText()));
}

void Grid::AddItem(TextView text) {
  Require(rows_ < kMaxRows, ErrorNumber::kOutOfMemory);
  cells_.resize(cells_.size() + static_cast<std::size_t>(cols_));
  ++rows_;
  for (int col = 0; col < cols_; ++col) {
    const std::size_t tab = text.find(u'\t');
    const TextView field = text.substr(0, tab);
    cells_[Offset(rows_ - 1, col)] = field.substr(0, field.find(u'\0'));
    text = tab == TextView::npos ? TextView() : text.substr(tab + 1);
  }
  if (counted_col_ >= 0 && IsFree(Cell(rows_ - 1, counted_col_))) ++free_cells_;
  Notify(Property::kList);
}

void Grid::RemoveItem(int row) {
  const bool removable = row >= fixed_rows_ && row < rows_ && rows_ > fixed_rows_ + 1;
  Require(removable, ErrorNumber::kInvalidRow);
  if (counted_col_ >= 0 && IsFree(Cell(row, counted_col_))) --free_cells_;
  const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(Offset(row, 0));
  cells_.erase(first, first + cols_);
  --rows_;
  row_ = std::min(row_, rows_ - 1);
  Notify(Property::kList);
}

void Grid::SetColWidth(int col, double width) {
  Require(col >= 0 && col < cols_, ErrorNumber::kInvalidCol);
  columns_[static_cast<std::size_t>(col)].width = width;
  Notify(Property::kPlace);
}

void Grid::SetColAlignment(int col, Alignment alignment) {
  Require(col >= 0 && col < cols_, ErrorNumber::kInvalidCol);
  columns_[static_cast<std::size_t>(col)].alignment = alignment;
  Notify(Property::kPlace);
}

void Grid::SetSelStartCol(int col) {
  Require(col >= 0 && col < cols_, ErrorNumber::kInvalidCol);
  sel_start_col_ = col;
  Notify(Property::kSelection);
}

void Grid::SetSelEndCol(int col) {
  Require(col >= 0 && col < cols_, ErrorNumber::kInvalidCol);
  sel_end_col_ = col;
  Notify(Property::kSelection);
}

int Grid::FindRow(TextView beginning, int from) const {
  const Text wanted = ToUpper(beginning);
  const int count = rows_ - fixed_rows_;
  for (int i = 0; i < count; ++i) {
    const int row = fixed_rows_ + (std::max(from, fixed_rows_) - fixed_rows_ + i) % count;
    if (ToUpper(Trimmed(Cell(row, search_col_))).starts_with(wanted)) return row;
  }
  return 0;
}

Text Grid::RowText(int row) const {
  Text text;
  for (int col = 0; col < cols_; ++col) {
    if (col > 0) text += u'\t';
    text += Trimmed(Cell(row, col));
  }
  return text;
}

bool Grid::IsFree(TextView text) {
  if (text.empty()) return true;
  const double value = Val(text);
  return value == -1 || value == -2;
}

int Grid::CountFree(int col) const {
  int count = 0;
  for (int row = fixed_rows_; row < rows_; ++row) count += IsFree(Cell(row, col)) ? 1 : 0;
  return count;
}

int Grid::FreeCells(int col) {
  Require(col >= 0 && col < cols_, ErrorNumber::kInvalidCol);
  if (col != counted_col_) {
    free_cells_ = CountFree(col);
    counted_col_ = col;
  }
  return free_cells_;
}

}  // namespace trovex
