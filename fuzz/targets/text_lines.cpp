// The lines of text files. An input is the longest line that is wanted, a byte, and the file.
#include "Lib/LIB_FILE.h"
#include "Platform/Encoding.h"
#include "Scanner/TextLines.h"
#include "support/MemoryDisc.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr std::size_t kPiece = 4096;  // of a file's bytes, read at a time
const Text kFile = u"D:\\README.TXT";

// The lines as the format says them: they end at CR LF, CR or LF, and a last one without end
// counts unless it is empty.
std::vector<std::string_view> LinesOf(std::string_view file) {
  std::vector<std::string_view> lines;
  while (!file.empty()) {
    const std::size_t end = std::min(file.find_first_of("\r\n"), file.size());
    lines.push_back(file.substr(0, end));
    file.remove_prefix(end);
    file.remove_prefix(file.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, file.size()));
  }
  return lines;
}

Text Line(const std::vector<std::string_view>& lines, std::size_t index, std::size_t longest) {
  return index < lines.size() ? FromCp1252(lines[index].substr(0, longest)) : Text();
}

Text Joined(const std::vector<std::string_view>& lines, std::size_t most) {
  Text text;
  for (std::size_t i = 0; i < std::min(most, lines.size()); ++i) {
    if (i > 0) text += u"\r\n";
    text += FromCp1252(lines[i]);
  }
  return text;
}

// One reader of both lines, asked for more and for less of them in turn.
void TryOnce(const std::vector<std::string_view>& lines, std::size_t longest) {
  TextLines once(kFile);
  for (std::size_t cut : {longest, kLongestLine, longest}) {
    Promise(once.sPremiereLigne(cut) == Line(lines, 0, cut), "the first line, cut anew");
    Promise(once.sDeuxiemeLigne(cut) == Line(lines, 1, cut), "the second line, cut anew");
  }
}

}  // namespace

void Try(std::string_view input) {
  constexpr std::size_t kLimited = 301;
  MemoryDisc disc;
  const std::size_t longest = input.empty() ? 0 : static_cast<unsigned char>(input[0]);
  input.remove_prefix(input.empty() ? 0 : 1);
  disc.files[ToUpper(kFile)] = input;
  const std::vector<std::string_view> lines = LinesOf(input);

  Promise(TextLines(kFile).sPremiereLigne() == Line(lines, 0, kLongestLine), "the first line");
  Promise(TextLines(kFile).sDeuxiemeLigne() == Line(lines, 1, kLongestLine), "the second line");
  disc.bytes_read = 0;
  Promise(TextLines(kFile).sPremiereLigne(longest) == Line(lines, 0, longest),
          "a line's beginning");
  Promise(disc.bytes_read <= longest + kPiece, "nothing is read behind what is wanted");
  Promise(TextLines(kFile).sDeuxiemeLigne(longest) == Line(lines, 1, longest),
          "the second line's beginning");
  TryOnce(lines, longest);
  TextBox box;
  ChargeTexte(kFile, box);
  Promise(box.GetText() == Joined(lines, lines.size()), "a text box holds all lines");
  TextBox limited;
  ChargeTexte(kFile, limited, true);
  Promise(limited.GetText() == Joined(lines, kLimited), "a limited box holds the first lines");
  Promise(!disc.HasOpenFiles(), "every file is closed");
  Promise(disc.view.Boxes().empty(), "a file that can be read raises no box");
}

void Seeds(const TakeSeed& take) {
  take("ends", "\x10Un\r\nDeux\rTrois\n\nCinq");
  take("empty-lines", std::string("\xFF\r\n\n\r\r\n"));
  take("one-line", "\x05Sans fin de ligne");
  take("nul", std::string("\x20\0a\0\r\nb", 8));
  std::string many = "\x40";
  for (int line = 0; line < 305; ++line) many += "l\r\n";
  take("many", many);
  take("at-the-piece", "\x80" + std::string(4095, 'x') + "\r\nsuite");
}

}  // namespace trovex::fuzz
