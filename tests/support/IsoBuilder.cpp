#include "support/IsoBuilder.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

constexpr std::size_t kFixedSectors = 24;  // descriptors and tables of paths end here

enum Flags { kHidden = 1, kDirectory = 2 };

void Both16(std::string& bytes, std::size_t place, unsigned number) {
  bytes[place] = bytes[place + 3] = static_cast<char>(number);
  bytes[place + 1] = bytes[place + 2] = static_cast<char>(number >> 8);
}

void Little32(std::string& bytes, std::size_t place, std::uint32_t number) {
  for (int i = 0; i < 4; ++i) bytes[place + i] = static_cast<char>(number >> 8 * i);
}

void Big32(std::string& bytes, std::size_t place, std::uint32_t number) {
  for (int i = 0; i < 4; ++i) bytes[place + i] = static_cast<char>(number >> (24 - 8 * i));
}

void Both32(std::string& bytes, std::size_t place, std::uint32_t number) {
  Little32(bytes, place, number);
  Big32(bytes, place + 4, number);
}

std::string BigUnits(TextView text) {
  std::string bytes;
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit >> 8);
    bytes += static_cast<char>(unit);
  }
  return bytes;
}

// The few letters of code page 850 that tests use.
std::string Cp850(TextView text) {
  const std::map<char16_t, char> letters = {{u'é', '\x82'}, {u'è', '\x8A'}, {u'à', '\x85'},
                                            {u'ç', '\x87'}, {u'ô', '\x93'}, {u'É', '\x90'},
                                            {u'ê', '\x88'}, {u'î', '\x8C'}, {u'û', '\x96'}};
  std::string bytes;
  for (const char16_t unit : text) {
    const auto found = letters.find(unit);
    bytes += found != letters.end() ? found->second : static_cast<char>(unit);
  }
  return bytes;
}

std::string ParentOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

std::size_t Sectors(std::size_t bytes) {
  return (bytes + kIsoSector - 1) / kIsoSector;
}

struct Extent {
  std::uint32_t sector = 0;
  std::uint32_t size = 0;
};

std::string RecordOf(std::string_view identifier, const Extent& extent, const IsoDate& date,
                     int flags, bool old) {
  std::string record(33 + identifier.size() + (identifier.size() % 2 == 0 ? 1 : 0), '\0');
  record[0] = static_cast<char>(record.size());
  Both32(record, kRecordBlock, extent.sector);
  Both32(record, kRecordSize, extent.size);
  std::memcpy(&record[kRecordDate], date.fields, old ? 6 : 7);
  record[old ? 24 : 25] = static_cast<char>(flags);
  Both16(record, 28, 1);
  record[32] = static_cast<char>(identifier.size());
  record.replace(kRecordName, identifier.size(), identifier);
  return record;
}

// One tree of directories over the files' data.
template <typename Nodes>
class Tree {
 public:
  Tree(const Nodes& nodes, IsoFormat format) : nodes_(nodes), format_(format) {}

  std::string Identifier(const std::string& path, bool is_directory) const {
    const Text name = FromUtf8(NameOf(path)) + (is_directory ? u"" : u";1");
    return format_ == IsoFormat::kJoliet ? BigUnits(name) : Cp850(name);
  }

  // The bytes of a directory, its records kept within sectors. `place` is told where each stands.
  template <typename ExtentOf, typename Placed>
  std::string Directory(const std::string& path, ExtentOf extent, Placed placed) const {
    const bool old = format_ == IsoFormat::kHighSierra;
    std::string bytes = RecordOf({"\0", 1}, extent(path), {}, kDirectory, old);
    bytes += RecordOf({"\1", 1}, extent(ParentOf(path)), {}, kDirectory, old);
    std::map<std::string, std::string> ordered;  // by identifier
    for (const auto& [name, node] : nodes_) {
      if (!name.empty() && ParentOf(name) == path) {
        ordered[Identifier(name, node.is_directory)] = name;
      }
    }
    for (const auto& [identifier, name] : ordered) {
      const auto& node = nodes_.find(name)->second;
      const int flags = (node.hidden ? kHidden : 0) | (node.is_directory ? kDirectory : 0);
      const std::string record = RecordOf(identifier, extent(name), node.date, flags, old);
      if (bytes.size() % kIsoSector + record.size() > kIsoSector) {
        bytes.resize(Sectors(bytes.size()) * kIsoSector);
      }
      placed(name, bytes.size());
      bytes += record;
    }
    bytes.resize(Sectors(bytes.size()) * kIsoSector);
    return bytes;
  }

 private:
  const Nodes& nodes_;
  IsoFormat format_;
};

// What stands in a descriptor, at places that differ in the two kinds.
struct DescriptorPlaces {
  std::size_t type, label, space, block, table_size, little, big, root;
};
constexpr DescriptorPlaces kIsoPlaces = {0, 40, 80, 128, 132, 140, 148, 156};
constexpr DescriptorPlaces kOldPlaces = {8, 48, 88, 136, 140, 148, 164, 180};

std::string DescriptorSector(int type, bool old) {
  std::string sector(kIsoSector, '\0');
  sector.replace(old ? 9 : 1, 5, old ? "CDROM" : "CD001");
  sector[old ? 8 : 0] = static_cast<char>(type);
  sector[old ? 14 : 6] = 1;
  return sector;
}

}  // namespace

void BuiltIso::Put(std::size_t place, std::uint32_t number) {
  Both32(bytes, place, number);
}

