// Ground of the tests of the library modules: a platform whose answers a test can bend, over the
// drive D: of the test disc.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Platform/ForwardingPlatform.h"
#include "support/LogicTest.h"

namespace trovex::test {

// Fails, lies or records where a test says so; all else goes to the disc.
class BentPlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  // Errors that the operation raises instead of working.
  std::optional<ErrorNumber> find_error, open_read_error, open_write_error, write_error;
  std::optional<ErrorNumber> copy_error, delete_error, profile_read_error;
  // How many reads succeed before every further one raises kDeviceIo; -1 is all.
  int good_reads = -1;
  bool profile_write_fails = false;

  // What is answered instead of the disc's own answer.
  std::optional<DriveType> drive_type;
  std::map<Text, Text> environment;
  Text windows_directory = u"D:\\Windows", system_directory = u"D:\\Windows\\System";
  std::deque<double> random;  // each number is drawn once
  std::uint32_t error_code = 0;
  Text error_text;

  // What was asked.
  int finds = 0;
  std::vector<Text> drive_roots;
  std::vector<std::uint32_t> beeps;

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    ++finds;
    RaiseIf(find_error);
    return Target().FindFirstFile(pattern, data);
  }
  FileHandle OpenRead(const Text& name) override {
    RaiseIf(open_read_error);
    return Target().OpenRead(name);
  }
  FileHandle OpenWrite(const Text& name) override {
    RaiseIf(open_write_error);
    return Target().OpenWrite(name);
  }
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    if (good_reads == 0) throw RuntimeError(ErrorNumber::kDeviceIo);
    if (good_reads > 0) --good_reads;
    return Target().Read(file, buffer, size);
  }
  void Write(FileHandle file, const void* data, std::size_t size) override {
    RaiseIf(write_error);
    Target().Write(file, data, size);
  }
  void CopyFile(const Text& source, const Text& destination) override {
    RaiseIf(copy_error);
    Target().CopyFile(source, destination);
  }
  void DeleteFile(const Text& name) override {
    RaiseIf(delete_error);
    Target().DeleteFile(name);
  }
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override {
    RaiseIf(profile_read_error);
    return Target().GetPrivateProfileString(section, key, fallback, buffer, size, file);
  }
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override {
    return !profile_write_fails && Target().WritePrivateProfileString(section, key, value, file);
  }
  DriveType GetDriveType(const Text& root) override {
    drive_roots.push_back(root);
    return drive_type ? *drive_type : Target().GetDriveType(root);
  }
  std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) override {
    return Fill(windows_directory, buffer, size);
  }
  std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) override {
    return Fill(system_directory, buffer, size);
  }
  Text GetProgramDirectory() override { return u"D:\\Programme"; }
  Text GetEnvironmentVariable(const Text& name) override {
    const auto found = environment.find(name);
    return found == environment.end() ? Text() : found->second;
  }
  void MessageBeep(std::uint32_t type) override { beeps.push_back(type); }
  Text FormatMessage(std::uint32_t code) override {
    return code == error_code ? error_text : Text();
  }
  double Random() override {
    if (random.empty()) {
      ADD_FAILURE() << "a number too many was drawn";
      return 0;
    }
    const double drawn = random.front();
    random.pop_front();
    return drawn;
  }

 private:
  static void RaiseIf(const std::optional<ErrorNumber>& error) {
    if (error) throw RuntimeError(*error);
  }
  static std::uint32_t Fill(const Text& name, Text& buffer, std::uint32_t size) {
    const auto length = static_cast<std::uint32_t>(name.size());
    buffer = length < size ? name : Text();
    return length < size ? length : length + 1;
  }
};

class LibTest : public LogicTest {
 protected:
  // Bytes of a file, read past every bent answer.
  std::string Contents(const Text& name) {
    Platform& straight = disc.GetPlatform();
    std::string contents;
    const FileHandle file = straight.OpenRead(name);
    char piece[4096];
    while (const std::size_t count = straight.Read(file, piece, sizeof piece)) {
      contents.append(piece, count);
    }
    straight.Close(file);
    return contents;
  }
  bool Exists(const Text& name) {
    FileStatus status;
    return disc.GetPlatform().GetFileStatus(name, status);
  }

  // An error box is to come next; it is answered with OK.
  void ExpectBox() { view.Answer(BoxAnswer::kOk); }
  // What a pending error adds to the text of the error box.
  static Text Details(ErrorNumber number) {
    return u"\r\n\r\nError #" + Decimal(static_cast<int>(number)) + u" by Trovex\r\n" +
           ErrorDescription(number);
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

  BentPlatform platform{disc.GetPlatform()};

 private:
  PlatformScope platform_scope_{platform};
};

}  // namespace trovex::test
