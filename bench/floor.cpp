// trovex-bench-floor DIR: the least work that a catalogue of DIR can do, as the mark to measure
// trovex-cli against. One thread; one listing a directory; for every *.exe an open, an fstat, the
// reads that lead to the version record (MZ header, new header, resource directory, record) and a
// close. Nothing is kept, sorted or shown but the counts.
// Exit status: 0; 1 DIR cannot be read; 2 the command line is wrong.
#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iostream>

namespace {

struct Counts {
  std::uint64_t directories = 0, files = 0, executables = 0, records = 0, bytes = 0;
};

// Bytes of a file at an offset; what lies behind its end reads as zero.
class Window {
 public:
  Window(int file, std::uint64_t offset, std::size_t size) {
    const ssize_t got =
        pread(file, data_.data(), std::min(size, data_.size()), static_cast<off_t>(offset));
    size_ = got < 0 ? 0 : static_cast<std::size_t>(got);
  }
  std::uint32_t U16(std::size_t at) const {
    return at + 2 > size_ ? 0 : static_cast<std::uint32_t>(data_[at] | data_[at + 1] << 8);
  }
  std::uint32_t U32(std::size_t at) const { return U16(at) | U16(at + 2) << 16; }
  std::size_t Size() const { return size_; }

 private:
  std::array<unsigned char, 4096> data_;
  std::size_t size_ = 0;
};

bool ReadRecord(int file, std::uint64_t offset, std::size_t size) {
  return Window(file, offset, size).Size() > 0;
}

bool NeRecord(int file, std::uint64_t header_offset, const Window& header) {
  const std::uint32_t table_offset = header.U16(0x24), table_end = header.U16(0x26);
  if (table_end <= table_offset) return false;
  const Window table(file, header_offset + table_offset, table_end - table_offset);
  const std::uint32_t shift = table.U16(0) & 15;
  for (std::size_t at = 2; table.U16(at) != 0; at += 8 + 12 * table.U16(at + 2)) {
    if (table.U16(at) == 0x8010) {
      return ReadRecord(file, table.U16(at + 8) << shift, table.U16(at + 10) << shift);
    }
  }
  return false;
}

// The target of an entry of a directory of resources; `id` 0 takes the first.
std::uint32_t PeEntry(const Window& tree, std::size_t directory, std::uint32_t id) {
  const std::size_t entries = tree.U16(directory + 12) + tree.U16(directory + 14);
  for (std::size_t at = directory + 16, i = 0; i < entries; ++i, at += 8) {
    if (id == 0 || tree.U32(at) == id) return tree.U32(at + 4) & 0x7FFFFFFF;
  }
  return 0;
}

bool PeRecord(int file, const Window& header) {
  const std::uint32_t rva = header.U32(24 + 112), sections = header.U16(6);
  std::size_t section = 24 + header.U16(20);
  for (std::uint32_t i = 0; i < sections; ++i, section += 40) {
    if (rva == 0 || header.U32(section + 12) != rva) continue;
    const std::uint32_t raw = header.U32(section + 20);
    const Window tree(file, raw, 1024);
    const std::uint32_t names = PeEntry(tree, 0, 16);
    if (names == 0) return false;
    const std::uint32_t entry = PeEntry(tree, PeEntry(tree, names, 0), 0);
    return ReadRecord(file, raw + tree.U32(entry) - rva, tree.U32(entry + 4));
  }
  return false;
}

bool HasRecord(int file) {
  const Window mz(file, 0, 64);
  const std::uint32_t offset = mz.U32(0x3C);
  if (mz.U16(0) != 0x5A4D || offset == 0) return false;
  const Window header(file, offset, 24 + 224 + 8 * 40);
  if (header.U16(0) == 0x454E) return NeRecord(file, offset, header);
  return header.U32(0) == 0x4550 && PeRecord(file, header);
}

void Executable(int directory, const char* name, Counts& counts) {
  const int file = openat(directory, name, O_RDONLY | O_CLOEXEC);
  if (file < 0) return;
  struct stat status {};
  if (fstat(file, &status) == 0) counts.bytes += static_cast<std::uint64_t>(status.st_size);
  ++counts.executables;
  if (HasRecord(file)) ++counts.records;
  close(file);
}

bool EndsInExe(const char* name) {
  const std::size_t length = std::strlen(name);
  return length >= 4 && strcasecmp(name + length - 4, ".exe") == 0;
}

unsigned char TypeOf(int directory, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type;
  struct stat status {};
  if (fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return DT_UNKNOWN;
  return S_ISDIR(status.st_mode) ? DT_DIR : S_ISREG(status.st_mode) ? DT_REG : DT_UNKNOWN;
}

bool Walk(int parent, const char* name, Counts& counts) {
  const int descriptor = openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return false;
  DIR* listing = fdopendir(descriptor);
  ++counts.directories;
  while (const dirent* entry = readdir(listing)) {
    const unsigned char type = TypeOf(descriptor, *entry);
    if (type == DT_REG) {
      ++counts.files;
      if (EndsInExe(entry->d_name)) Executable(descriptor, entry->d_name, counts);
    } else if (type == DT_DIR && std::strcmp(entry->d_name, ".") != 0 &&
               std::strcmp(entry->d_name, "..") != 0) {
      Walk(descriptor, entry->d_name, counts);
    }
  }
  closedir(listing);
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: trovex-bench-floor DIR\n";
    return 2;
  }
  Counts counts;
  if (!Walk(AT_FDCWD, arguments[1], counts)) {
    std::cerr << "trovex-bench-floor: cannot read " << arguments[1] << "\n";
    return 1;
  }
  std::cout << counts.directories << " directories, " << counts.files << " files, "
            << counts.executables << " executables (" << counts.bytes << " bytes), "
            << counts.records << " version records\n";
  return 0;
}
