// <windows.h> for this folder alone, without the macros that would rename the methods of the port.
// The sources call the functions by their full names, which end in W.
#pragma once

#include <windows.h>
// Behind windows.h, whose types it needs.
#include <shellapi.h>
#include <tlhelp32.h>

#undef CopyFile
#undef DeleteFile
#undef FindFirstFile
#undef FindNextFile
#undef FormatMessage
#undef GetCurrentDirectory
#undef GetDriveType
#undef GetEnvironmentVariable
#undef GetFileVersionInfo
#undef GetFileVersionInfoSize
#undef GetPrivateProfileString
#undef GetSystemDirectory
#undef GetVersionEx
#undef GetWindowsDirectory
#undef Process32First
#undef Process32Next
#undef WritePrivateProfileString
#undef ExtractIconEx
#undef FindExecutable
#undef RegCreateKey
#undef RegOpenKeyEx
#undef RegQueryValueEx
#undef ShellExecute
