#include "Ui/Win32/Fonts.h"

#include "Platform/Win32/Names.h"

namespace trovex::win32 {
namespace {

constexpr TextView kUsualName = u"Tahoma";
constexpr double kUsualSize = 8.25;

// What may stand in for a font that the system lacks.
DWORD FamilyOf(const Text& name) {
  if (name == u"Fixedsys") return FIXED_PITCH | FF_MODERN;
  return name == u"Times New Roman" ? VARIABLE_PITCH | FF_ROMAN : DEFAULT_PITCH;
}

}  // namespace

Fonts::~Fonts() {
  for (const auto& [key, font] : fonts_) DeleteObject(font);
}

HFONT Fonts::Get(const Font& font, Scale scale) {
  const Text name = font.name.empty() ? Text(kUsualName) : font.name;
  const double size = font.size > 0 ? font.size : kUsualSize;
  HFONT& handle = fonts_[{name, size, font.bold, font.italic, scale.dpi}];
  if (handle == nullptr) {
    // The old bitmap font does not scale and is not everywhere: any fixed-pitch font stands in.
    const Text drawn = name == u"Fixedsys" ? Text(u"Courier New") : name;
    handle =
        CreateFontW(-scale.Points(size), 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL,
                    font.italic ? TRUE : FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, FamilyOf(name), Wide(drawn));
  }
  return handle;
}

}  // namespace trovex::win32
