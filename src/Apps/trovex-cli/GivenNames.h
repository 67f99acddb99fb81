// The files of the command line, as the user named them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Platform/Text.h"

namespace trovex::cli {

class GivenNames {
 public:
  // `name` is the program's for what the user calls `argument`, with an extension of its own where
  // the user gave none.
  void Add(const Text& name, const std::string& argument);

  // The text with the user's names in the place of the program's. Files made beside one that was
  // given ("x_donnees.htm" beside "x.htm") are named likewise.
  Text PutInto(Text text) const;

 private:
  std::vector<std::pair<Text, Text>> stems_;  // names without their extensions
};

}  // namespace trovex::cli
