// Documents, programs and their icons.
#pragma once

#include <cstdint>

#include "Platform/Text.h"

namespace trovex {

// Whose file an icon is wanted of: the system's own or one that the registry names, or one of the
// disc in hand, which may be damaged.
enum class IconOwner { kSystem, kDisc };

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

  // Number of large icons that extracting one at `index` yields, 0 or 1. Of a disc's file there is
  // none unless its first group of icons, or the icon file, is sound from the headers to the last
  // image; the system is shown no other. Posix looks no further than that in any file, whatever the
  // index; SHELL32.DLL of the system directory has icons there, too.
  virtual int ExtractIconEx(const Text& file, int index, IconOwner owner) = 0;
};

}  // namespace trovex
