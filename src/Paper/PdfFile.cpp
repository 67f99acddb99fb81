#include "Paper/PdfFile.h"

#include <cmath>
#include <string>

#include "Platform/Encoding.h"
#include "Resources/Version.h"
#include "Ui/FontWidths.h"

namespace trovex {
namespace {

constexpr double kTwipsPerPoint = 20;

// A measure to two decimals, or a colour's share of the whole.
std::string Number(double value) {
  const long long hundredths = std::llround(value * 100);
  std::string digits = std::to_string(std::llabs(hundredths));
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  digits.insert(digits.size() - 2, 1, '.');
  while (digits.back() == '0') digits.pop_back();
  if (digits.back() == '.') digits.pop_back();
  return (hundredths < 0 ? "-" : "") + digits;
}

std::string Numbers(std::initializer_list<double> values) {
  std::string text;
  for (const double value : values) text += Number(value) + ' ';
  return text;
}

std::string Colour(unsigned colour, const char* operation) {
  const auto share = [&](int shift) { return (colour >> shift & 0xFF) / 255.0; };
  return Numbers({share(0), share(8), share(16)}) + operation + '\n';
}

// A text between brackets. The five bytes that the encoding does not define are not drawn alike
// everywhere: they become question marks.
std::string Literal(TextView text) {
  constexpr std::string_view kUndefined = "\x81\x8D\x8F\x90\x9D";
  std::string literal = "(";
  for (const char byte : ToCp1252(text)) {
    if (byte == '(' || byte == ')' || byte == '\\') literal += '\\';
    literal += kUndefined.find(byte) == std::string_view::npos ? byte : '?';
  }
  return literal + ')';
}

// Any text, in UTF-16 with the byte order in front.
std::string HexText(TextView text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string hex = "<FEFF";
  for (const char16_t unit : text) {
    for (const int shift : {12, 8, 4, 0}) hex += kDigits[unit >> shift & 0xF];
  }
  return hex + '>';
}

const char* StandardFont(const Font& font) {
  constexpr const char* kNames[3][4] = {
      {"Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic"},
      {"Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
      {"Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique"}};
  const int style = (font.bold ? 1 : 0) + (font.italic ? 2 : 0);
  return kNames[static_cast<int>(FamilyOf(font))][style];
}

// What a page draws, in points from its lower left corner.
class Content {
 public:
  Content(const Pages& pages, const Page& page) : pages_(pages), page_(page) {}

  std::string Stream() {
    for (const PageImage& image : page_.images) Put(image);
    for (const PageLine& line : page_.lines) Put(line);
    stream_ += "BT\n";
    for (const PageText& text : page_.texts) Put(text);
    return std::move(stream_ += "ET\n");
  }

 private:
  static double X(double twips) { return twips / kTwipsPerPoint; }
  double Y(double twips) const { return (page_.paper.height - twips) / kTwipsPerPoint; }

  void Put(const PageImage& image) {
    stream_ += "q " +
               Numbers({X(image.size.width), 0, 0, X(image.size.height), X(image.x),
                        Y(image.y + image.size.height)}) +
               "cm /I" + std::to_string(image.bitmap) + " Do Q\n";
  }

  void Put(const PageLine& line) {
    if (first_line_ || line.colour != line_colour_) stream_ += Colour(line.colour, "RG");
    if (first_line_ || line.width != line_width_) stream_ += Numbers({X(line.width)}) + "w\n";
    first_line_ = false;
    line_colour_ = line.colour;
    line_width_ = line.width;
    stream_ +=
        Numbers({X(line.x1), Y(line.y1)}) + "m " + Numbers({X(line.x2), Y(line.y2)}) + "l S\n";
  }

  void Put(const PageText& text) {
    if (first_text_ || text.colour != text_colour_) stream_ += Colour(text.colour, "rg");
    if (first_text_ || text.font != text_font_) {
      stream_ +=
          "/F" + std::to_string(text.font) + ' ' + Numbers({pages_.fonts[text.font].size}) + "Tf\n";
    }
    first_text_ = false;
    text_colour_ = text.colour;
    text_font_ = text.font;
    stream_ += "1 0 0 1 " + Numbers({X(text.x), Y(text.baseline)}) + "Tm " +
               Literal(page_.LettersOf(text)) + " Tj\n";
  }

  const Pages& pages_;
  const Page& page_;
  std::string stream_;
  bool first_line_ = true, first_text_ = true;
  unsigned line_colour_ = 0, text_colour_ = 0;
  double line_width_ = 0;
  std::size_t text_font_ = 0;
};

// The objects of the file in the order of their numbers, and where each stands.
class PdfFile {
 public:
  PdfFile(const Pages& pages, const std::function<void(std::string_view)>& write)
      : pages_(pages), write_(write) {}

  void Write() {
    Put("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
    offsets_.resize(kFirstFree);
    Object(kCatalog, "<< /Type /Catalog /Pages " + Reference(kPageTree) + " >>");
    Object(kInfo, "<< /Title " + HexText(pages_.title) + " /Producer " + HexText(kTitle) + " >>");
    WriteFonts();
    WriteBitmaps();
    Object(kResources, "<< /Font << " + fonts_ + ">> /XObject << " + bitmaps_ + ">> >>");
    for (const Page& page : pages_.pages) WritePage(page);
    Object(kPageTree, "<< /Type /Pages /Count " + std::to_string(pages_.pages.size()) +
                          " /Kids [ " + kids_ + "] >>");
    WriteEnd();
  }

 private:
  // Numbers of the objects that there is one of.
  static constexpr std::size_t kCatalog = 1, kPageTree = 2, kInfo = 3, kResources = 4,
                               kFirstFree = 5;

  void Put(std::string_view bytes) {
    write_(bytes);
    size_ += bytes.size();
  }

  static std::string Reference(std::size_t number) { return std::to_string(number) + " 0 R"; }

  void Object(std::size_t number, std::string_view value) {
    offsets_[number] = size_;
    Put(std::to_string(number) + " 0 obj\n");
    Put(value);
    Put("\nendobj\n");
  }

  std::size_t NewObject(std::string_view value) {
    offsets_.push_back(0);
    Object(offsets_.size() - 1, value);
    return offsets_.size() - 1;
  }

  std::size_t NewStream(const std::string& entries, const std::string& bytes) {
    return NewObject("<< " + entries + "/Length " + std::to_string(bytes.size()) + " >>\nstream\n" +
                     bytes + "\nendstream");
  }

  void WriteFonts() {
    for (std::size_t i = 0; i < pages_.fonts.size(); ++i) {
      const std::size_t number =
          NewObject(std::string("<< /Type /Font /Subtype /Type1 /BaseFont /") +
                    StandardFont(pages_.fonts[i]) + " /Encoding /WinAnsiEncoding >>");
      fonts_ += "/F" + std::to_string(i) + ' ' + Reference(number) + ' ';
    }
  }

  void WriteBitmaps() {
    for (std::size_t i = 0; i < pages_.bitmaps.size(); ++i) {
      const Bitmap& bitmap = pages_.bitmaps[i];
      const std::size_t number = NewStream(
          "/Type /XObject /Subtype /Image /ColorSpace /DeviceRGB /BitsPerComponent 8 "
          "/Width " +
              std::to_string(bitmap.width) + " /Height " + std::to_string(bitmap.height) + ' ',
          bitmap.pixels);
      bitmaps_ += "/I" + std::to_string(i) + ' ' + Reference(number) + ' ';
    }
  }

  void WritePage(const Page& page) {
    const std::size_t content = NewStream("", Content(pages_, page).Stream());
    const std::size_t number = NewObject(
        "<< /Type /Page /Parent " + Reference(kPageTree) + " /MediaBox [ 0 0 " +
        Numbers({page.paper.width / kTwipsPerPoint, page.paper.height / kTwipsPerPoint}) +
        "] /Resources " + Reference(kResources) + " /Contents " + Reference(content) + " >>");
    kids_ += Reference(number) + ' ';
  }

  void WriteEnd() {
    const std::size_t start = size_;
    const std::string count = std::to_string(offsets_.size());
    Put("xref\n0 " + count + "\n0000000000 65535 f \n");
    for (std::size_t i = 1; i < offsets_.size(); ++i) {
      const std::string offset = std::to_string(offsets_[i]);
      Put(std::string(10 - offset.size(), '0') + offset + " 00000 n \n");
    }
    Put("trailer\n<< /Size " + count + " /Root " + Reference(kCatalog) + " /Info " +
        Reference(kInfo) + " >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n");
  }

  const Pages& pages_;
  const std::function<void(std::string_view)>& write_;
  std::size_t size_ = 0;
  std::vector<std::size_t> offsets_;  // by number
  std::string fonts_, bitmaps_, kids_;
};

}  // namespace

void WritePdf(const Pages& pages, const std::function<void(std::string_view)>& write) {
  PdfFile(pages, write).Write();
}

}  // namespace trovex
