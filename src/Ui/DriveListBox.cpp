#include "Ui/FileListBox.h"

namespace trovex {
namespace {

Text EntryOf(char16_t letter) {
  const Text root = {letter, u':', u'\\'};
  const Text label = CurrentPlatform().GetVolumeLabel(root);
  const Text drive = {ToLower(letter), u':'};
  return label.empty() ? drive : drive + u" [" + label + u"]";
}

}  // namespace

void DriveListBox::Reread() {
  drives_.clear();
  list_index_ = -1;
  const std::uint32_t mask = CurrentPlatform().GetLogicalDrives();
  for (char16_t bit = 0; bit < 26; ++bit) {
    if ((mask >> bit & 1u) != 0) drives_.push_back(EntryOf(static_cast<char16_t>(u'A' + bit)));
  }
  Notify(Property::kList);
  const Text current = CurrentPlatform().GetCurrentDirectory();
  for (int i = 0; i < ListCount() && !current.empty(); ++i) {
    if (ToUpper(List(i)[0]) == ToUpper(current[0])) list_index_ = i;
  }
  Notify(Property::kSelection);
}

const Text& DriveListBox::List(int index) const {
  static const Text none;
  return index >= 0 && index < ListCount() ? drives_[static_cast<std::size_t>(index)] : none;
}

void DriveListBox::SetListIndex(int index) {
  if (index < 0 || index >= ListCount()) {
    throw RuntimeError(ErrorNumber::kInvalidProperty, u"DriveListBox");
  }
  if (index == list_index_) return;
  list_index_ = index;
  Notify(Property::kSelection);
  Raise(on_change);
}

void DriveListBox::SetDrive(TextView drive) {
  for (int i = 0; i < ListCount() && !drive.empty(); ++i) {
    if (ToUpper(List(i)[0]) == ToUpper(drive[0])) return SetListIndex(i);
  }
  throw RuntimeError(ErrorNumber::kDeviceUnavailable, u"DriveListBox");
}

}  // namespace trovex
