// The internal file |TOPIC: the text of all topics.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Apps/trovex-aide/Book.h"

namespace trovex::aide {

struct TopicFile {
  std::string bytes;                // whole blocks of 4 KB
  std::vector<uint32_t> addresses;  // of each topic: its block * 32768 + characters before it there
};

TopicFile BuildTopics(const Book& book);

}  // namespace trovex::aide
