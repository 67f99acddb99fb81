// trovex-bench-window TROVEX.EXE BARE.EXE [ROUNDS]: what the window costs, as ratios.
//
// Start: from the creation of the process until its window is to be seen and answers a message, for
// both programs in turn; medians. Table: showing, scrolling and selecting in one of 32767 rows
// against one of 100.
// Exit status: 0; 1 with a line that says why.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Ui/Form.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/Win32View.h"

namespace trovex::bench {
namespace {

double Now() {  // milliseconds
  LARGE_INTEGER count, frequency;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(count.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

HWND VisibleWindow(const wchar_t* window_class, DWORD process) {
  const HWND window = FindWindowW(window_class, nullptr);
  DWORD owner = 0;
  if (window != nullptr) GetWindowThreadProcessId(window, &owner);
  return owner == process && IsWindowVisible(window) ? window : nullptr;
}

// Milliseconds until the program's window stands.
double Start(const std::wstring& program, const wchar_t* window_class) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  std::wstring command = L"\"" + program + L"\"";
  const double start = Now();
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    throw std::runtime_error("a program cannot be started");
  }
  HWND window = nullptr;
  while ((window = VisibleWindow(window_class, process.dwProcessId)) == nullptr) {
    if (WaitForSingleObject(process.hProcess, 1) == WAIT_OBJECT_0 || Now() - start > 60'000)
      throw std::runtime_error("no window comes up");
  }
  SendMessageW(window, WM_NULL, 0, 0);
  const double taken = Now() - start;
  TerminateProcess(process.hProcess, 0);
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return taken;
}

void MeasureStart(const std::wstring& trovex, const std::wstring& bare, int rounds) {
  std::vector<double> ours, least;
  for (int round = 0; round < rounds; ++round) {
    least.push_back(Start(bare, L"TrovexBare"));
    ours.push_back(Start(trovex, L"TrovexForm"));
  }
  std::printf("start: Trovex.exe %.0f ms, bare window %.0f ms, ratio %.2f\n", Median(ours),
              Median(least), Median(ours) / Median(least));
}

constexpr ControlSpec kControls[] = {{ControlKind::kGrid, u"Table", -1, {150, 150, 9000, 3000}}};
constexpr FormSpec kForm = {u"Bench", u"Bench", 9300, 3300, true, 0xC0C0C0, kControls};

// A form with one full table.
class Table {
 public:
  explicit Table(int rows) {
    grid_.SetRows(rows);
    for (int row = 0; row < rows; ++row) {
      grid_.SetRow(row);
      for (int col = 0; col < grid_.Cols(); ++col) {
        grid_.SetCol(col);
        grid_.SetText(u"D:\\REPERTOIRE");
      }
    }
    form_.Load();
    form_.Show();
    Rest();
  }
  ~Table() { form_.Unload(); }
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;

  void ShowAgain() {
    grid_.SetText(u"D:\\AUTRE");
    Rest();
  }
  void Scroll() {
    SendMessageW(Window(), WM_VSCROLL, SB_PAGEDOWN, 0);
    SendMessageW(Window(), WM_VSCROLL, SB_PAGEUP, 0);
    UpdateWindow(Window());
  }
  void Select() {
    grid_.SetRow(grid_.Row() == 50 ? 60 : 50);
    Rest();
  }

 private:
  void Rest() {
    PostQuitMessage(0);
    view_.Run();
    UpdateWindow(Window());
  }
  HWND Window() const { return view_.Of(form_)->Of(grid_)->Handle(); }

  win32::Win32View view_;
  ViewScope scope_{view_};
  Form form_{kForm};
  Grid& grid_ = form_.Get<Grid>(u"Table");
};

// Microseconds of one turn.
double Turn(const std::function<void()>& turn) {
  constexpr int kTurns = 100;
  turn();
  const double start = Now();
  for (int i = 0; i < kTurns; ++i) turn();
  return (Now() - start) * 1000 / kTurns;
}

void MeasureTable(int rounds) {
  const std::pair<const char*, void (Table::*)()> deeds[] = {
      {"showing", &Table::ShowAgain}, {"scrolling", &Table::Scroll}, {"selecting", &Table::Select}};
  for (const auto& [name, deed] : deeds) {
    std::vector<double> few, many;
    for (int round = 0; round < rounds; ++round) {
      for (const int rows : {100, Grid::kMaxRows}) {
        Table table(rows);
        (rows == 100 ? few : many).push_back(Turn([&] { (table.*deed)(); }));
      }
    }
    std::printf("%s: 32767 rows %.0f us, 100 rows %.0f us, ratio %.2f\n", name, Median(many),
                Median(few), Median(many) / Median(few));
  }
}

}  // namespace
}  // namespace trovex::bench

int wmain(int count, wchar_t** arguments) {
  if (count < 3) {
    std::fprintf(stderr, "usage: trovex-bench-window TROVEX.EXE BARE.EXE [ROUNDS]\n");
    return 1;
  }
  const int rounds = count > 3 ? std::max(1, _wtoi(arguments[3])) : 7;
  try {
    trovex::bench::MeasureStart(arguments[1], arguments[2], rounds);
    trovex::bench::MeasureTable(rounds);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "trovex-bench-window: %s\n", error.what());
    return 1;
  }
}
