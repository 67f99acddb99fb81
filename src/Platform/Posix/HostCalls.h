// System calls on host paths of any length. A path longer than the system takes at once is walked
// down in pieces.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <string>

#include "Platform/Posix/FileDescriptor.h"

namespace trovex::posix {

// A file without any of these bits is the program's read-only file.
inline constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;

// All paths are absolute. What fails says so as the system call does, with the reason in errno.
FileDescriptor OpenHostPath(const std::string& path, int flags, mode_t mode = 0666);
bool StatHost(const std::string& path, struct stat& status);      // of a link: its target
bool StatHostLink(const std::string& path, struct stat& status);  // of a link: the link
// Whether the file of this status may be written to. A file without any write bit may not, whoever
// asks: it is the program's read-only file.
bool MayWriteHost(const std::string& path, const struct stat& status);
bool UnlinkHost(const std::string& path);
bool MakeHostDirectory(const std::string& path);
bool RenameHost(const std::string& from, const std::string& to);

// Opens a regular file for reading; anything else is refused (EISDIR, ENXIO) without being opened,
// since opening a FIFO or a device may wait or act.
FileDescriptor OpenHostFile(const std::string& path);

// Up to `size` bytes from where the descriptor stands, fewer only at the end; -1 on failure.
std::ptrdiff_t ReadFully(int fd, void* buffer, std::size_t size);
bool WriteFully(int fd, const void* data, std::size_t size);

}  // namespace trovex::posix
