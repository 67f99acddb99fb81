// The program's help as pages in the browser, for systems that have no help engine.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// Name of the page that tells of a topic: of that name, or with that keyword, without regard to
// case; the contents page for an empty topic and for one that nobody knows.
Text sPageAide(const Text& sSujet);

// Writes the pages, which the program carries, into a directory beside the temporary files and
// opens the topic's. A box says so where they cannot be written.
void AffichePageAide(const Text& sSujet);

}  // namespace trovex
