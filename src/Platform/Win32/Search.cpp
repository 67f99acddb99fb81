#include "Platform/Win32/Search.h"

#include "Platform/Pattern.h"
#include "Platform/Win32/FirstEntry.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

// A junction or a symbolic link; Wine names no tag. Other tags mark files that are merely stored
// elsewhere (compressed, in a cloud) and are what they seem.
bool IsLink(const WIN32_FIND_DATAW& entry) {
  if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)) return false;
  return entry.dwReserved0 == 0 || IsReparseTagNameSurrogate(entry.dwReserved0);
}

}  // namespace

Search::Search(const Text& pattern) {
  const std::size_t end = pattern.find_last_of(u"\\/:");
  const std::size_t split = end == Text::npos ? 0 : end + 1;
  level_ = pattern.substr(split);
  if (level_.empty()) return;
  const Text directory = VerbatimName(split == 0 ? Text(u".") : pattern.substr(0, split));
  if (directory.empty()) return;
  root_ = IsRoot(directory);
  question_ = directory + (directory.ends_with(u'\\') ? u"" : u"\\") +
              (HasWildcard(level_) ? Text(u"*") : level_);
}

bool Search::Next(FindData& data) {
  if (Advance(data)) return true;
  // Nothing is held any more; why the search ended stays to be asked.
  const DWORD reason = GetLastError();
  handle_.reset();
  SetLastError(reason);
  return false;
}

bool Search::Advance(FindData& data) {
  WIN32_FIND_DATAW entry;
  for (;;) {
    if (!question_.empty()) {
      const Unredirected unredirected;
      handle_ = OwnFind(FirstEntry(Wide(question_), entry));
      question_.clear();
      if (!handle_) return false;
    } else if (!handle_) {
      return false;
    } else if (!FindNextFileW(handle_.get(), &entry)) {
      if (::GetLastError() == ERROR_NO_MORE_FILES) return false;
      throw RuntimeError(ErrorNumber::kDeviceIo);
    }
    if (!Accepts(&entry)) continue;
    data.attributes = entry.dwFileAttributes;
    data.name = FromWide(entry.cFileName);
    return true;
  }
}

// The system also matches by 8.3 alias; only what bears the name itself is accepted.
bool Search::Accepts(const void* found) const {
  const auto& entry = *static_cast<const WIN32_FIND_DATAW*>(found);
  const bool directory = entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
  if (directory && IsLink(entry)) return false;
  const Text name = FromWide(entry.cFileName);
  if (root_ && (name == u"." || name == u"..")) return false;
  return HasWildcard(level_) ? MatchesPattern(name, level_) : EqualsNoCase(name, level_);
}

}  // namespace trovex
