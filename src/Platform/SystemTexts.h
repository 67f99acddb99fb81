// What the system's error codes say, in the language of the interface on every system.
#pragma once

#include <cstdint>

#include "Platform/Text.h"

namespace trovex {

// Codes of the system's errors, numbered as Windows does; those that the program tells of by name.
inline constexpr std::uint32_t kSystemFileNotFound = 2;
inline constexpr std::uint32_t kSystemPathNotFound = 3;
inline constexpr std::uint32_t kSystemTooManyFiles = 4;
inline constexpr std::uint32_t kSystemAccessDenied = 5;
inline constexpr std::uint32_t kSystemOutOfMemory = 8;
inline constexpr std::uint32_t kSystemInvalidDrive = 15;
inline constexpr std::uint32_t kSystemWriteProtected = 19;
inline constexpr std::uint32_t kSystemNotReady = 21;
inline constexpr std::uint32_t kSystemInUse = 32;
inline constexpr std::uint32_t kSystemLocked = 33;
inline constexpr std::uint32_t kSystemDiskFull = 112;
inline constexpr std::uint32_t kSystemInvalidName = 123;
inline constexpr std::uint32_t kSystemNameTooLong = 206;
inline constexpr std::uint32_t kSystemFileTooLarge = 223;
inline constexpr std::uint32_t kSystemDeviceIo = 1117;

// The text of one of these codes, or of one that says the same; empty for any other.
Text SystemText(std::uint32_t code);

}  // namespace trovex
