// Trovex.exe: puts platform and view in place and hands over to the program.
#include "Lib/LIB_DIALOGUE.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"
#include "Resources/Version.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/MainForm.h"
#include "Ui/FormsScope.h"
#include "Ui/Win32/Win32View.h"

namespace trovex {
namespace {

// A run-time error that no handler caught: its message, before the end.
void Report(const RuntimeError& error) {
  const Text text =
      u"Erreur d'exécution '" + Decimal(error.Number()) + u"' :\r\n\r\n" + error.Description();
  CurrentView().ShowBox({BoxStyle::kErreur, Text(kTitle), text});
}

int RunProgram() {
  Win32Platform platform;
  PlatformScope platform_scope(platform);
  win32::Win32View view;
  ViewScope view_scope(view);
  FormsScope forms;
  SetEndOfProgram([&view] {
    view.End();
    PostQuitMessage(0);
  });
  view.on_failure = Report;
  MainForm form;
  try {
    Main(form);
    view.Run();
    return 0;
  } catch (const RuntimeError& error) {
    view.Fail(error);  // nothing new where it comes from the loop
    return 1;
  }
}

}  // namespace
}  // namespace trovex

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
  return trovex::RunProgram();
}
