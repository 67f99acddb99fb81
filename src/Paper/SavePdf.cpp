#include "Paper/SavePdf.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Paper/PdfFile.h"
#include "Platform/NewFile.h"
#include "Resources/Strings.h"

namespace trovex {
bool SavePdf(const Pages& pages, const Text& file) {
  try {
    NewFile output(CurrentPlatform(), file);
    WritePdf(pages, [&](std::string_view bytes) { output.Write(bytes); });
    output.Keep();
    return true;
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurPdf) + file);
    return false;
  }
}

}  // namespace trovex
