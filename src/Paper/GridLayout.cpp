#include "Paper/GridLayout.h"

#include <algorithm>

#include "Ui/Colour.h"

namespace trovex {
namespace {

constexpr double kBeside = 60;  // between a cell's text and its upright rules
constexpr double kAbove = 30;   // and its level ones
constexpr double kRuleWidth = 8;
constexpr double kLeastWidth = 850;  // of a column, whatever it is on the screen
constexpr unsigned kRuleColour = Rgb(160, 160, 160);

Font Bold(Font font) {
  font.bold = true;
  return font;
}

double AlignedAt(Alignment alignment, double room, double width) {
  if (width > room) return 0;
  return alignment == Alignment::kRight ? room - width : (room - width) / 2;
}

}  // namespace

GridLayout::GridLayout(PageBuilder& pages, const Grid& grid, const Font& font, unsigned colour)
    : pages_(pages),
      grid_(grid),
      plain_(pages.Ruler(font)),
      bold_(pages.Ruler(Bold(font))),
      colour_(colour) {}

void GridLayout::FitColumns() {
  double sum = 0;
  for (int col = 0; col < grid_.Cols(); ++col) sum += grid_.ColWidth(col);
  for (int col = 0; col < grid_.Cols(); ++col) {
    const double width = sum > 0 ? grid_.ColWidth(col) : 1;
    if (width > 0) columns_.push_back({col, 0, width});
  }
  Stretch(pages_.Body().width);
  double left = 0;
  for (Column& column : columns_) {
    column.left = left;
    left += column.width;
  }
}

// What a narrow column lacks is taken from the wider ones in proportion.
void GridLayout::Stretch(double whole) {
  const double least = std::min(kLeastWidth, whole / static_cast<double>(columns_.size()));
  std::vector<Column*> wide;
  for (Column& column : columns_) wide.push_back(&column);
  for (double room = whole; !wide.empty();) {
    double sum = 0;
    for (const Column* column : wide) sum += column->width;
    const auto narrow = std::stable_partition(wide.begin(), wide.end(), [&](const Column* column) {
      return column->width * room / sum >= least;
    });
    if (narrow == wide.end()) {
      for (Column* column : wide) column->width *= room / sum;
      return;
    }
    for (auto column = narrow; column != wide.end(); ++column) {
      (*column)->width = least;
      room -= least;
    }
    wide.erase(narrow, wide.end());
  }
}

void GridLayout::Wrap(int row, const FontRuler& ruler, Row& wrapped) const {
  wrapped.texts.clear();
  wrapped.cells.clear();
  wrapped.ends.clear();
  wrapped.lines = 1;
  for (const Column& column : columns_) {
    TextView text = Trimmed(grid_.Cell(row, column.col));
    if (!IsPrintable(text)) text = wrapped.texts.emplace_back(PrintableText(text));
    const std::size_t first = wrapped.cells.size();
    ruler.Wrap(text, column.width - 2 * kBeside, wrapped.cells);
    wrapped.ends.push_back(wrapped.cells.size());
    wrapped.lines = std::max(wrapped.lines, wrapped.cells.size() - first);
  }
}

double GridLayout::Run(double top) {
  FitColumns();
  for (int row = 0; row < grid_.FixedRows(); ++row) {
    Wrap(row, bold_, headers_.emplace_back());
  }
  y_ = top;
  PutHeader();
  Row wrapped;
  for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row) {
    Wrap(row, plain_, wrapped);
    PutRow(wrapped);
  }
  Uprights();
  return y_;
}

// Fixed rows that would take the page from the others are cut short.
void GridLayout::PutHeader() {
  table_top_ = y_;
  fresh_ = true;
  Rule();
  std::size_t room = static_cast<std::size_t>(pages_.Body().height / 2 / bold_.LineHeight());
  for (const Row& header : headers_) {
    const std::size_t lines = std::min(header.lines, std::max<std::size_t>(room, 1));
    PutLines(header, 0, lines, bold_);
    room -= std::min(room, lines);
  }
}

void GridLayout::PutRow(const Row& row) {
  const double height = LinesHeight(row.lines, plain_);
  const double below = pages_.Body().height;
  // A page that the table has to itself is the most that a row can be given.
  const bool whole_page = fresh_ && table_top_ == 0;
  if (y_ + height > below && !whole_page) NextPage();
  if (y_ + height > below) return Split(row);
  PutLines(row, 0, row.lines, plain_);
}

void GridLayout::Split(const Row& row) {
  for (std::size_t first = 0; first < row.lines;) {
    if (first > 0) NextPage();
    const std::size_t count = std::min(Room(), row.lines - first);
    PutLines(row, first, count, plain_);
    first += count;
  }
}

std::size_t GridLayout::Room() const {
  const double room = pages_.Body().height - y_ - 2 * kAbove;
  if (room < plain_.LineHeight()) return 1;
  return static_cast<std::size_t>(room / plain_.LineHeight());
}

double GridLayout::LinesHeight(std::size_t lines, const FontRuler& ruler) const {
  return static_cast<double>(lines) * ruler.LineHeight() + 2 * kAbove;
}

void GridLayout::PutLines(const Row& row, std::size_t first, std::size_t count,
                          const FontRuler& ruler) {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const Column& column = columns_[i];
    const double room = column.width - 2 * kBeside;
    const Alignment alignment = grid_.ColAlignment(column.col);
    const std::size_t begin = i == 0 ? 0 : row.ends[i - 1];
    const std::size_t end = std::min(begin + first + count, row.ends[i]);
    double y = y_ + kAbove;
    for (std::size_t line = begin + first; line < end; ++line, y += ruler.LineHeight()) {
      const TextView text = Trimmed(row.cells[line]);
      const bool left = alignment == Alignment::kLeft;
      const double at = left ? 0 : AlignedAt(alignment, room, ruler.Width(text));
      pages_.PutText(column.left + kBeside + at, y, ruler, text, colour_);
    }
  }
  y_ += LinesHeight(count, ruler);
  Rule();
  if (&ruler == &plain_) fresh_ = false;
}

void GridLayout::NextPage() {
  Uprights();
  pages_.NewPage();
  y_ = 0;
  PutHeader();
}

void GridLayout::Rule() {
  pages_.PutLine(0, y_, pages_.Body().width, y_, kRuleWidth, kRuleColour);
}

void GridLayout::Uprights() {
  for (const Column& column : columns_) {
    pages_.PutLine(column.left, table_top_, column.left, y_, kRuleWidth, kRuleColour);
  }
  const double right = pages_.Body().width;
  pages_.PutLine(right, table_top_, right, y_, kRuleWidth, kRuleColour);
}

}  // namespace trovex
