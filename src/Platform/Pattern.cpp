#include "Platform/Pattern.h"

namespace trovex {
namespace {

bool Matches(TextView name, TextView pattern) {
  std::size_t n = 0, p = 0;
  std::size_t star = TextView::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == u'*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() &&
               (pattern[p] == u'?' || ToUpper(pattern[p]) == ToUpper(name[n]))) {
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

bool HasWildcard(TextView pattern) { return pattern.find_first_of(u"*?") != TextView::npos; }

}  // namespace trovex
