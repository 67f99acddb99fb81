#include "Ui/Win32/ControlWindows.h"

namespace trovex::win32 {

std::unique_ptr<NativeControl> CreateNativeControl(Control& model, FormWindow& form) {
  switch (model.Kind()) {
    case ControlKind::kGrid:
      return std::make_unique<GridWindow>(static_cast<Grid&>(model), form);
    case ControlKind::kButton:
      return std::make_unique<ButtonWindow>(static_cast<Button&>(model), form);
    case ControlKind::kLabel:
      return std::make_unique<LabelWindow>(static_cast<Label&>(model), form);
    case ControlKind::kPanel:
      return std::make_unique<PanelWindow>(static_cast<Panel&>(model), form);
    case ControlKind::kOptionButton:
      return std::make_unique<OptionWindow>(static_cast<OptionButton&>(model), form);
    case ControlKind::kCheckBox:
      return std::make_unique<CheckWindow>(static_cast<CheckBox&>(model), form);
    case ControlKind::kScrollBar:
      return std::make_unique<ScrollWindow>(static_cast<ScrollBar&>(model), form);
    case ControlKind::kTextBox:
      return std::make_unique<TextBoxWindow>(static_cast<TextBox&>(model), form);
    case ControlKind::kListBox:
      return std::make_unique<ListBoxWindow>(static_cast<ListBox&>(model), form);
    case ControlKind::kDriveListBox:
      return std::make_unique<DriveListWindow>(static_cast<DriveListBox&>(model), form);
    case ControlKind::kDirListBox:
      return std::make_unique<DirListWindow>(static_cast<DirListBox&>(model), form);
    case ControlKind::kPictureBox:
      return std::make_unique<PictureWindow>(static_cast<PictureBox&>(model), form);
    case ControlKind::kTabControl:
      return std::make_unique<TabWindow>(static_cast<TabControl&>(model), form);
    case ControlKind::kStatusBar:
      return std::make_unique<StatusBarWindow>(static_cast<StatusBar&>(model), form);
    case ControlKind::kForm:
    case ControlKind::kFileListBox:  // a tool of hidden forms
    case ControlKind::kFrame:
    case ControlKind::kImage:
    case ControlKind::kLine:
    case ControlKind::kShape:
    case ControlKind::kCommonDialog:
    case ControlKind::kPreviewSurface:
      break;
  }
  return nullptr;
}

}  // namespace trovex::win32
