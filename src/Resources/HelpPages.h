// The help's pages, which the program carries. trovex-aide makes the source of src/Aide.
#pragma once

#include <span>
#include <string_view>

#include "Platform/Text.h"

namespace trovex {

struct HelpPage {
  std::string_view name;   // of its file, "index.html"
  std::string_view bytes;  // UTF-8
};

// A keyword and the name of the page that tells of it. One keyword may lead to several pages.
struct HelpKeyword {
  TextView text;
  std::string_view page;
};

std::span<const HelpPage> HelpPages();
std::span<const HelpKeyword> HelpKeywords();

}  // namespace trovex
