#include "Platform/EntryNames.h"

#include <algorithm>

namespace trovex {

int CompareNoCase(TextView a, TextView b) {
  const std::size_t size = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < size; ++i) {
    const char16_t x = ToUpper(a[i]), y = ToUpper(b[i]);
    if (x != y) return x < y ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

Text NumberedName(TextView name, unsigned number) {
  const std::size_t point = name.rfind(u'.');
  const std::size_t stem = point == TextView::npos || point == 0 ? name.size() : point;
  return Text(name.substr(0, stem)) + u'~' + Decimal(number) + Text(name.substr(stem));
}

}  // namespace trovex
