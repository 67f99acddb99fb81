#include "support/Win32/DarkScheme.h"

#include <iterator>

namespace trovex::test {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255), kGrey = RGB(128, 128, 128),
                   kGreen = RGB(63, 242, 63), kCyan = RGB(26, 235, 255);

constexpr struct {
  int element;
  COLORREF colour;
} kScheme[] = {
    {COLOR_WINDOW, kBlack},       {COLOR_WINDOWTEXT, kWhite},    {COLOR_WINDOWFRAME, kWhite},
    {COLOR_BTNFACE, kBlack},      {COLOR_BTNTEXT, kWhite},       {COLOR_BTNSHADOW, kGrey},
    {COLOR_BTNHIGHLIGHT, kWhite}, {COLOR_3DLIGHT, kWhite},       {COLOR_3DDKSHADOW, kWhite},
    {COLOR_GRAYTEXT, kGreen},     {COLOR_HIGHLIGHT, kCyan},      {COLOR_HIGHLIGHTTEXT, kBlack},
    {COLOR_APPWORKSPACE, kBlack}, {COLOR_SCROLLBAR, kBlack},     {COLOR_INFOBK, kBlack},
    {COLOR_INFOTEXT, kWhite},     {COLOR_ACTIVECAPTION, kBlack}, {COLOR_CAPTIONTEXT, kWhite},
};

// Also tells the windows of all programs.
void Set(const std::vector<COLORREF>& colours) {
  std::vector<INT> elements;
  for (const auto& entry : kScheme) elements.push_back(entry.element);
  SetSysColors(static_cast<int>(elements.size()), elements.data(), colours.data());
}

}  // namespace

DarkScheme::DarkScheme() {
  std::vector<COLORREF> colours;
  for (const auto& entry : kScheme) {
    former_.push_back(GetSysColor(entry.element));
    colours.push_back(entry.colour);
  }
  Set(colours);
}

DarkScheme::~DarkScheme() {
  Set(former_);
}

}  // namespace trovex::test
