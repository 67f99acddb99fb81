#include "Platform/Win32/Names.h"

#include <algorithm>

#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

constexpr TextView kVerbatim = u"\\\\?\\";
constexpr TextView kVerbatimShare = u"\\\\?\\UNC\\";
constexpr TextView kDevice = u"\\\\.\\";

bool IsSlash(char16_t unit) {
  return unit == u'\\' || unit == u'/';
}

void AppendLevel(Text& path, TextView level) {
  if (level.empty() || level == u".") return;
  if (level == u"..") {
    path.resize(std::min(path.find_last_of(u'\\'), path.size()));  // a root has no parent
    return;
  }
  path.push_back(u'\\');
  path.append(level);
}

// "X:\A\..\B/C" as "X:\B\C". The system's own way is not taken, since it turns "X:\NUL" into the
// device and drops final points.
Text Normalized(TextView name) {
  Text path(name.substr(0, 2));
  for (std::size_t at = 3; at < name.size();) {
    std::size_t end = at;
    while (end < name.size() && !IsSlash(name[end])) ++end;
    AppendLevel(path, name.substr(at, end - at));
    at = end + 1;
  }
  if (path.size() == 2) path.push_back(u'\\');
  return path;
}

}  // namespace

const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}
wchar_t* Wide(Text& text) {
  return reinterpret_cast<wchar_t*>(text.data());
}
Text FromWide(const wchar_t* text) {
  return reinterpret_cast<const char16_t*>(text);
}

Text FullName(const Text& name) {
  const DWORD size = GetFullPathNameW(Wide(name), 0, nullptr, nullptr);
  if (size == 0) return {};
  Text full(size, u'\0');
  full.resize(GetFullPathNameW(Wide(name), size, Wide(full), nullptr));
  return full;
}

Text VerbatimName(const Text& name) {
  const Text full = HasDriveRoot(name) ? Normalized(name) : FullName(name);
  if (full.starts_with(kDevice)) return {};
  if (HasDriveRoot(full)) return Text(kVerbatim) + full;
  if (full.starts_with(kVerbatim) || !full.starts_with(u"\\\\")) return full;
  return Text(kVerbatimShare) + full.substr(2);
}

bool HasDriveRoot(TextView name) {
  if (name.size() < 3 || name[1] != u':' || !IsSlash(name[2])) return false;
  const char16_t letter = ToUpper(name[0]);
  return letter >= u'A' && letter <= u'Z';
}

bool IsRoot(TextView name) {
  if (name.starts_with(kVerbatim)) name.remove_prefix(kVerbatim.size());
  return name.size() == 3 && HasDriveRoot(name);
}

}  // namespace trovex
