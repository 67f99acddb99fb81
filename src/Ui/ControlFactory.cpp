#include "Ui/ControlFactory.h"

#include "Ui/Button.h"
#include "Ui/Captioned.h"
#include "Ui/CheckBox.h"
#include "Ui/CommonDialog.h"
#include "Ui/DirListBox.h"
#include "Ui/DriveListBox.h"
#include "Ui/FileListBox.h"
#include "Ui/Grid.h"
#include "Ui/Label.h"
#include "Ui/Line.h"
#include "Ui/ListBox.h"
#include "Ui/OptionButton.h"
#include "Ui/Picture.h"
#include "Ui/ScrollBar.h"
#include "Ui/StatusBar.h"
#include "Ui/TabControl.h"
#include "Ui/TextBox.h"

namespace trovex {
namespace {

std::unique_ptr<Control> Create(ControlKind kind) {
  switch (kind) {
    case ControlKind::kForm:
      break;  // a form stands on no form
    case ControlKind::kGrid:
      return std::make_unique<Grid>();
    case ControlKind::kButton:
      return std::make_unique<Button>();
    case ControlKind::kLabel:
      return std::make_unique<Label>();
    case ControlKind::kTextBox:
      return std::make_unique<TextBox>();
    case ControlKind::kListBox:
      return std::make_unique<ListBox>();
    case ControlKind::kDriveListBox:
      return std::make_unique<DriveListBox>();
    case ControlKind::kDirListBox:
      return std::make_unique<DirListBox>();
    case ControlKind::kFileListBox:
      return std::make_unique<FileListBox>();
    case ControlKind::kPictureBox:
      return std::make_unique<PictureBox>();
    case ControlKind::kImage:
      return std::make_unique<Image>();
    case ControlKind::kTabControl:
      return std::make_unique<TabControl>();
    case ControlKind::kLine:
      return std::make_unique<Line>();
    case ControlKind::kShape:
      return std::make_unique<Shape>();
    case ControlKind::kStatusBar:
      return std::make_unique<StatusBar>();
    case ControlKind::kOptionButton:
      return std::make_unique<OptionButton>();
    case ControlKind::kCheckBox:
      return std::make_unique<CheckBox>();
    case ControlKind::kScrollBar:
      return std::make_unique<ScrollBar>();
    case ControlKind::kPanel:
      return std::make_unique<Panel>();
    case ControlKind::kFrame:
      return std::make_unique<Frame>();
    case ControlKind::kCommonDialog:
      return std::make_unique<CommonDialog>();
    case ControlKind::kPreviewSurface:
      break;  // made by its module, which adopts it into a form
  }
  throw RuntimeError(ErrorNumber::kInvalidCall, u"CreateControl");
}

}  // namespace

std::unique_ptr<Control> CreateControl(const ControlSpec& spec) {
  std::unique_ptr<Control> control = Create(spec.kind);
  control->SetName(spec.name, spec.index);
  control->Move(spec.place);
  control->SetVisible(spec.visible);
  if (auto* captioned = dynamic_cast<Captioned*>(control.get()))
    captioned->SetCaption(spec.caption);
  if (auto* line = dynamic_cast<Line*>(control.get())) {
    line->SetPoints(spec.place.left, spec.place.top, spec.place.left + spec.place.width,
                    spec.place.top + spec.place.height);
  }
  return control;
}

}  // namespace trovex
