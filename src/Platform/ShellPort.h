// Documents, programs and their icons.
#pragma once

#include <cstdint>

#include "Platform/Text.h"

namespace trovex {

class ShellPort {
 public:
  virtual ~ShellPort() = default;

  // Hands a document to the program that the system associates with it. A result below 33 is an
  // error code; Posix starts nothing and answers 31, as a machine without associations does.
  virtual int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                           const Text& directory, int show) = 0;
  // The program associated with a file. `buffer` keeps its size; the name and a NUL overwrite its
  // beginning, a NUL alone where there is none. A result below 33 is an error code.
  virtual int FindExecutable(const Text& file, const Text& directory, Text& buffer) = 0;
  // Starts a program and returns at once; `mode` is the window's state (1 normal). Raises
  // kFileNotFound or kInvalidCall; Posix, where nothing is ever started, kPermissionDenied.
  virtual void StartProgram(const Text& command_line, int mode) = 0;

  // True where the system shows help files: Windows before Vista, Wine, and Posix, where the view
  // answers for it.
  virtual bool HasHelpEngine() = 0;

  // Number of large icons that extracting one at `index` yields, 0 or 1. Posix looks into icon
  // files and into NE and PE executables, where any icon group will do.
  virtual int ExtractIconEx(const Text& file, int index) = 0;
};

}  // namespace trovex
