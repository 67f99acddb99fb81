// A window of the program: controls built from a table, and the events of its life.
#pragma once

#include <memory>
#include <vector>

#include "Ui/FormSpec.h"
#include "Ui/MenuEntry.h"

namespace trovex {

// Twips that a window's frame adds to its client area.
inline constexpr Extent kWindowFrame = {120, 420};

class Form : public Control {
 public:
  explicit Form(const FormSpec& spec);
  ~Form() override;

  const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
  // The control of that name (and number); null if there is none of that kind.
  Control* Find(TextView name, int index = -1) const;
  // The same for a control that the form's table is known to hold.
  template <typename T>
  T& Get(TextView name, int index = -1) const {
    Control* control = Find(name, index);
    if (T* typed = dynamic_cast<T*>(control)) return *typed;
    throw RuntimeError(ErrorNumber::kNoSuchElement, Name());
  }

  // Takes a control that the form's table does not hold; it goes with the form.
  void Adopt(std::unique_ptr<Control> control, const Text& name);

  // Adds an entry to the menu of the form's window, behind those of the system and those added
  // before. It goes with the form.
  MenuEntry& AddMenuEntry(Text caption);
  const std::vector<std::unique_ptr<MenuEntry>>& MenuEntries() const { return menu_entries_; }
  // An entry tells its form so.
  void MenuChanged() { Notify(Property::kMenu); }

  const Text& Caption() const { return caption_; }
  void SetCaption(TextView caption);
  bool Sizable() const { return sizable_; }

  // The client area; outer size less the frame.
  double ScaleWidth() const { return Width() - kWindowFrame.width; }
  double ScaleHeight() const { return Height() - kWindowFrame.height; }
  bool Minimised() const { return minimised_; }
  void SetMinimised(bool minimised) { minimised_ = minimised; }
  // A new outer size, by the program or the user: raises the resize event if it differs.
  void Resize(double width, double height);

  // Puts the controls where the anchors of the table want them in the present client area. `page`
  // is the one in front of controls with pages; `placed` is called behind each step.
  void ArrangeControls(int page, const std::function<void(Control&)>& placed = {});

  // Life: the load event runs once before the first showing. Show raises the activation; Unload
  // raises the unload event and takes the form from the screen and the list of loaded forms; called
  // again by that event it does so at once.
  bool Loaded() const { return view_ != nullptr; }
  void Load();
  void Show();
  // Runs until the form is hidden or unloaded.
  void ShowModal();
  void Hide();
  void Unload();
  // What the window's close box does: the main window is unloaded, a dialog's own way out is taken
  // where it has one.
  void Close();
  Event on_close;
  // The form takes the foreground.
  void Activate() { Raise(on_activate); }

  View* GetView() const { return view_; }

  // What stands on the drives may be another than before: a device came or went, or the user comes
  // back to the form, who may have changed a disc meanwhile.
  Event on_drives_changed;

  // The mouse moves over a control that has a help line, or over the form itself.
  std::function<void(const Text& text)> on_help_line;

  Event on_load;
  Event on_activate;
  Event on_resize;
  Event on_paint;
  Event on_unload;
  // Files that the user dropped on the form, as full names. A form without this takes none.
  std::function<void(const std::vector<Text>& files)> on_drop_files;
  // The session of the system ends, and the program with it as soon as this is done.
  Event on_session_end;
  // Esc, and Enter where the control that has the focus has no use for it.
  std::function<void(int key)> on_key_press;
  std::function<void(int key)> on_key_down;

 protected:
  View* AttachedView() const override { return view_; }

 private:
  void Add(const ControlSpec& spec);
  // The captions by number are those of the language in which the form is loaded.
  void WriteCaptions();
  void BindHelpLine(Control& control, const Text& text);
  // A status bar keeps to the lower edge by itself.
  void AlignStatusBars();

  const FormSpec& spec_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<std::unique_ptr<MenuEntry>> menu_entries_;
  Text caption_;
  bool sizable_;
  bool minimised_ = false;
  bool unloading_ = false;
  View* view_ = nullptr;
};

// The loaded forms, in the order of their loading.
const std::vector<Form*>& LoadedForms();

// Key codes that forms and controls are told of.
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeyF1 = 112;

}  // namespace trovex
