// Builds the sectors of small discs byte by byte: ISO 9660 with or without Joliet names, and High
// Sierra. Tests patch what comes of it into the odd discs of the time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace trovex::test {

inline constexpr std::size_t kIsoSector = 2048;

enum class IsoFormat { kPlain, kJoliet, kHighSierra };

// Date and zone of a record: years since 1900, month, day, hour, minute, second, quarters of an
// hour from Greenwich.
struct IsoDate {
  signed char fields[7] = {97, 3, 1, 12, 0, 0, 0};
};

// Where things came to lie, in bytes from the beginning. Names are those given, "" is the root.
struct BuiltIso {
  std::string bytes;
  std::map<std::string, std::size_t> records;         // of plain directories
  std::map<std::string, std::size_t> joliet_records;  // of those with long names
  std::map<std::string, std::size_t> data;            // of files and plain directories
  std::size_t joliet_root = 0;

  char& At(std::size_t place) { return bytes[place]; }
  // Writes a number both ways round, as records and descriptors hold it.
  void Put(std::size_t place, std::uint32_t number);
};

// Bytes in a record and in a primary descriptor, for patches.
inline constexpr std::size_t kRecordBlock = 2, kRecordSize = 10, kRecordDate = 18,
                             kRecordFlags = 25, kRecordUnit = 26, kRecordName = 33;
inline constexpr std::size_t kPrimary = 16 * kIsoSector;
inline constexpr std::size_t kPrimarySpace = kPrimary + 80, kPrimaryRoot = kPrimary + 156,
                             kPrimaryTable = kPrimary + 140;

class IsoBuilder {
 public:
  // Paths are UTF-8 with '/'; directories on the way are made. Plain names are recorded in code
  // page 850, letters as they are, with ";1" behind a file's.
  void File(std::string_view path, std::string_view contents = {}, const IsoDate& date = {});
  void Directory(std::string_view path, const IsoDate& date = {});
  void Remove(std::string_view path);
  // The hidden bit of an entry.
  void Hide(std::string_view path);
  void Label(std::string_view label) { label_ = label; }

  // `first` is the address of the first sector, where this is a later session of a disc.
  BuiltIso Build(IsoFormat format, std::uint32_t first = 0) const;

 private:
  struct Node {
    bool is_directory = false;
    bool hidden = false;
    std::string contents;
    IsoDate date;
  };

  std::map<std::string, Node, std::less<>> nodes_;
  std::string label_ = "DISQUE";
};

}  // namespace trovex::test
