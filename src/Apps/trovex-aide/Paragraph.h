// Paragraphs as the help file stores them: texts, and commands that stand between them.
#pragma once

#include <string>

#include "Apps/trovex-aide/Book.h"

namespace trovex::aide {

// `format` holds sizes, the data of the paragraph and its commands; `texts` a NUL-terminated text
// for each command, to be shown before the command is obeyed.
struct Paragraph {
  std::string format;
  std::string texts;
};

Paragraph TitleParagraph(TextView title);
Paragraph BlockParagraph(const Block& block);

}  // namespace trovex::aide
