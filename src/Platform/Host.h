// How a command line's names become names of the program, and the platform over them.
#pragma once

#include <memory>
#include <string>

#include "Platform/Platform.h"

namespace trovex {

// A directory of the host, opened for cataloguing, with the platform that reaches it.
class Host {
 public:
  virtual ~Host() = default;

  virtual Platform& GetPlatform() = 0;
  // Where the catalogue starts, as the program writes it: Posix the root of the mapped drive
  // ("D:\"), Win32 the directory itself as a full path.
  virtual Text Start() = 0;
  // A file argument (UTF-8, relative to the host's current directory or absolute) as the program
  // writes it.
  virtual Text NameOf(const std::string& argument) = 0;
  // The settings file of a program that is installed, as the program writes it; empty where it
  // stands beside the program.
  virtual Text InstalledSettings() { return {}; }
  // A name of the program as the user knows it (UTF-8): a file of the directory that was opened
  // stands behind that directory as it was given.
  virtual std::string UserNameOf(const Text& name) = 0;
};

// Opens `directory` (UTF-8). On Posix it becomes the root of `drive`, a CD-ROM drive, and the
// host's own root another drive, by which settings and exports are reached; Win32 takes no notice
// of `drive`. Where the directory is missing, no directory or unreadable the result is null and
// `complaint` says so in one line without line end (UTF-8).
std::unique_ptr<Host> OpenHost(const std::string& directory, char16_t drive,
                               std::string& complaint);

// The host without a directory of its own, for a disc that is read otherwise and will be `drive`;
// where it starts means nothing.
std::unique_ptr<Host> OpenHostWithoutDisc(char16_t drive);

}  // namespace trovex
