// The texts of the preview window, in its two languages.
#pragma once

#include "Ui/Preview.h"

namespace trovex {

extern const PreviewTexts kFrenchPreview;
extern const PreviewTexts kEnglishPreview;

}  // namespace trovex
