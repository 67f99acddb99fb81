#include "Apps/trovex-aide/Names.h"

namespace trovex::aide {
namespace {

uint32_t Worth(char unit) {
  if (unit == '0') return 10;
  if (unit >= '1' && unit <= '9') return static_cast<uint32_t>(unit - '0');
  if (unit >= 'a' && unit <= 'z') return static_cast<uint32_t>(unit - 'a') + 17;
  if (unit == '.') return 12;
  if (unit == '_') return 13;
  return 0;
}

}  // namespace

int32_t NameHash(std::string_view name) {
  uint32_t hash = 0;
  for (const char unit : name) {
    const uint32_t worth = Worth(unit);
    if (worth != 0) hash = hash * 43 + worth;
  }
  return static_cast<int32_t>(hash);
}

}  // namespace trovex::aide
