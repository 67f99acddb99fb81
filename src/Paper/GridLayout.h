// A grid as a table on paper: its fixed rows stand again at the top of each page, its columns keep
// their proportions over the whole width, but for a least width of each, text too wide for its cell
// is wrapped. A row goes to the next page whole unless it is taller than a page.
#pragma once

#include <deque>

#include "Paper/PageBuilder.h"
#include "Ui/Grid.h"

namespace trovex {

class GridLayout {
 public:
  // `font` is that of the cells; the fixed rows are bold.
  GridLayout(PageBuilder& pages, const Grid& grid, const Font& font, unsigned colour);

  // Lays the table out from `top` of the page in hand on; the result is where it ends.
  double Run(double top);

 private:
  struct Column {
    int col;
    double left, width;
  };
  // One row's cells, cut into lines: those of column i are from ends[i - 1] to ends[i].
  struct Row {
    std::deque<Text> texts;  // of the cells that cannot be printed as they are
    std::vector<TextView> cells;
    std::vector<std::size_t> ends;
    std::size_t lines = 1;
  };

  void FitColumns();
  // Makes the columns as wide as `whole` together.
  void Stretch(double whole);
  void Wrap(int row, const FontRuler& ruler, Row& wrapped) const;
  void PutHeader();
  void PutRow(const Row& row);
  // Lines `first` to `first + count` of the row.
  void PutLines(const Row& row, std::size_t first, std::size_t count, const FontRuler& ruler);
  void Split(const Row& row);
  void NextPage();
  // The rule below what was put, and the upright ones of the whole page.
  void Rule();
  void Uprights();
  double LinesHeight(std::size_t lines, const FontRuler& ruler) const;
  // How many lines there is room for below; one at least, so that a table of any font comes to its
  // end.
  std::size_t Room() const;

  PageBuilder& pages_;
  const Grid& grid_;
  const FontRuler& plain_;
  const FontRuler& bold_;
  const unsigned colour_;
  std::vector<Column> columns_;
  std::deque<Row> headers_;  // rows stay where they are: their cells are views of them
  double table_top_ = 0;     // on the page in hand
  double y_ = 0;
  bool fresh_ = true;  // no row stands below the header yet
};

}  // namespace trovex
