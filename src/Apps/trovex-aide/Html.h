// The help as HTML pages.
#pragma once

#include <map>
#include <string>

#include "Apps/trovex-aide/Book.h"

namespace trovex::aide {

// File names and their contents (UTF-8): index.html is the first topic, NAME.html each other one,
// mots-cles.html the keywords. The same book gives the same pages.
std::map<std::string, std::string> BuildPages(const Book& book);

// The same pages, and which of them each keyword leads to, as the C++ source of
// Resources/HelpPages.h.
std::string BuildPagesSource(const Book& book);

// File name of a topic's page.
std::string PageOf(const Book& book, const std::string& topic);

}  // namespace trovex::aide
