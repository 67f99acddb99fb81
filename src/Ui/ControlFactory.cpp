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

Font FontOf(const FontSpec& spec) {
  return {spec.name, spec.size, spec.bold};
}

template <typename Kind, typename Action>
void IfA(Control& control, Action action) {
  if (auto* typed = dynamic_cast<Kind*>(&control)) action(*typed);
}

// What every class of controls has.
void Dress(Control& control, const ControlTraits& traits, const Words& words) {
  control.SetVisible(traits.visible);
  control.SetEnabled(traits.enabled);
  control.SetTabOrder(traits.tab);
  control.SetToolTip(words(traits.tool_tip));
  control.SetAccessibleName(words(traits.spoken));
  control.SetFont(FontOf(traits.font));
  control.SetAlignment(traits.alignment);
  control.SetForeColor(traits.fore_color);
  control.SetBackColor(traits.back_color);
}

std::vector<Text> Each(std::span<const TabSpec> tabs, const char16_t* TabSpec::*text) {
  std::vector<Text> result;
  for (const TabSpec& tab : tabs) result.emplace_back(tab.*text);
  return result;
}

// What one class has.
void DressKind(Control& control, const ControlSpec& spec) {
  const ControlTraits& traits = spec.traits;
  IfA<Captioned>(control, [&](Captioned& captioned) { captioned.SetCaption(spec.caption); });
  IfA<Button>(control, [&](Button& button) { button.SetPicture(traits.picture); });
  IfA<CheckBox>(control, [&](CheckBox& box) { box.Preset(traits.checked); });
  IfA<OptionButton>(control, [&](OptionButton& option) { option.Preset(traits.checked); });
  IfA<Image>(control, [&](Image& image) {
    if (*traits.picture != 0) image.SetPicture({Picture::Source::kResource, traits.picture});
  });
  IfA<ListBox>(control, [&](ListBox& list) { list.SetSorted(traits.sorted); });
  IfA<TextBox>(control, [&](TextBox& box) {
    box.SetLocked(traits.locked);
    box.SetMultiLine(traits.multi_line);
    box.SetText(traits.text);
  });
  IfA<TabControl>(control, [&](TabControl& tabs) {
    tabs.SetCaptions(Each(traits.tabs, &TabSpec::caption));
    tabs.SetPictures(Each(traits.tabs, &TabSpec::picture));
  });
  IfA<StatusBar>(control, [&](StatusBar& bar) {
    for (const StatusPanelSpec& panel : traits.panels) bar.AddPanel(panel.key, panel.style);
  });
}

}  // namespace

Text Words::operator()(StringId id) const {
  return id == kNoText || id == kEmptyText ? Text() : texts_(id);
}

std::unique_ptr<Control> CreateControl(const ControlSpec& spec, const Words& words) {
  std::unique_ptr<Control> control = Create(spec.kind);
  control->SetName(spec.name, spec.index);
  control->Move(spec.place);
  Dress(*control, spec.traits, words);
  DressKind(*control, spec);
  IfA<Line>(*control, [&](Line& line) {
    const Place& place = spec.place;
    line.SetPoints(place.left, place.top, place.left + place.width, place.top + place.height);
  });
  return control;
}

}  // namespace trovex
