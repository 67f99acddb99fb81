#include <vector>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kKeyPanelWidth = 720;  // twips
constexpr double kGripWidth = 300;

bool IsOn(int key) {
  return (GetKeyState(key) & 1) != 0;
}

// What a panel shows: the program's text, or a key's name while the key is on.
Text ShownText(const StatusBar::Panel& panel) {
  switch (panel.style) {
    case StatusBar::PanelStyle::kText:
      break;
    case StatusBar::PanelStyle::kCapsLock:
      return IsOn(VK_CAPITAL) ? u"MAJ" : u"";
    case StatusBar::PanelStyle::kNumLock:
      return IsOn(VK_NUMLOCK) ? u"NUM" : u"";
    case StatusBar::PanelStyle::kInsert:
      return IsOn(VK_INSERT) ? u"INS" : u"";
  }
  return panel.text;
}

}  // namespace

StatusBarWindow::StatusBarWindow(StatusBar& model, FormWindow& form)
    : NativeControl(model, form), bar_(model) {
  Create(STATUSCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN | SBARS_SIZEGRIP | SBARS_TOOLTIPS);
  Flush();
}

void StatusBarWindow::MirrorProperty(Property) {
  Flush();
}

void StatusBarWindow::Flush() {
  for (std::size_t i = 0; i < bar_.Panels().size(); ++i) {
    const Text text = ShownText(bar_.Panels()[i]);
    Send(SB_SETTEXTW, i, reinterpret_cast<LPARAM>(Wide(text)));
  }
}

void StatusBarWindow::Rescale() {
  NativeControl::Rescale();
  // The first panel takes what the others leave.
  const int count = static_cast<int>(bar_.Panels().size());
  const Scale scale = GetScale();
  const int end = scale.Pixels(bar_.Width() - kGripWidth);
  std::vector<int> edges;
  for (int i = 0; i < count; ++i)
    edges.push_back(end - (count - 1 - i) * scale.Pixels(kKeyPanelWidth));
  Send(SB_SETPARTS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(edges.data()));
}

}  // namespace trovex::win32
