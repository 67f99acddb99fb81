// What starts, and what it finds: the test program itself is started, as a child that reports.
#include "Platform/Win32/Handles.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

constexpr wchar_t kEvent[] = L"TrovexStartedProgram";
constexpr TextView kRest = u" --gtest_also_run_disabled_tests --gtest_filter=StartedChild.*";

Text ModuleName() {
  Text name(32768, u'\0');
  name.resize(GetModuleFileNameW(nullptr, Wide(name), 32768));
  return name;
}

void WriteReport(const Text& report) {
  const OwnedFile file = OwnFile(CreateFileW(L"D:\\RAPPORT.TXT", GENERIC_WRITE, 0, nullptr,
                                             CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  WriteFile(file.get(), report.data(), static_cast<DWORD>(report.size() * sizeof(char16_t)),
            &written, nullptr);
}

// Asked before the test framework sets one of its own.
const UINT inherited_error_mode = [] {
  const UINT mode = SetErrorMode(0);
  SetErrorMode(mode);
  return mode;
}();

// The child: its name, the error mode that it found and the number of its process go into a file
// beside it.
TEST(StartedChild, DISABLED_Reports) {
  WriteReport(ModuleName() + u"\n" + Decimal(static_cast<int>(inherited_error_mode)) + u"\n" +
              Decimal(static_cast<int>(GetCurrentProcessId())));
  const OwnedFile event = OwnFile(OpenEventW(EVENT_MODIFY_STATE, FALSE, kEvent));
  SetEvent(event.get());
}

class StartedProgramTest : public Contract {
 protected:
  ~StartedProgramTest() override {
    SetEnvironmentVariableW(L"GTEST_ALSO_RUN_DISABLED_TESTS", nullptr);
    SetEnvironmentVariableW(L"GTEST_FILTER", nullptr);
  }
  // A copy of the test program reports even where no argument tells it so.
  void CopyChild(const Text& name) {
    ASSERT_TRUE(CopyFileW(Wide(ModuleName()), Wide(name), TRUE));
    SetEnvironmentVariableW(L"GTEST_ALSO_RUN_DISABLED_TESTS", L"1");
    SetEnvironmentVariableW(L"GTEST_FILTER", L"StartedChild.*");
  }
  // What the child says that `command_line` starts.
  Text Report(const Text& command_line) {
    const OwnedFile event = OwnFile(CreateEventW(nullptr, TRUE, FALSE, kEvent));
    platform_.StartProgram(command_line, SW_HIDE);
    constexpr DWORD kLongest = 60000;  // milliseconds
    if (WaitForSingleObject(event.get(), kLongest) != WAIT_OBJECT_0) return u"rien";
    const std::string bytes = Contents(u"D:\\RAPPORT.TXT");
    const Text report(reinterpret_cast<const char16_t*>(bytes.data()),
                      bytes.size() / sizeof(char16_t));
    const std::size_t end = report.rfind(u'\n');
    WaitForEnd(report.substr(end + 1));
    return report.substr(0, end);
  }
  // Until then its file cannot be removed.
  static void WaitForEnd(const Text& process_number) {
    DWORD number = 0;
    for (const char16_t digit : process_number) number = number * 10 + (digit - u'0');
    const OwnedFile process = OwnFile(OpenProcess(SYNCHRONIZE, FALSE, number));
    if (process) WaitForSingleObject(process.get(), INFINITE);
  }
};

TEST_F(StartedProgramTest, TheNamedProgramStartsAndNotOneThatBearsTheBeginningOfItsName) {
  disc_.Directory("Mes jeux");
  CopyChild(u"D:\\Mes.exe");
  CopyChild(u"D:\\Mes jeux\\setup.exe");
  const Text report = Report(u"D:\\Mes jeux\\setup.exe");
  EXPECT_EQ(report.substr(0, report.find(u'\n')), u"D:\\Mes jeux\\setup.exe");
}

TEST_F(StartedProgramTest, WhereTheNamedProgramHasGoneNothingStarts) {
  disc_.Directory("Mes jeux");
  CopyChild(u"D:\\Mes.exe");
  EXPECT_EQ(ErrorOf([&] { platform_.StartProgram(u"D:\\Mes jeux\\setup.exe", SW_HIDE); }),
            ErrorNumber::kFileNotFound);
}

TEST_F(StartedProgramTest, AStartedProgramDoesNotInheritTheErrorMode) {
  const Text report = Report(u"\"" + ModuleName() + u"\"" + Text(kRest));
  EXPECT_EQ(report.substr(report.find(u'\n') + 1), u"0");
  EXPECT_NE(SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX), 0u)
      << "the program's own stays";
}

TEST_F(StartedProgramTest, WhatDoesNotExistRaises) {
  EXPECT_EQ(ErrorOf([&] { platform_.StartProgram(u"D:\\RIEN.EXE", 1); }),
            ErrorNumber::kFileNotFound);
}

}  // namespace
}  // namespace trovex::test
