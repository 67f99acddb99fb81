#include "Platform/Posix/FindTable.h"

#include "Platform/Pattern.h"

namespace trovex::posix {

std::uint32_t AttributesOf(EntryKind kind, TextView name) {
  std::uint32_t attributes = kind == EntryKind::kDirectory ? kAttributeDirectory : 0;
  if (IsHiddenName(name)) attributes |= kAttributeHidden;
  return attributes;
}

FindHandle FindTable::Begin(std::shared_ptr<const Listing> listing, TextView pattern, Dots dots,
                            FindData& data) {
  Search search;
  search.listing = std::move(listing);
  search.pattern = pattern;
  search.all = pattern == u"*" || pattern == u"*.*";
  search.dots = dots == Dots::kFirst ? 2 : 0;
  data = {};
  if (!Advance(search, data)) return FindHandle::kInvalid;
  const FindHandle handle = BeginSingle();
  searches_.emplace(handle, std::move(search));
  return handle;
}

bool FindTable::Next(FindHandle handle, FindData& data) {
  const auto found = searches_.find(handle);
  if (found == searches_.end()) return false;
  if (Advance(found->second, data)) return true;
  searches_.erase(found);
  return false;
}

bool FindTable::Advance(Search& search, FindData& data) {
  const auto matches = [&](TextView name) {
    return search.all || MatchesPattern(name, search.pattern);
  };
  while (search.dots > 0) {
    const TextView name = search.dots-- == 2 ? u"." : u"..";
    if (!matches(name)) continue;
    data.attributes = kAttributeDirectory;
    data.name = name;
    return true;
  }
  while (search.next < search.listing->Count()) {
    const DirectoryEntry entry = search.listing->At(search.next++);
    if (entry.kind == EntryKind::kOther || !matches(entry.name)) continue;
    data.attributes = AttributesOf(entry.kind, entry.name);
    data.name = entry.name;
    return true;
  }
  return false;
}

}  // namespace trovex::posix
