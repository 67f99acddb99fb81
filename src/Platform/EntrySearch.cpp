#include "Platform/EntrySearch.h"

namespace trovex {

EntrySearch::EntrySearch(std::shared_ptr<const DirectoryEntries> entries, TextView pattern,
                         Dots dots)
    : entries_(std::move(entries)), pattern_(pattern), dots_(dots == Dots::kFirst ? 2 : 0) {}

bool EntrySearch::Advance(FindData& data) {
  while (dots_ > 0) {
    const TextView name = dots_-- == 2 ? u"." : u"..";
    if (!pattern_.Matches(name)) continue;
    data.attributes = kAttributeDirectory;
    data.name = name;
    return true;
  }
  ListedEntry entry;
  while (entries_->Next(place_, entry)) {
    if (!pattern_.Matches(entry.name)) continue;
    data.attributes = entry.attributes;
    data.name = entry.name;
    return true;
  }
  return false;
}

}  // namespace trovex
