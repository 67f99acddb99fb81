#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

DWORD StyleOf(const TextBox& box) {
  DWORD style = WS_TABSTOP;
  if (box.MultiLine()) {
    style |= ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL | WS_VSCROLL | WS_HSCROLL;
  } else {
    style |= ES_AUTOHSCROLL;
  }
  if (box.Locked()) style |= ES_READONLY;
  if (box.GetAlignment() == Alignment::kCentre) style |= ES_CENTER;
  return style;
}

Text TextOf(HWND window) {
  Text text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
  const int length = GetWindowTextW(window, Wide(text), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace

TextBoxWindow::TextBoxWindow(TextBox& model, FormWindow& form)
    : NativeControl(model, form), box_(model), background_(nullptr) {
  Create(L"EDIT", StyleOf(model), WS_EX_CLIENTEDGE);
  Send(EM_SETLIMITTEXT);
  MirrorProperty(Property::kColour);
  Flush();
}

TextBoxWindow::~TextBoxWindow() {
  if (background_ != nullptr) DeleteObject(background_);
}

void TextBoxWindow::MirrorProperty(Property property) {
  if (property == Property::kColour) {
    if (background_ != nullptr) DeleteObject(background_);
    background_ = CreateSolidBrush(GetShared().colours.Field(box_.BackColor()));
    InvalidateRect(Handle(), nullptr, TRUE);
  }
  if (property == Property::kText && !typing_) {
    stale_ = true;
    Owner().RequestFlush();
  }
}

void TextBoxWindow::Recolour() {
  MirrorProperty(Property::kColour);
}

void TextBoxWindow::Flush() {
  if (!stale_) return;
  stale_ = false;
  SetWindowTextW(Handle(), Wide(box_.GetText()));
  // What replaced the text under the user's hands is typed on at its end.
  const auto end = static_cast<WPARAM>(box_.GetText().size());
  if (GetFocus() == Handle() && !box_.Locked()) Send(EM_SETSEL, end, static_cast<LPARAM>(end));
}

void TextBoxWindow::OnCommand(WORD code) {
  // Where another window has taken it, the focus comes back.
  const bool left = code == EN_KILLFOCUS && IsChild(Owner().Handle(), GetFocus());
  if (left) Owner().Run(box_.on_lost_focus);
  // What the window shows of the model is no typing.
  if (code != EN_CHANGE || stale_ || box_.Locked()) return;
  const Text typed = TextOf(Handle());
  if (typed == box_.GetText()) return;
  // The window shows it already; written again it would put the caret to its beginning.
  typing_ = true;
  Owner().Run([&] { box_.SetText(typed); });
  typing_ = false;
  if (box_.GetText() != typed) MirrorProperty(Property::kText);
}

bool TextBoxWindow::OnKey(WPARAM key) {
  // Older systems do it for texts of one line alone.
  if (key == 'A' && ControlHeld()) {
    Send(EM_SETSEL, 0, -1);
    return true;
  }
  if (key != VK_RETURN || !box_.on_enter) return false;
  Owner().Run(box_.on_enter);
  return true;
}

HBRUSH TextBoxWindow::OnColour(HDC dc) {
  const Colours& colours = GetShared().colours;
  SetBkColor(dc, colours.Field(box_.BackColor()));
  SetTextColor(dc, colours.FieldText(box_.ForeColor()));
  return background_;
}

}  // namespace trovex::win32
