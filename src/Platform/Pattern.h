// Name patterns of directory searches and file lists.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// True if `name` matches `pattern`: * any run of characters, ? one character, without regard to
// case. A pattern that ends in ".*" also matches a name without a point that matches what stands
// before the ".*". Long names only, no 8.3 aliases. Linear in the product of the lengths.
bool MatchesPattern(TextView name, TextView pattern);

// A pattern that many names are held against.
class NamePattern {
 public:
  explicit NamePattern(TextView pattern);
  // As MatchesPattern.
  bool Matches(TextView name) const {
    // Most names are none of what a list shows: a last character of another kind tells.
    if (kind_ == Kind::kEnd && (name.empty() || ToUpper(name.back()) != text_.back())) return false;
    return MatchesWhole(name);
  }

 private:
  enum class Kind { kAll, kEnd, kOther };

  bool MatchesWhole(TextView name) const;

  Kind kind_;
  Text text_;  // the pattern; of a kEnd ("*.exe") the upper-cased end
};

// True if the pattern holds * or ?.
bool HasWildcard(TextView pattern);

}  // namespace trovex
