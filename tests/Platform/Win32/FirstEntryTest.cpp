#include "Platform/Win32/FirstEntry.h"

#include <gtest/gtest.h>

#include <string>

namespace trovex {
namespace {

int calls = 0;

// As Windows before 7 answers, which knows neither the level nor the flag.
HANDLE WINAPI FindOfXp(LPCWSTR pattern, FINDEX_INFO_LEVELS level, LPVOID entry,
                       FINDEX_SEARCH_OPS operation, LPVOID filter, DWORD flags) {
  ++calls;
  if (level == FindExInfoStandard && flags == 0)
    return FindFirstFileExW(pattern, level, entry, operation, filter, flags);
  SetLastError(ERROR_INVALID_PARAMETER);
  return INVALID_HANDLE_VALUE;
}

HANDLE WINAPI FindOfUnreadyDrive(LPCWSTR, FINDEX_INFO_LEVELS, LPVOID, FINDEX_SEARCH_OPS, LPVOID,
                                 DWORD) {
  ++calls;
  SetLastError(ERROR_NOT_READY);
  return INVALID_HANDLE_VALUE;
}

TEST(FirstEntryTest, BeforeWindows7DirectoriesAreReadAllTheSame) {
  WIN32_FIND_DATAW entry{};
  calls = 0;
  const HANDLE found = FirstEntry(L"C:\\windows\\*", entry, &FindOfXp);
  ASSERT_NE(found, INVALID_HANDLE_VALUE);
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(std::wstring(entry.cFileName), L".");
  EXPECT_TRUE(FindNextFileW(found, &entry));
  FindClose(found);
}

TEST(FirstEntryTest, AnyOtherRefusalIsNotTriedAgain) {
  WIN32_FIND_DATAW entry{};
  calls = 0;
  EXPECT_EQ(FirstEntry(L"C:\\windows\\*", entry, &FindOfUnreadyDrive), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), DWORD{ERROR_NOT_READY});
  EXPECT_EQ(calls, 1);
}

HANDLE WINAPI FindInEmptyRoot(LPCWSTR, FINDEX_INFO_LEVELS, LPVOID, FINDEX_SEARCH_OPS, LPVOID,
                              DWORD) {
  SetLastError(ERROR_FILE_NOT_FOUND);
  return INVALID_HANDLE_VALUE;
}

HANDLE WINAPI FindInRefusedRoot(LPCWSTR, FINDEX_INFO_LEVELS, LPVOID, FINDEX_SEARCH_OPS, LPVOID,
                                DWORD) {
  SetLastError(ERROR_ACCESS_DENIED);
  return INVALID_HANDLE_VALUE;
}

TEST(FirstEntryTest, ARootThatCannotBeReadIsNotAnEmptyOne) {
  EXPECT_TRUE(CanBeListed(L"D:\\*", &FindInEmptyRoot));
  EXPECT_FALSE(CanBeListed(L"D:\\*", &FindInRefusedRoot));
  EXPECT_FALSE(CanBeListed(L"D:\\*", &FindOfUnreadyDrive));
}

}  // namespace
}  // namespace trovex
