// The windows of the control kinds, one source file a kind.
#pragma once

#include "Ui/Button.h"
#include "Ui/CheckBox.h"
#include "Ui/DirListBox.h"
#include "Ui/DriveListBox.h"
#include "Ui/Grid.h"
#include "Ui/Label.h"
#include "Ui/ListBox.h"
#include "Ui/OptionButton.h"
#include "Ui/Picture.h"
#include "Ui/ScrollBar.h"
#include "Ui/StatusBar.h"
#include "Ui/TabControl.h"
#include "Ui/TextBox.h"
#include "Ui/Win32/NativeControl.h"

// Behind Windows.h, whose types it needs.
#include <commctrl.h>

namespace trovex::win32 {

// Three-dimensional, picture over caption, a dark frame around the one with the focus.
class ButtonWindow : public NativeControl {
 public:
  ButtonWindow(Button& model, FormWindow& form);
  void OnCommand(WORD code) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;
  bool OnKey(WPARAM key) override;

 protected:
  void MirrorProperty(Property property) override;
  Font ModelFont() const override { return button_.GetFont(); }

 private:
  void DrawFace(HDC dc, const RECT& area, bool disabled);
  void DrawPicture(HDC dc, int left, int top, int size, bool disabled);
  void DrawCaption(HDC dc, RECT area, bool disabled);
  int CaptionHeight(HDC dc);

  Button& button_;
};

class LabelWindow : public NativeControl {
 public:
  LabelWindow(Label& model, FormWindow& form);
  bool TakesFocus() const override { return false; }
  HBRUSH OnColour(HDC dc) override;

 protected:
  void MirrorProperty(Property property) override;
  Font ModelFont() const override { return label_.GetFont(); }
  RECT Rectangle() const override;

 private:
  Label& label_;
};

// A line of text in a sunken frame.
class PanelWindow : public NativeControl {
 public:
  PanelWindow(Panel& model, FormWindow& form);
  bool TakesFocus() const override { return false; }
  void OnDraw(const DRAWITEMSTRUCT& item) override;

 protected:
  void MirrorProperty(Property property) override;
  Font ModelFont() const override { return panel_.GetFont(); }

 private:
  Panel& panel_;
};

class OptionWindow : public NativeControl {
 public:
  OptionWindow(OptionButton& model, FormWindow& form);
  void OnCommand(WORD code) override;
  // The arrow keys choose the next one of the group, round and round.
  bool OnKey(WPARAM key) override;
  HBRUSH OnColour(HDC dc) override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  void Choose();

  OptionButton& option_;
};

class CheckWindow : public NativeControl {
 public:
  CheckWindow(CheckBox& model, FormWindow& form);
  void OnCommand(WORD code) override;
  HBRUSH OnColour(HDC dc) override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  CheckBox& box_;
};

class ScrollWindow : public NativeControl {
 public:
  ScrollWindow(ScrollBar& model, FormWindow& form);
  void OnScroll(WORD code) override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  ScrollBar& bar_;
};

// The text is shown when the program comes to rest: what grows line by line is shown once.
class TextBoxWindow : public NativeControl {
 public:
  TextBoxWindow(TextBox& model, FormWindow& form);
  ~TextBoxWindow() override;
  void Flush() override;
  void Recolour() override;
  void OnCommand(WORD code) override;
  HBRUSH OnColour(HDC dc) override;
  bool OnKey(WPARAM key) override;

 protected:
  void MirrorProperty(Property property) override;
  Font ModelFont() const override { return box_.GetFont(); }

 private:
  TextBox& box_;
  HBRUSH background_ = nullptr;
  bool stale_ = true;
  bool typing_ = false;
};

class ListBoxWindow : public NativeControl {
 public:
  ListBoxWindow(ListBox& model, FormWindow& form);
  void Flush() override;
  void OnCommand(WORD code) override;
  bool OnKey(WPARAM key) override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  ListBox& list_;
  bool stale_ = true;
};

// The path's parents, the path and its children, with folder pictures.
class DirListWindow : public NativeControl {
 public:
  DirListWindow(DirListBox& model, FormWindow& form);
  void OnCommand(WORD code) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;
  bool OnKey(WPARAM key) override;
  void Rescale() override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  int ModelIndex(int item) const { return item - 1 - list_.Depth(); }
  int ItemOf(int model_index) const { return model_index + 1 + list_.Depth(); }
  int ItemHeight() const;

  DirListBox& list_;
};

// A drop-down list with drive pictures and volume labels.
class DriveListWindow : public NativeControl {
 public:
  DriveListWindow(DriveListBox& model, FormWindow& form);
  void OnCommand(WORD code) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;
  void Rescale() override;

 protected:
  void MirrorProperty(Property property) override;
  RECT Rectangle() const override;

 private:
  DriveListBox& list_;
  bool taken_ = false;  // an entry of the list that is dropped down
};

// A picture at its own size in the corner.
class PictureWindow : public NativeControl {
 public:
  PictureWindow(PictureBox& model, FormWindow& form);
  bool TakesFocus() const override { return false; }
  void OnDraw(const DRAWITEMSTRUCT& item) override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  PictureBox& box_;
  OwnedIcon icon_;
};

class TabWindow : public NativeControl {
 public:
  TabWindow(TabControl& model, FormWindow& form);
  ~TabWindow() override;
  bool OnNotify(NMHDR& header, LRESULT& result) override;
  void Rescale() override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  void LoadPictures();

  TabControl& tabs_;
  HIMAGELIST pictures_ = nullptr;
};

class StatusBarWindow : public NativeControl {
 public:
  StatusBarWindow(StatusBar& model, FormWindow& form);
  bool TakesFocus() const override { return false; }
  void Flush() override;
  void Rescale() override;

 protected:
  void MirrorProperty(Property property) override;

 private:
  StatusBar& bar_;
};

// A virtual list view: the rows stay in the model, a row is asked for when it is drawn.
class GridWindow : public NativeControl {
 public:
  GridWindow(Grid& model, FormWindow& form);
  void Flush() override;
  bool OnNotify(NMHDR& header, LRESULT& result) override;
  void OnPartNotify(const NMHDR& header) override;
  void OnInput(UINT message) override;
  bool OnKey(WPARAM key) override;
  void Rescale() override;
  void Recolour() override;

 protected:
  void MirrorProperty(Property property) override;
  Font ModelFont() const override { return grid_.GetFont(); }

 private:
  static LRESULT CALLBACK TitleRow(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                   DWORD_PTR data);
  void MakeColumns();
  void ShowColumns();
  void ShowSelection();
  void SetItemState(int item, UINT selection);
  void FillCell(NMLVDISPINFOW& info);
  LRESULT DrawHighlight(NMLVCUSTOMDRAW& draw);
  void OnSelected(int item);
  void OnClicked(int item);
  void OnActivated(int item);
  int FindItem(const NMLVFINDITEMW& wish) const;
  void CopyRow() const;
  void Choose(int item);

  Grid& grid_;
  bool stale_ = true;
  bool showing_columns_ = false;
  int selected_ = -1;         // the item that the window shows as selected, as far as is known
  bool pressed_ = false;      // by the mouse, rather than the keyboard, came what came last
  int chosen_by_press_ = -1;  // the item whose click is still to come
};

}  // namespace trovex::win32
