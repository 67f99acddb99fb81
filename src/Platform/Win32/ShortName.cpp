#include "Platform/Win32/ShortName.h"

#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

constexpr TextView kVerbatim = u"\\\\?\\";
constexpr std::uint64_t kLargestCopy = 64u << 20;  // bytes

// The file by the short names of all levels; empty where some have none.
Text AliasOf(const Text& verbatim) {
  Text alias(verbatim.size() + 1, u'\0');
  const DWORD length =
      GetShortPathNameW(Wide(verbatim), Wide(alias), static_cast<DWORD>(alias.size()));
  if (length == 0 || length >= alias.size()) return {};
  alias.resize(length);
  if (alias.starts_with(kVerbatim)) alias.erase(0, kVerbatim.size());
  return alias.size() < MAX_PATH ? alias : Text();
}

bool MayBeCopied(const Text& verbatim) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(Wide(verbatim), GetFileExInfoStandard, &data)) return false;
  return (std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow) <= kLargestCopy;
}

Text CopyOf(const Text& verbatim) {
  wchar_t directory[MAX_PATH + 1] = {}, name[MAX_PATH + 1] = {};
  if (!MayBeCopied(verbatim) || GetTempPathW(MAX_PATH, directory) == 0 ||
      GetTempFileNameW(directory, L"~Tr", 0, name) == 0) {
    return {};
  }
  if (CopyFileW(Wide(verbatim), name, FALSE)) return FromWide(name);
  DeleteFileW(name);
  return {};
}

}  // namespace

ShortName::ShortName(const Text& name) : name_(name) {
  if (name.size() < MAX_PATH) return;
  const Text verbatim = VerbatimName(name);
  name_ = AliasOf(verbatim);
  if (!name_.empty()) return;
  name_ = CopyOf(verbatim);
  copy_ = !name_.empty();
}

ShortName::~ShortName() {
  if (!copy_) return;
  SetFileAttributesW(Wide(name_), FILE_ATTRIBUTE_NORMAL);
  DeleteFileW(Wide(name_));
}

}  // namespace trovex
