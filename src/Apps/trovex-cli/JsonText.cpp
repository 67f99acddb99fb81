#include "Apps/trovex-cli/JsonText.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "Platform/Encoding.h"

namespace trovex::cli {
namespace {

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}
bool IsEscaped(char c) {
  return IsControl(c) || c == '"' || c == '\\';
}

}  // namespace

// A catalogue with its details holds some forty texts a row, hardly one of them with more to
// escape than the backslashes of a path: only those with control characters go to the library.
std::string Quoted(TextView text) {
  const std::string bytes = ToStrictUtf8(text);
  std::string quoted;
  quoted.reserve(bytes.size() + 8);
  quoted += '"';
  for (auto from = bytes.begin(); from != bytes.end();) {
    const auto to = std::find_if(from, bytes.end(), IsEscaped);
    quoted.append(from, to);
    if (to == bytes.end()) break;
    if (IsControl(*to)) return nlohmann::json(bytes).dump();
    quoted += '\\';
    quoted += *to;
    from = to + 1;
  }
  return quoted += '"';
}

}  // namespace trovex::cli