void IsoBuilder::File(std::string_view path, std::string_view contents, const IsoDate& date) {
  if (path.find('/') != std::string_view::npos) {
    const std::string parent = ParentOf(std::string(path));
    if (!nodes_.contains(parent)) Directory(parent);
  }
  nodes_.insert_or_assign(std::string(path), Node{false, false, std::string(contents), date});
}

void IsoBuilder::Directory(std::string_view path, const IsoDate& date) {
  const std::string parent = ParentOf(std::string(path));
  if (!parent.empty() && !nodes_.contains(parent)) Directory(parent);
  nodes_.insert_or_assign(std::string(path), Node{true, false, {}, date});
}

void IsoBuilder::Remove(std::string_view path) {
  const std::string below = std::string(path) + "/";
  std::erase_if(nodes_, [&](const auto& node) {
    return node.first == path || node.first.starts_with(below);
  });
}

void IsoBuilder::Hide(std::string_view path) {
  nodes_.find(path)->second.hidden = true;
}

BuiltIso IsoBuilder::Build(IsoFormat format, std::uint32_t first) const {
  auto nodes = nodes_;
  nodes[""] = Node{true, false, {}, {}};
  const bool old = format == IsoFormat::kHighSierra;
  std::vector<IsoFormat> trees{old ? IsoFormat::kHighSierra : IsoFormat::kPlain};
  if (format == IsoFormat::kJoliet) trees.push_back(IsoFormat::kJoliet);

  // Directories first, then files: their sizes are known before their places are.
  BuiltIso iso;
  std::uint32_t next = first + kFixedSectors;
  std::vector<std::map<std::string, Extent>> extents(trees.size());
  const auto nowhere = [](const std::string&) { return Extent(); };
  const auto ignored = [](const std::string&, std::size_t) {};
  for (std::size_t t = 0; t < trees.size(); ++t) {
    const Tree tree(nodes, trees[t]);
    for (const auto& [path, node] : nodes) {
      if (!node.is_directory) continue;
      const auto size = static_cast<std::uint32_t>(tree.Directory(path, nowhere, ignored).size());
      extents[t][path] = {next, size};
      next += static_cast<std::uint32_t>(size / kIsoSector);
    }
  }
  for (const auto& [path, node] : nodes) {
    if (node.is_directory) continue;
    for (auto& tree : extents) {
      tree[path] = {next, static_cast<std::uint32_t>(node.contents.size())};
    }
    next += static_cast<std::uint32_t>(Sectors(node.contents.size()));
  }

  iso.bytes.assign((next - first) * kIsoSector, '\0');
  const auto place_of = [&](std::uint32_t sector) { return (sector - first) * kIsoSector; };
  for (std::size_t t = 0; t < trees.size(); ++t) {
    const Tree tree(nodes, trees[t]);
    auto& records = t == 0 ? iso.records : iso.joliet_records;
    for (const auto& [path, node] : nodes) {
      if (!node.is_directory) continue;
      const std::size_t place = place_of(extents[t][path].sector);
      const std::string bytes = tree.Directory(
          path, [&](const std::string& p) { return extents[t].find(p)->second; },
          [&](const std::string& p, std::size_t at) { records[p] = place + at; });
      iso.bytes.replace(place, bytes.size(), bytes);
    }
  }
  for (const auto& [path, extent] : extents[0]) iso.data[path] = place_of(extent.sector);
  for (const auto& [path, node] : nodes) {
    iso.bytes.replace(iso.data[path], node.contents.size(), node.contents);
  }
  if (trees.size() > 1) iso.joliet_root = place_of(extents[1][""].sector);

  // Descriptors, and of the tables of paths the first entry, that of the root.
  const DescriptorPlaces& at = old ? kOldPlaces : kIsoPlaces;
  std::size_t sector = kPrimary / kIsoSector;
  for (std::size_t t = 0; t < trees.size(); ++t, ++sector) {
    const bool joliet = trees[t] == IsoFormat::kJoliet;
    const Extent root = extents[t][""];
    const auto table = static_cast<std::uint32_t>(20 + 2 * t);
    std::string bytes = DescriptorSector(joliet ? 2 : 1, old);
    std::string label = joliet ? BigUnits(FromUtf8(label_)) : Cp850(FromUtf8(label_));
    label.resize(32, joliet ? '\0' : ' ');
    bytes.replace(at.label, 32, label);
    Both32(bytes, at.space, next - first);
    Both16(bytes, at.block, kIsoSector);
    Both32(bytes, at.table_size, 10);
    Little32(bytes, at.little, first + table);
    Big32(bytes, at.big, first + table + 1);
    if (joliet) bytes.replace(88, 3, "%/E");
    const std::string record = RecordOf({"\0", 1}, root, {}, kDirectory, old);
    bytes.replace(at.root, record.size(), record);
    iso.bytes.replace(sector * kIsoSector, kIsoSector, bytes);
    const std::size_t little = table * kIsoSector, big = little + kIsoSector;
    iso.bytes[little + (old ? 5 : 0)] = iso.bytes[big + (old ? 5 : 0)] = 1;
    Little32(iso.bytes, little + (old ? 0 : 2), root.sector);
    Big32(iso.bytes, big + (old ? 0 : 2), root.sector);
  }
  iso.bytes.replace(sector * kIsoSector, kIsoSector, DescriptorSector(255, old));
  return iso;
}

}  // namespace trovex::test
