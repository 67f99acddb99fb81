// trovex-windowpicture TROVEX.EXE PICTURE.PNG [IMAGE]: starts the program, chooses drive D:, or
// drops the disc image on the window, presses Explorer, and writes a picture of the window; with
// "-" in the picture's place it leaves the window to its user until that closes it. Exit status: 0;
// 1 with a line that says why.
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "Platform/Win32/Windows.h"
#include "support/Win32/WindowPicture.h"

// Behind Windows.h, whose types they need.
#include <commctrl.h>
#include <shlobj.h>

namespace trovex::test {
namespace {

constexpr wchar_t kFormClass[] = L"TrovexForm";
constexpr DWORD kPatience = 60'000;    // milliseconds for the window to come
constexpr UINT kLongScan = 1'800'000;  // for the scan to end
constexpr DWORD kBetweenLooks = 50;

class Program {
 public:
  explicit Program(const std::filesystem::path& file) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    std::wstring command = L"\"" + file.wstring() + L"\"";
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process_)) {
      throw std::runtime_error("the program cannot be started");
    }
  }
  ~Program() {
    TerminateProcess(process_.hProcess, 0);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  HANDLE Handle() const { return process_.hProcess; }

  // The program's window as soon as it is to be seen.
  HWND Window() const {
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < kPatience) {
      const HWND window = FindWindowW(kFormClass, nullptr);
      DWORD owner = 0;
      if (window != nullptr) GetWindowThreadProcessId(window, &owner);
      if (owner == process_.dwProcessId && IsWindowVisible(window)) return window;
      if (WaitForSingleObject(process_.hProcess, kBetweenLooks) == WAIT_OBJECT_0) break;
    }
    throw std::runtime_error("the window does not come up");
  }

 private:
  PROCESS_INFORMATION process_ = {};
};

HWND Child(HWND window, const wchar_t* window_class, const wchar_t* caption) {
  const HWND child = FindWindowExW(window, nullptr, window_class, caption);
  if (child == nullptr) throw std::runtime_error("a control is missing");
  return child;
}

// Sends a message and waits until the program has acted on it.
LRESULT Ask(HWND window, UINT message, WPARAM w, LPARAM l) {
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, w, l, SMTO_NORMAL, kLongScan, &result)) {
    throw std::runtime_error("the program does not answer");
  }
  return static_cast<LRESULT>(result);
}

void ChooseDrive(HWND window) {
  const HWND drives = Child(window, L"COMBOBOX", nullptr);
  if (Ask(drives, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"d:")) < 0) {
    throw std::runtime_error("there is no drive D:");
  }
  Ask(window, WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE), reinterpret_cast<LPARAM>(drives));
}

// As if the file had been dropped by its user. What is dropped must stand in the program's memory.
void Drop(const Program& trovex, HWND window, const std::wstring& file) {
  struct {
    DROPFILES head = {sizeof(DROPFILES), {0, 0}, FALSE, TRUE};
    wchar_t names[MAX_PATH + 2] = {};
  } dropped;
  if (file.size() > MAX_PATH) throw std::runtime_error("the image's name is too long");
  file.copy(dropped.names, file.size());
  void* there =
      VirtualAllocEx(trovex.Handle(), nullptr, sizeof dropped, MEM_COMMIT, PAGE_READWRITE);
  if (there == nullptr ||
      !WriteProcessMemory(trovex.Handle(), there, &dropped, sizeof dropped, nullptr)) {
    throw std::runtime_error("the image cannot be dropped");
  }
  PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(there), 0);
  Ask(window, WM_NULL, 0, 0);
}

void Explore(HWND window) {
  Ask(Child(window, L"BUTTON", L"Explorer"), BM_CLICK, 0, 0);
  // What was put off until the program comes to rest is shown behind this.
  Ask(window, WM_NULL, 0, 0);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  Ask(window, WM_NULL, 0, 0);
}

int Run(const wchar_t* program, const std::wstring& picture, const std::wstring& image) {
  try {
    const Program trovex(program);
    const HWND window = trovex.Window();
    if (image.empty()) {
      ChooseDrive(window);
    } else {
      Drop(trovex, window, image);
    }
    Explore(window);
    if (picture == L"-") {
      WaitForSingleObject(trovex.Handle(), INFINITE);
    } else {
      WritePicture(window, picture);
    }
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "trovex-windowpicture: %s\n", error.what());
    return 1;
  }
}

}  // namespace
}  // namespace trovex::test

int wmain(int count, wchar_t** arguments) {
  if (count == 3 || count == 4) {
    return trovex::test::Run(arguments[1], arguments[2], count == 4 ? arguments[3] : L"");
  }
  std::fprintf(stderr, "usage: trovex-windowpicture TROVEX.EXE PICTURE.PNG [IMAGE]\n");
  return 1;
}
