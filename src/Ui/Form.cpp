#include "Ui/Form.h"

#include <algorithm>

#include "Ui/ControlFactory.h"

namespace trovex {
namespace {

std::vector<Form*>& Loaded() {
  static std::vector<Form*> forms;
  return forms;
}

}  // namespace

const std::vector<Form*>& LoadedForms() {
  return Loaded();
}

Form::Form(const FormSpec& spec)
    : Control(ControlKind::kForm), caption_(spec.caption), sizable_(spec.sizable) {
  SetName(spec.name, -1);
  SetBackColor(spec.back_color);
  place_ = {0, 0, spec.client_width + frame_.width, spec.client_height + frame_.height};
  SetVisible(false);
  for (const ControlSpec& control : spec.controls) Add(control);
}

Form::~Form() {
  if (Loaded()) {
    view_->Detach(*this);
    std::erase(trovex::Loaded(), this);
  }
}

void Form::Add(const ControlSpec& spec) {
  std::unique_ptr<Control> control = CreateControl(spec);
  control->SetParent(this);
  if (spec.container != nullptr) {
    control->SetContainer(Find(spec.container));
    control->SetPage(spec.page);
  }
  controls_.push_back(std::move(control));
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
  if (caption == caption_) return;
  caption_ = caption;
  Notify(Property::kText);
}

void Form::SetFrame(Extent frame) {
  const double client_width = ScaleWidth(), client_height = ScaleHeight();
  frame_ = frame;
  Resize(client_width + frame.width, client_height + frame.height);
}

void Form::Resize(double width, double height) {
  if (width == Width() && height == Height()) return;
  Move({Left(), Top(), width, height});
  AlignStatusBars();
  Raise(on_resize);
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
  Raise(on_load);
}

void Form::Show() {
  Load();
  if (Visible()) return;
  SetVisible(true);
  Activate();
}

void Form::ShowModal() {
  Show();
  if (Loaded() && Visible()) view_->RunModal(*this);
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
