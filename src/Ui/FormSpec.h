// A form as data: what stands where, how it looks and what is said of it. The table holds no handle
// and no state.
#pragma once

#include <array>
#include <span>

#include "Ui/Anchor.h"
#include "Ui/Control.h"
#include "Ui/StatusBar.h"

namespace trovex {

// A number of the program's texts, which a folder above this one keeps.
enum class StringId : int;
inline constexpr StringId kNoText = StringId{-1};
inline constexpr StringId kEmptyText = StringId{-2};

struct FontSpec {
  const char16_t* name = u"";
  double size = 0;  // points
  bool bold = false;
};

struct TabSpec {
  const char16_t* caption;
  const char16_t* picture;
};

struct StatusPanelSpec {
  const char16_t* key;
  StatusBar::PanelStyle style;
};

// What a row says beyond class, name, place and caption; what does not concern a class of controls
// is passed over.
struct ControlTraits {
  // The control that this one stands in, and on which page of it; null for the form itself.
  const char16_t* container = nullptr;
  int page = 0;
  bool visible = true;
  bool enabled = true;
  // Place in the order of the Tab key; -1 behind all that have one.
  int tab = -1;

  // Caption by number, written when the form is loaded.
  StringId caption = kNoText;
  // What the help line shows under the mouse, and what is put behind it. A button with such a text,
  // be it empty, takes the focus from the mouse.
  StringId help = kNoText;
  StringId help_end = kNoText;
  StringId tool_tip = kNoText;
  // What a screen reader says where the control's own text does not tell.
  StringId spoken = kNoText;

  // A picture of the program's own.
  const char16_t* picture = u"";
  FontSpec font = {};
  Alignment alignment = Alignment::kLeft;
  unsigned fore_color = 0;
  unsigned back_color = 0xFFFFFF;

  const char16_t* text = u"";  // of a text box
  bool checked = false;
  bool locked = false;
  bool multi_line = false;
  bool sorted = false;
  std::span<const TabSpec> tabs = {};
  std::span<const StatusPanelSpec> panels = {};

  // How the control follows the form's size, see Ui/Anchor.h.
  std::array<Anchor, 2> anchors = {};
};

struct ControlSpec {
  ControlKind kind;
  const char16_t* name;
  int index;  // in its control array, -1 outside one
  Place place;
  const char16_t* caption = u"";
  ControlTraits traits = {};
};

struct FormSpec {
  const char16_t* name;
  const char16_t* caption;
  double client_width, client_height;  // twips
  bool sizable;
  unsigned back_color;
  std::span<const ControlSpec> controls;
  // Gives the text of a number, needed where a row names one.
  const Text& (*texts)(StringId) = nullptr;
  // Caption, written at loading, and help line of the form itself, by number.
  StringId caption_text = kNoText;
  StringId help = kNoText;
};

}  // namespace trovex
