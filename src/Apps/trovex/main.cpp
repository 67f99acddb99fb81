// Trovex.exe: puts platform and view in place and hands over to the program.
#include <exception>
#include <new>

#include "Image/DiscPlatform.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Platform/Encoding.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"
#include "Resources/Version.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/MainForm.h"
#include "Ui/FormsScope.h"
#include "Ui/Win32/Win32View.h"

namespace trovex {
namespace {

constexpr int kFailed = 3;

// What is told of a failure that no handler caught.
Text MessageOf(std::exception_ptr failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const RuntimeError& error) {
    return u"Erreur d'exécution '" + Decimal(error.Number()) + u"' :\r\n\r\n" + error.Description();
  } catch (const std::bad_alloc&) {
    return ErrorDescription(ErrorNumber::kOutOfMemory);
  } catch (const std::exception& error) {
    return u"Erreur interne : " + FromUtf8(error.what());
  }
}

void Report(std::exception_ptr failure) {
  CurrentView().ShowBox({BoxStyle::kErreur, Text(kTitle), MessageOf(failure)});
}

int RunProgram() {
  Win32Platform platform;
  DiscPlatform discs(platform);
  DiscsScope discs_scope(discs);
  PlatformScope platform_scope(discs);
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
  } catch (...) {
    view.Fail(std::current_exception());  // nothing new where it comes from the loop
    return kFailed;
  }
}

}  // namespace
}  // namespace trovex

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
  return trovex::RunProgram();
}
