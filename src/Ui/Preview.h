// What a view needs to show a document's pages and to print them.
#pragma once

#include <functional>

#include "Ui/Pages.h"

namespace trovex {

// The texts of the preview window, in the language of the document. An ampersand stands before the
// letter that presses a button.
struct PreviewTexts {
  Text caption;
  Text first, previous, next, last;
  Text one_page, two_pages, fit_page, fit_width;
  Text print, save, close;
  Text page, of;  // "Page 2 sur 7"
  Text no_printer, not_printed;
  Text printing, cancel;  // the box of a running job
};

struct Preview {
  const Pages& pages;
  bool whole;        // false where a document has more than its pages can hold
  Text application;  // whose caption the window bears
  const PreviewTexts& texts;
  // Lets the user choose a file and saves the document there as PDF.
  std::function<void()> on_save;
  // Tells the user what failed.
  std::function<void(const Text&)> on_failure;
};

}  // namespace trovex
