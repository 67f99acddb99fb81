#include "Ui/Form.h"

#include <algorithm>

#include "Ui/Captioned.h"
#include "Ui/ControlFactory.h"
#include "Ui/Line.h"

namespace trovex {
namespace {

std::vector<Form*>& Loaded() {
  static std::vector<Form*> forms;
  return forms;
}

// A line's place is where its ends are.
Place PlaceOf(const Control& control) {
  if (control.Kind() != ControlKind::kLine) return control.GetPlace();
  const auto& line = static_cast<const Line&>(control);
  return {line.X1(), line.Y1(), line.X2() - line.X1(), line.Y2() - line.Y1()};
}

void Put(Control& control, const Place& place) {
  if (control.Kind() != ControlKind::kLine) return control.Move(place);
  static_cast<Line&>(control).SetPoints(place.left, place.top, place.left + place.width,
                                        place.top + place.height);
}

}  // namespace

const std::vector<Form*>& LoadedForms() {
  return Loaded();
}

Form::Form(const FormSpec& spec)
    : Control(ControlKind::kForm), spec_(spec), caption_(spec.caption), sizable_(spec.sizable) {
  SetName(spec.name, -1);
  SetBackColor(spec.back_color);
  place_ = {0, 0, spec.client_width + kWindowFrame.width, spec.client_height + kWindowFrame.height};
  SetVisible(false);
  if (spec.help != kNoText) BindHelpLine(*this, Words(spec)(spec.help));
  for (const ControlSpec& control : spec.controls) Add(control);
}

Form::~Form() {
  if (Loaded()) {
    view_->Detach(*this);
    std::erase(trovex::Loaded(), this);
  }
}

void Form::Add(const ControlSpec& spec) {
  const Words words(spec_);
  const ControlTraits& traits = spec.traits;
  std::unique_ptr<Control> control = CreateControl(spec, words);
  control->SetParent(this);
  if (traits.container != nullptr) {
    control->SetContainer(Find(traits.container));
    control->SetPage(traits.page);
  }
  if (traits.help != kNoText) BindHelpLine(*control, words(traits.help) + words(traits.help_end));
  controls_.push_back(std::move(control));
}

// A button takes the focus, so that the highlight follows the mouse.
void Form::BindHelpLine(Control& control, const Text& text) {
  control.on_mouse_move = [this, &control, text] {
    if (control.Kind() == ControlKind::kButton) control.SetFocus();
    if (on_help_line) on_help_line(text);
  };
}

void Form::Adopt(std::unique_ptr<Control> control, const Text& name) {
  control->SetName(name, -1);
  control->SetParent(this);
  controls_.push_back(std::move(control));
}

MenuEntry& Form::AddMenuEntry(Text caption) {
  menu_entries_.push_back(std::make_unique<MenuEntry>(*this, std::move(caption)));
  MenuChanged();
  return *menu_entries_.back();
}

Control* Form::Find(TextView name, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
    return control->Index() == index && control->Name() == name;
  });
  return found == controls_.end() ? nullptr : found->get();
}

void Form::SetCaption(TextView caption) {
  Set(caption_, Text(caption), Property::kText);
}

void Form::Resize(double width, double height) {
  if (width == Width() && height == Height()) return;
  Move({Left(), Top(), width, height});
  AlignStatusBars();
  Raise(on_resize);
}

void Form::ArrangeControls(int page, const std::function<void(Control&)>& placed) {
  std::vector<Place> places;
  for (std::size_t row = 0; row < spec_.controls.size(); ++row) {
    places.push_back(PlaceOf(*controls_[row]));
  }
  Arrange(spec_.controls, places, {ScaleWidth(), ScaleHeight()}, page,
          [&](const Placement& placement) {
            Control& control = *controls_[placement.row];
            Put(control, placement.place);
            if (placed) placed(control);
          });
}

void Form::AlignStatusBars() {
  for (const auto& control : controls_) {
    if (control->Kind() != ControlKind::kStatusBar) continue;
    control->Move({0, ScaleHeight() - control->Height(), ScaleWidth(), control->Height()});
  }
}

void Form::Load() {
  if (Loaded()) return;
  view_ = &CurrentView();
  trovex::Loaded().push_back(this);
  view_->Attach(*this);
  WriteCaptions();
  Raise(on_load);
}

void Form::WriteCaptions() {
  const Words words(spec_);
  if (spec_.caption_text != kNoText) SetCaption(words(spec_.caption_text));
  for (const ControlSpec& row : spec_.controls) {
    if (row.traits.caption == kNoText) continue;
    Get<Captioned>(row.name, row.index).SetCaption(words(row.traits.caption));
  }
}

void Form::Show() {
  Load();
  if (Visible()) return;
  SetVisible(true);
  Activate();
}

void Form::ShowModal() {
  Load();
  view_->RunModal(*this);
}

void Form::Hide() {
  SetVisible(false);
}

void Form::Close() {
  if (on_close) return on_close();
  if (on_key_press) return on_key_press(kKeyEscape);
  Unload();
}

void Form::Unload() {
  if (!Loaded()) return;
  if (!unloading_) {
    unloading_ = true;
    Raise(on_unload);
    unloading_ = false;
    if (!Loaded()) return;  // the event unloaded it already
  }
  SetVisible(false);
  view_->Detach(*this);
  view_ = nullptr;
  std::erase(trovex::Loaded(), this);
}

}  // namespace trovex
