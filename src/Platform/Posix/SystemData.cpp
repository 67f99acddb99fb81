#include "Platform/Posix/SystemData.h"

#include <fcntl.h>

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "Platform/Encoding.h"
#include "Platform/Posix/HostCalls.h"

namespace trovex::posix {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kServicePackField = 128;  // characters
constexpr std::size_t kLongestName = 259;
constexpr std::size_t kLargestFile = 16384;  // of those that are read here
constexpr std::uint64_t kKilobyte = 1024;

// Takes the number off the text's beginning, and a point behind it; 0 where there is none.
std::uint32_t TakeNumber(std::string_view& text) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return 0;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (text.starts_with('.')) text.remove_prefix(1);
  return number;
}

// The file's beginning; empty where it cannot be read.
std::string ReadSmallFile(const std::string& path) {
  const FileDescriptor file = OpenHostPath(path, O_RDONLY | O_NONBLOCK);
  std::string contents(kLargestFile, '\0');
  const std::ptrdiff_t got =
      file.IsOpen() ? ReadFully(file.Get(), contents.data(), contents.size()) : 0;
  contents.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return contents;
}

// The value of a line "MemTotal:  8048948 kB" in bytes.
std::optional<std::uint64_t> FindBytes(std::string_view meminfo, std::string_view key) {
  while (!meminfo.empty()) {
    std::string_view line = meminfo.substr(0, meminfo.find('\n'));
    meminfo.remove_prefix(std::min(line.size() + 1, meminfo.size()));
    if (!line.starts_with(key) || !line.substr(key.size()).starts_with(':')) continue;
    line.remove_prefix(std::min(line.find_first_of("0123456789"), line.size()));
    std::uint64_t kilobytes = 0;
    const auto parsed = std::from_chars(line.data(), line.data() + line.size(), kilobytes);
    if (parsed.ec == std::errc()) return kilobytes * kKilobyte;
  }
  return std::nullopt;
}

std::uint32_t ToldToThirtyTwoBits(std::uint64_t bytes) {
  return static_cast<std::uint32_t>(std::min<std::uint64_t>(bytes, kMostMemory));
}

bool IsNumber(std::string_view name) {
  return !name.empty() && name.find_first_not_of("0123456789") == std::string_view::npos;
}

std::vector<std::string> ProcessNumbers(const std::string& proc) {
  std::vector<std::string> numbers;
  std::error_code error;
  for (fs::directory_iterator entry(proc, error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = entry->path().filename().string();
    if (IsNumber(name)) numbers.push_back(std::move(name));
  }
  std::sort(numbers.begin(), numbers.end(), [](const std::string& a, const std::string& b) {
    return a.size() != b.size() ? a.size() < b.size() : a < b;
  });
  return numbers;
}

}  // namespace

OsVersionInfo VersionOfRelease(std::string_view release) {
  OsVersionInfo info;
  info.dwOSVersionInfoSize = kOsVersionInfoSize;
  info.dwMajorVersion = TakeNumber(release);
  info.dwMinorVersion = TakeNumber(release);
  info.dwBuildNumber = TakeNumber(release);
  info.dwPlatformId = kFamilyWindowsNt;
  if (release.starts_with('-')) release.remove_prefix(1);
  info.szCSDVersion = FromUtf8(release);
  info.szCSDVersion.resize(kServicePackField);
  return info;
}

std::uint32_t ProcessorTypeOf(std::string_view machine) {
  if (machine == "i386") return 386;
  if (machine == "i486") return 486;
  if (machine == "i586" || machine == "i686" || machine == "x86_64" || machine == "amd64") {
    return 586;
  }
  if (machine.starts_with("mips")) return 4000;
  return machine == "alpha" ? 21064 : 0;
}

std::optional<MemoryStatus> ReadMemory(const std::string& proc) {
  const std::string meminfo = ReadSmallFile(proc + "/meminfo");
  const std::optional<std::uint64_t> memory = FindBytes(meminfo, "MemTotal");
  if (!memory) return std::nullopt;
  const std::uint64_t swap = FindBytes(meminfo, "SwapTotal").value_or(0);
  return MemoryStatus{ToldToThirtyTwoBits(*memory), ToldToThirtyTwoBits(*memory + swap)};
}

std::vector<Text> ReadProcessNames(const std::string& proc) {
  std::vector<Text> names;
  for (const std::string& number : ProcessNumbers(proc)) {
    std::string path = proc;
    path.append("/").append(number).append("/comm");
    std::string name = ReadSmallFile(path);
    if (name.ends_with('\n')) name.pop_back();
    if (!name.empty()) names.push_back(FromUtf8(name).substr(0, kLongestName));
  }
  return names;
}

}  // namespace trovex::posix
