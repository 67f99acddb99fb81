#include "Scanner/TextLines.h"

#include "Lib/FichesUnicode.h"
#include "Lib/FileNumbers.h"
#include "Lib/LIB_FILE.h"
#include "Platform/Encoding.h"
#include "Resources/Strings.h"
#include "Scanner/VersionRecord.h"
#include "Scanner/WideRecord.h"

namespace trovex {

TextLines::~TextLines() {
  Rewind();
}

Text TextLines::Line(std::size_t number, std::size_t longest) {
  if (file_.IsBlank()) return {};
  Known& line = lines_[number];
  try {
    if (!line.whole && line.text.size() < longest) Read(number, longest);
    return line.text.substr(0, longest);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    file_.NoteUnread();
    Rewind();
    MessageErreurFichier(file_.Name(), kCodeOuverture);
  }
  return {};
}

void TextLines::Read(std::size_t number, std::size_t longest) {
  if (place_ > number) Rewind();
  if (open_ == -1) open_ = iOuvreLecture(file_);
  if (open_ == -1) return;
  while (place_ < number) PassLine();
  Known& line = lines_[number];
  const std::size_t wanted = longest - line.text.size();
  const Text more = AtEnd(open_) ? Text() : LineStart(open_, wanted);
  line.text += more;
  line.whole = more.size() < wanted;
}

// What is left of a line that is not wanted is not kept.
void TextLines::PassLine() {
  if (!AtEnd(open_)) LineInput(open_, 0);
  ++place_;
}

void TextLines::Rewind() {
  IgnoringErrors([&] { CloseFile(open_); });
  open_ = -1;
  lines_ = {};
  place_ = 0;
}

Text vNomProduit(std::string_view record) {
  constexpr std::size_t kOffset = 12;  // the key, its NUL and no padding
  const auto value = BehindKey(record, "ProductName", kOffset);
  if (value) return FromCp1252(*value);
  const auto wide = bFichesUnicode() ? ValueInWideRecord(record, "ProductName") : std::nullopt;
  return wide ? *wide : ResString(StringId::kPasDeNomProduit);
}

}  // namespace trovex
