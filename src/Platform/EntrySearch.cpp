#include "Platform/EntrySearch.h"

#include "Platform/Pattern.h"

namespace trovex {

EntrySearch::EntrySearch(std::shared_ptr<const DirectoryEntries> entries, TextView pattern,
                         Dots dots)
    : entries_(std::move(entries)),
      pattern_(pattern),
      all_(pattern == u"*" || pattern == u"*.*"),
      dots_(dots == Dots::kFirst ? 2 : 0) {}

bool EntrySearch::Advance(FindData& data) {
  while (dots_ > 0) {
    const TextView name = dots_-- == 2 ? u"." : u"..";
    if (!Matches(name)) continue;
    data.attributes = kAttributeDirectory;
    data.name = name;
    return true;
  }
  ListedEntry entry;
  while (entries_->Next(place_, entry)) {
    if (!Matches(entry.name)) continue;
    data.attributes = entry.attributes;
    data.name = entry.name;
    return true;
  }
  return false;
}

bool EntrySearch::Matches(TextView name) const {
  return all_ || MatchesPattern(name, pattern_);
}

}  // namespace trovex
