#include "Platform/Pattern.h"

#include <algorithm>

namespace trovex {
namespace {

bool EqualsUnit(char16_t unit, char16_t wanted) {
  return wanted == u'?' || unit == wanted || ToUpper(unit) == ToUpper(wanted);
}

// What stands behind the last * has one place where it can match, the name's end: most names fail
// there, at the first look.
bool EndMatches(TextView name, TextView pattern) {
  if (name.empty() || pattern.empty()) return true;  // for the whole comparison to judge
  if (pattern.back() != u'*' && !EqualsUnit(name.back(), pattern.back())) return false;
  const std::size_t star = pattern.rfind(u'*');
  if (star == TextView::npos) return name.size() == pattern.size();
  const TextView end = pattern.substr(star + 1);
  if (name.size() < end.size()) return false;
  return std::equal(end.rbegin(), end.rend(), name.rbegin(),
                    [](char16_t wanted, char16_t unit) { return EqualsUnit(unit, wanted); });
}

bool Matches(TextView name, TextView pattern) {
  if (!EndMatches(name, pattern)) return false;
  std::size_t n = 0, p = 0;
  std::size_t star = TextView::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == u'*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() && EqualsUnit(name[n], pattern[p])) {
      ++p;
      ++n;
    } else if (star != TextView::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == u'*') ++p;
  return p == pattern.size();
}

}  // namespace

bool MatchesPattern(TextView name, TextView pattern) {
  if (Matches(name, pattern)) return true;
  const bool any_extension = pattern.ends_with(u".*");
  return any_extension && name.find(u'.') == TextView::npos &&
         Matches(name, pattern.substr(0, pattern.size() - 2));
}

NamePattern::NamePattern(TextView pattern) : kind_(Kind::kOther), text_(pattern) {
  if (pattern == u"*" || pattern == u"*.*") {
    kind_ = Kind::kAll;
  } else if (pattern.size() > 1 && pattern.front() == u'*' && !HasWildcard(pattern.substr(1))) {
    kind_ = Kind::kEnd;
    text_ = ToUpper(pattern.substr(1));
  }
}

bool NamePattern::MatchesWhole(TextView name) const {
  if (kind_ == Kind::kAll) return true;
  if (kind_ == Kind::kOther) return MatchesPattern(name, text_);
  return name.size() >= text_.size() &&
         std::equal(text_.rbegin(), text_.rend(), name.rbegin(),
                    [](char16_t end, char16_t unit) { return end == ToUpper(unit); });
}

bool HasWildcard(TextView pattern) {
  return std::any_of(pattern.begin(), pattern.end(),
                     [](char16_t unit) { return unit == u'*' || unit == u'?'; });
}

}  // namespace trovex
