// Boxes and dialogs of the system's own.
#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/CommonDialog.h"
#include "Ui/Win32/Win32View.h"

// Behind Windows.h, whose types it needs.
#include <commdlg.h>

namespace trovex::win32 {
namespace {

constexpr std::size_t kLongestName = 32768;  // characters

BoxAnswer AnswerOf(int button) {
  switch (button) {
    case IDYES:
      return BoxAnswer::kYes;
    case IDNO:
      return BoxAnswer::kNo;
    case IDOK:
      return BoxAnswer::kOk;
    default:
      return BoxAnswer::kCancel;
  }
}

// "Caption|pattern|..." as the system wants it: NULs between, two at the end.
Text NativeFilter(Text filter) {
  std::replace(filter.begin(), filter.end(), u'|', u'\0');
  return filter + Text(2, u'\0');
}

}  // namespace

BoxAnswer Win32View::ShowBox(const Box& box) {
  // A key pressed before the box is no answer to it.
  if (ignoring_ > 0) DropInput();
  return AnswerOf(MessageBoxW(Owner(), Wide(box.text), Wide(box.title),
                              static_cast<UINT>(box.style) | MB_SETFOREGROUND));
}

bool Win32View::ShowFileDialog(CommonDialog& dialog) {
  const Text filter = NativeFilter(dialog.filter);
  // The system adds the extension without its point.
  const Text extension =
      dialog.default_extension.substr(dialog.default_extension.starts_with(u'.'));
  Text name = dialog.file_name.substr(0, kLongestName - 1);
  // A pattern says which files to show, which the filter does already. Left in the field it is a
  // name that no file can bear: the dialog would not close on it.
  if (name.find_first_of(u"*?") != Text::npos) name.clear();
  name.resize(kLongestName);
  OPENFILENAMEW open = {};
  open.lStructSize = sizeof open;
  open.hwndOwner = Owner();
  open.lpstrFilter = Wide(filter);
  open.lpstrFile = Wide(name);
  open.nMaxFile = static_cast<DWORD>(kLongestName);
  open.lpstrTitle = Wide(dialog.title);
  open.lpstrDefExt = Wide(extension);
  open.Flags = dialog.flags | OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
  const bool saves = dialog.mode == CommonDialog::Mode::kSave;
  if (!(saves ? GetSaveFileNameW(&open) : GetOpenFileNameW(&open))) return false;
  dialog.file_name = name.substr(0, name.find(u'\0'));
  return true;
}

void Win32View::ShowHelp(CommonDialog& dialog) {
  const HWND owner = Owner();
  const auto key = reinterpret_cast<ULONG_PTR>(Wide(dialog.help_key));
  if (dialog.help_command == HELP_KEY) {
    WinHelpW(owner, Wide(dialog.help_file), HELP_KEY, key);
  } else {
    WinHelpW(owner, Wide(dialog.help_file), HELP_FINDER, 0);
  }
}

}  // namespace trovex::win32
