// What the fuzzer calls. "fuzz_NAME --seeds DIRECTORY" writes the seeds and does nothing else.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/Target.h"

namespace trovex::fuzz {

void Promise(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

std::string_view TakeLine(std::string_view& input) {
  const std::size_t end = input.find('\n');
  const std::string_view line = input.substr(0, end);
  input = end == std::string_view::npos ? std::string_view() : input.substr(end + 1);
  return line;
}

namespace {

void WriteSeeds(const std::filesystem::path& directory) {
  std::filesystem::create_directories(directory);
  Seeds([&](const std::string& name, std::string_view input) {
    std::ofstream(directory / name, std::ios::binary).write(input.data(), std::ssize(input));
  });
}

}  // namespace
}  // namespace trovex::fuzz

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  if (*count == 3 && std::string_view((*arguments)[1]) == "--seeds") {
    trovex::fuzz::WriteSeeds((*arguments)[2]);
    std::exit(0);
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  trovex::fuzz::Try({reinterpret_cast<const char*>(data), size});
  return 0;
}
