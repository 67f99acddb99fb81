// A program that asks for more rights can be started by no test: calls of its own stand for the
// system's.
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/StartCalls.h"
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

constexpr DWORD kElevationRequired = 740;

struct HandedOver {
  Text program, arguments;
  int mode = 0;
  bool redirected = false;
};

struct System {
  int off = 0;                // scopes that hold redirection off
  DWORD refusal = 0;          // of CreateProcess
  std::intptr_t answer = 42;  // of the shell
  bool created_while_off = false;
  std::vector<HandedOver> shell;
};

System* machine = nullptr;

int __stdcall Disable(void**) {
  ++machine->off;
  return 1;
}

int __stdcall Revert(void*) {
  --machine->off;
  SetLastError(ERROR_SUCCESS);
  return 1;
}

BOOL WINAPI Refuse(LPCWSTR, LPWSTR, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL, DWORD,
                   LPVOID, LPCWSTR, LPSTARTUPINFOW, LPPROCESS_INFORMATION) {
  machine->created_while_off = machine->off > 0;
  SetLastError(machine->refusal);
  return FALSE;
}

HINSTANCE WINAPI TakeOver(HWND, LPCWSTR, LPCWSTR file, LPCWSTR parameters, LPCWSTR, INT mode) {
  machine->shell.push_back({FromWide(file), FromWide(parameters), mode, machine->off == 0});
  return reinterpret_cast<HINSTANCE>(machine->answer);
}

class MoreRightsTest : public Contract {
 protected:
  MoreRightsTest() : redirection_(Redirection()), starts_(Starts()) {
    machine = &machine_;
    Redirection() = {Disable, Revert};
    Starts() = {Refuse, TakeOver};
    disc_.File("Mes jeux/setup.exe");
  }
  ~MoreRightsTest() override {
    Redirection() = redirection_;
    Starts() = starts_;
    machine = nullptr;
  }

  void Start() { platform_.StartProgram(u"D:\\Mes jeux\\setup.exe /s \"a b\"", SW_SHOWMAXIMIZED); }

  System machine_;

 private:
  const RedirectionCalls redirection_;
  const StartCalls starts_;
};

TEST_F(MoreRightsTest, TheShellGetsProgramAndArgumentsAndRedirectionIsBackOn) {
  machine_.refusal = kElevationRequired;
  Start();
  EXPECT_TRUE(machine_.created_while_off);
  ASSERT_EQ(machine_.shell.size(), 1u);
  EXPECT_EQ(machine_.shell[0].program, u"D:\\Mes jeux\\setup.exe");
  EXPECT_EQ(machine_.shell[0].arguments, u"/s \"a b\"");
  EXPECT_EQ(machine_.shell[0].mode, SW_SHOWMAXIMIZED);
  EXPECT_TRUE(machine_.shell[0].redirected);
}

TEST_F(MoreRightsTest, WhatTheShellDoesNotStartEitherRaises) {
  machine_.refusal = kElevationRequired;
  machine_.answer = SE_ERR_ACCESSDENIED;
  EXPECT_EQ(ErrorOf([&] { Start(); }), ErrorNumber::kInvalidCall);
}

TEST_F(MoreRightsTest, WhateverElseRefusesAStartIsNotHandedToTheShell) {
  for (const DWORD code : {ERROR_FILE_NOT_FOUND, ERROR_ACCESS_DENIED, ERROR_BAD_EXE_FORMAT}) {
    machine_.refusal = static_cast<DWORD>(code);
    EXPECT_EQ(ErrorOf([&] { Start(); }), code == ERROR_FILE_NOT_FOUND ? ErrorNumber::kFileNotFound
                                                                      : ErrorNumber::kInvalidCall);
  }
  EXPECT_TRUE(machine_.shell.empty());
  EXPECT_EQ(machine_.off, 0);
}

}  // namespace
}  // namespace trovex::test
