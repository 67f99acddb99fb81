// What the contract tests share: a drive D:, and the operations of the port in the form in which a
// test reads best.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/HostSystem.h"
#include "support/TestDisc.h"

namespace trovex::test {

class Contract : public testing::Test {
 protected:
  // Names found by a search, in the order of their coming.
  std::vector<Text> FindAll(const Text& pattern) {
    std::vector<Text> names;
    FindData data;
    const FindHandle handle = platform_.FindFirstFile(pattern, data);
    if (handle == FindHandle::kInvalid) return names;
    do {
      names.push_back(data.name);
    } while (platform_.FindNextFile(handle, data));
    platform_.FindClose(handle);
    return names;
  }

  // The same in ascending order, for what every system must find.
  std::vector<Text> FindSorted(const Text& pattern) {
    std::vector<Text> names = FindAll(pattern);
    std::sort(names.begin(), names.end());
    return names;
  }

  std::string Contents(const Text& name) {
    std::string contents;
    const FileHandle file = platform_.OpenRead(name);
    char piece[100];
    while (const std::size_t count = platform_.Read(file, piece, sizeof piece)) {
      contents.append(piece, count);
    }
    platform_.Close(file);
    return contents;
  }

  void Write(const Text& name, std::string_view contents) {
    const FileHandle file = platform_.OpenWrite(name);
    platform_.Write(file, contents.data(), contents.size());
    platform_.Close(file);
  }

  // The error that an operation raises.
  template <typename Operation>
  static ErrorNumber ErrorOf(Operation operation) {
    try {
      operation();
    } catch (const RuntimeError& error) {
      return error.Kind();
    }
    ADD_FAILURE() << "no error was raised";
    return {};
  }

  TestDisc disc_;
  Platform& platform_ = disc_.GetPlatform();
};

}  // namespace trovex::test
