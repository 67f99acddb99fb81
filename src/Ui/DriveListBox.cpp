#include "Ui/DriveListBox.h"

#include "Platform/Platform.h"

namespace trovex {
namespace {

Text Root(char16_t letter) {
  return {letter, u':', u'\\'};
}

bool AnswersAtOnce(char16_t letter) {
  const DriveType type = CurrentPlatform().GetDriveType(Root(letter));
  return type == DriveType::kFixed || type == DriveType::kCdRom || type == DriveType::kRamDisk;
}

Text EntryOf(char16_t letter, bool chosen) {
  const Text drive = {ToLower(letter), u':'};
  if (!chosen && !AnswersAtOnce(letter)) return drive;
  const Text label = CurrentPlatform().GetVolumeLabel(Root(letter));
  return label.empty() ? drive : drive + u" [" + label + u"]";
}

}  // namespace

void DriveListBox::ReadDrives() {
  std::vector<Text> drives;
  const std::uint32_t mask = CurrentPlatform().GetLogicalDrives();
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    if ((mask >> (letter - u'A') & 1u) == 0) continue;
    drives.push_back(EntryOf(letter, letter == chosen_));
  }
  // A list that is dropped down is not drawn anew for nothing.
  if (drives == drives_) return;
  drives_ = std::move(drives);
  list_index_ = -1;
  Notify(Property::kList);
}

int DriveListBox::IndexOf(char16_t letter) const {
  for (int i = 0; i < ListCount(); ++i) {
    if (ToUpper(List(i)[0]) == ToUpper(letter)) return i;
  }
  return -1;
}

void DriveListBox::Reread() {
  chosen_ = 0;
  ReadDrives();
  const Text current = CurrentPlatform().GetCurrentDirectory();
  list_index_ = current.empty() ? -1 : IndexOf(current[0]);
  selected_ = Drive().empty() ? u'\0' : Drive()[0];
  Notify(Property::kSelection);
}

void DriveListBox::Update() {
  ReadDrives();
  const int index = IndexOf(selected_);
  if (index == list_index_) return;
  list_index_ = index;
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
  selected_ = chosen_ = ToUpper(List(index)[0]);
  Notify(Property::kSelection);
  Raise(on_change);
}

void DriveListBox::Choose(int index) {
  if (index != list_index_) return SetListIndex(index);
  chosen_ = ToUpper(List(index)[0]);
  Raise(on_again);
}

void DriveListBox::SetDrive(TextView drive) {
  const int index = drive.empty() ? -1 : IndexOf(drive[0]);
  if (index < 0) throw RuntimeError(ErrorNumber::kDeviceUnavailable, u"DriveListBox");
  SetListIndex(index);
}

}  // namespace trovex
