// The accented letters that pages write as entities (HTML 3.2, Latin-1 entity set).
#pragma once

#include <array>

#include "Platform/Text.h"

namespace trovex {

struct Entity {
  TextView character;
  TextView entity;
};

// In the order of their replacing.
extern const std::array<Entity, 62> kEntities;

}  // namespace trovex
