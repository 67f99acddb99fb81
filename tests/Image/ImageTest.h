// Ground of the tests of disc images: images are files on the drive D:, and one of them is E:.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Image/DiscPlatform.h"
#include "Image/OpenDisc.h"
#include "support/IsoBuilder.h"
#include "support/TestDisc.h"

namespace trovex::test {

class ImageTest : public testing::Test {
 protected:
  // Writes the image and opens it.
  image::Opened Open(std::string_view bytes) {
    disc_.File("disque.bin", bytes);
    return Open(u"D:\\disque.bin");
  }
  image::Opened Open(const BuiltIso& iso) { return Open(iso.bytes); }
  image::Opened Open(const Text& name) { return image::OpenDisc(disc_.GetPlatform(), name); }

  // The same, and makes it the drive E:.
  void Insert(std::string_view bytes) { Mount(Open(bytes)); }
  void Insert(const BuiltIso& iso) { Insert(iso.bytes); }
  void Mount(const image::Opened& opened) {
    ASSERT_EQ(opened.problem, image::Problem::kNone);
    platform_.Mount(u'E', opened.disc);
  }

  // Names of a directory, in order.
  std::vector<Text> Names(const Text& directory = u"E:\\") {
    std::vector<Text> names;
    const auto held = platform_.OpenDirectory(directory);
    if (!held) return {u"(nothing)"};
    ListedEntry entry;
    for (std::size_t place = 0; held->Entries()->Next(place, entry);)
      names.emplace_back(entry.name);
    return names;
  }

  std::string Contents(const Text& name) {
    const FileHandle file = platform_.OpenRead(name);
    std::string contents;
    char piece[1000];
    try {
      while (const std::size_t got = platform_.Read(file, piece, sizeof piece)) {
        contents.append(piece, got);
      }
    } catch (const RuntimeError&) {
      contents += "(unread)";
    }
    platform_.Close(file);
    return contents;
  }

  FileStatus Status(const Text& name) {
    FileStatus status;
    EXPECT_TRUE(platform_.GetFileStatus(name, status));
    return status;
  }

  bool IsWhole(const Text& directory) {
    const auto held = platform_.OpenDirectory(directory);
    return held && held->IsWhole();
  }

  // What a problem's name is, for messages.
  static image::Problem ProblemOf(const image::Opened& opened) { return opened.problem; }

  TestDisc disc_;
  DiscPlatform platform_{disc_.GetPlatform()};
};

// A small disc: two files beside each other, one below, of several sectors.
inline IsoBuilder SmallDisc() {
  IsoBuilder iso;
  iso.File("LISEZMOI.TXT", "Bonjour\r\n");
  iso.File("SETUP.EXE", std::string(5000, 'S') + "fin");
  iso.File("JEUX/DAMES/DAMES.EXE", std::string(40000, 'D') + "fin");
  return iso;
}

}  // namespace trovex::test
