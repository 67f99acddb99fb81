// The one exception of the program, and the record of the last one that a handler caught.
#pragma once

#include <cstdint>
#include <exception>

#include "Platform/Text.h"

namespace trovex {

// Numbers of the run-time errors that the program raises.
enum class ErrorNumber : int {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kTypeMismatch = 13,
  kBadFileNumber = 52,
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceIo = 57,
  kDiskFull = 61,
  kEndOfFile = 62,
  kTooManyFiles = 67,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kNoSuchElement = 340,
  kInvalidProperty = 380,
  kInvalidPicture = 481,
  kInvalidRow = 30009,
  kInvalidCol = 30010,
};

// A run-time error: number, source (who raised it) and description. It is caught only where a
// routine has a handler; anywhere else it leaves the program with its message.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorNumber number, Text source = u"Trovex");
  RuntimeError(ErrorNumber number, Text source, Text description);
  // One that an error of the system has caused, with that one's code.
  static RuntimeError OfSystem(ErrorNumber number, std::uint32_t code);

  int Number() const { return static_cast<int>(number_); }
  ErrorNumber Kind() const { return number_; }
  const Text& Source() const { return source_; }
  const Text& Description() const { return description_; }
  // The system's own code for this error, numbered as Windows does; 0 where the system has no part
  // in it. Platform::FormatMessage tells what it means.
  std::uint32_t SystemCode() const { return system_code_; }
  const char* what() const noexcept override { return "run-time error"; }

 private:
  ErrorNumber number_;
  Text source_;
  Text description_;
  std::uint32_t system_code_ = 0;
};

// The description that belongs to a number, in the language of the interface.
Text ErrorDescription(ErrorNumber number);

// The pending run-time error: what the last handler caught and nobody cleared. Number 0 is none.
struct PendingError {
  int number = 0;
  int line = 0;  // 0 where no line number is known
  std::uint32_t system_code = 0;
  Text source;
  Text description;

  void Set(const RuntimeError& error);
  void Clear();
};

PendingError& Err();

// Runs one step of a routine that goes on after each error.
template <typename Step>
void IgnoringErrors(Step step) {
  try {
    step();
  } catch (const RuntimeError&) {
    // The next step runs.
  }
}

}  // namespace trovex
