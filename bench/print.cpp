// trovex-bench-print DIRECTORY: catalogues DIRECTORY, fills its largest table to the most rows that
// a table may have by repeating its rows, and lays that out for the printer. Prints the seconds of
// the scan and its rows, and the seconds of the layout, its rows and its pages, on one line.
#include <chrono>
#include <cstdio>

#include "Platform/Host.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/MainForm.h"
#include "Ui/Headless/HeadlessView.h"
#include "Ui/Preview.h"

namespace {

using namespace trovex;

template <typename Work>
double Seconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return taken.count();
}

int Rows(MainForm& form) {
  int rows = 0;
  for (int i = 0; i < kTableCount; ++i) rows += form.GridLogiciel(i).Rows() - 1;
  return rows;
}

void Fill(Grid& grid) {
  const int rows = grid.Rows() - 1;
  for (int row = 1; grid.Rows() < Grid::kMaxRows; row = row % rows + 1) {
    Text line;
    for (int col = 0; col < grid.Cols(); ++col)
      line += (col > 0 ? u"\t" : u"") + grid.Cell(row, col);
    grid.AddItem(line);
  }
}

void Measure(const Text& start, HeadlessView& view) {
  MainForm form;
  Main(form);
  form.ListeRepertoire.SetPath(start);
  const double scan = Seconds([&] { form.Explorer.Press(); });
  const int rows = Rows(form);
  Grid& grid = form.GridLogiciel(form.ZoneDesTableaux.Tab());
  Fill(grid);
  std::size_t pages = 0;
  view.AnswerPreview([&](const Preview& preview) { pages = preview.pages.pages.size(); });
  const double layout = Seconds([&] { form.Imprimer.Press(); });
  std::printf("%.6f %d %.6f %d %zu\n", scan, rows, layout, grid.Rows(), pages);
  form.Quitter.Press();
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: trovex-bench-print DIRECTORY\n", stderr);
    return 2;
  }
  std::string complaint;
  const auto host = OpenHost(arguments[1], u'D', complaint);
  if (!host) {
    std::fprintf(stderr, "%s\n", complaint.c_str());
    return 1;
  }
  PlatformScope platform(host->GetPlatform());
  HeadlessView view;
  ViewScope view_scope(view);
  Measure(host->Start(), view);
}
