// Name patterns of directory searches and file lists.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// True if `name` matches `pattern`: * any run of characters, ? one character, without regard to
// case. A pattern that ends in ".*" also matches a name without a point that matches what stands
// before the ".*". Long names only, no 8.3 aliases. Linear in the product of the lengths.
bool MatchesPattern(TextView name, TextView pattern);

// True if the pattern holds * or ?.
bool HasWildcard(TextView pattern);

}  // namespace trovex
