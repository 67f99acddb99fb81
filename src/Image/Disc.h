// A disc image that is open: its directories and the contents of its files.
#pragma once

#include <memory>
#include <unordered_map>

#include "Image/Directory.h"
#include "Image/Volume.h"

namespace trovex::image {

// The bytes of one file, wherever its pieces lie. Keeps the image open.
class FileContents : public records::ByteSource {
 public:
  FileContents(std::shared_ptr<const Sectors> sectors, std::uint32_t block_size,
               std::vector<Extent> extents);

  std::uint64_t Length() const { return length_; }
  // Fewer than `size` bytes at the end of the file, and where the image holds no more of it.
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override;
  // True once a part of the file was asked for that the image does not hold.
  bool HasFailed() const { return failed_; }

 private:
  std::shared_ptr<const Sectors> sectors_;
  std::uint32_t block_size_;
  std::vector<Extent> extents_;
  std::uint64_t length_ = 0;
  bool failed_ = false;
};

// A directory at its place in the tree.
struct Folder {
  std::shared_ptr<const Directory> directory;
  std::shared_ptr<const Folder> above;  // null for the root
  std::uint32_t block = 0;
  std::uint32_t depth = 0;
  std::uint64_t path = 0;  // tells it from the same directory by another way
};

class Disc {
 public:
  Disc(Sectors sectors, Volume volume);

  const Volume& GetVolume() const { return volume_; }
  const std::shared_ptr<const Folder>& Root() const { return root_; }

  // A subdirectory; null where entry `number` is a file, where its directory cannot be read, and
  // where it leads astray: back to a directory above it, deeper than any tree, or once more to a
  // directory that many others have led to.
  std::shared_ptr<const Folder> Open(const std::shared_ptr<const Folder>& folder,
                                     std::size_t number);
  // The contents of a file; null where the entry is a directory, or its data are interleaved.
  std::unique_ptr<FileContents> OpenFile(const Folder& folder, std::size_t number) const;

 private:
  std::shared_ptr<const Folder> Read(std::uint32_t block, std::uint32_t size,
                                     std::shared_ptr<const Folder> above, std::uint64_t path) const;
  bool MayEnter(std::uint32_t block, std::uint64_t path);

  std::shared_ptr<const Sectors> sectors_;
  Volume volume_;
  std::shared_ptr<const Folder> root_;
  std::unordered_multimap<std::uint32_t, std::uint64_t> ways_;  // block of a directory, path to it
};

}  // namespace trovex::image
