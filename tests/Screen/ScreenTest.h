// Ground of the main window's tests: a window of its own for each, over drive D:.
#pragma once

#include <algorithm>
#include <vector>

#include "Lib/LIB_BUSY.h"
#include "Platform/Encoding.h"
#include "Screen/LIB_GENERALE.h"
#include "Screen/MainForm.h"
#include "support/MachineTest.h"

namespace trovex::test {

// A window not yet loaded, and what a user does with it: pressing what cannot be pressed fails the
// test.
class MainWindowTest : public MachineTest {
 protected:
  ~MainWindowTest() override {
    // Leaves without the shut-down, which has tests of its own.
    form.on_unload = {};
    form.Unload();
    sFichierTemp.clear();
    SetEndOfProgram({});
  }

  void Press(Button& button) {
    ASSERT_TRUE(button.Visible() && button.Enabled()) << "the button cannot be pressed";
    button.Press();
  }

  // Looks at a directory and scans it.
  void Scan(const Text& directory = u"D:\\") {
    form.ListeRepertoire.SetPath(directory);
    Press(form.Explorer);
  }

  // A click on a row of the table on show.
  void ClickRow(int row) {
    Grid& grid = CurrentGrid();
    ASSERT_LT(row, grid.Rows());
    grid.SetRow(row);
    Raise(grid.on_click);
  }
  void DoubleClickRow(int row) {
    ClickRow(row);
    Raise(CurrentGrid().on_dbl_click);
  }

  // Brings an empty table to the front, writes its only row by hand and clicks on it.
  void Inspect(int table, const Text& directory, const Text& file, const Text& first = u"texte") {
    form.ZoneDesTableaux.SetTab(table);
    Grid& grid = form.GridLogiciel(table);
    const Text cells[] = {first, directory, file, u""};
    grid.SetRow(1);
    for (int col = 0; col < 4; ++col) {
      grid.SetCol(col);
      grid.SetText(cells[col]);
    }
    Raise(grid.on_click);
  }

  Grid& CurrentGrid() { return form.GridLogiciel(form.ZoneDesTableaux.Tab()); }
  const Text& Info(int index) { return form.TextInfo(index).GetText(); }
  const Text& Help() { return form.PanelAide.PanelText(u"Msg"); }
  const Text& Chosen() { return form.ListFichier.GetText(); }

  std::vector<Text> Companions() {
    std::vector<Text> names;
    for (int i = 0; i < form.ListFichier.ListCount(); ++i)
      names.push_back(form.ListFichier.List(i));
    return names;
  }
  void Choose(const Text& name) {
    const std::vector<Text> names = Companions();
    const auto found = std::find(names.begin(), names.end(), name);
    ASSERT_NE(found, names.end()) << "no such companion";
    form.ListFichier.SetListIndex(static_cast<int>(found - names.begin()));
  }

  // Which of the two panes is up: "text", "icon", "both" or "".
  std::string Pane() {
    const bool text = form.TextInfo(0).Visible(), icon = form.ImageSelect.Visible();
    EXPECT_EQ(form.LabelInfo(2).Visible(), text) << "the pane's caption goes with it";
    EXPECT_EQ(form.PrintTexte.Visible(), text) << "the pane's button goes with it";
    return text && icon ? "both" : text ? "text" : icon ? "icon" : "";
  }

  void Lines(std::string_view path, const std::vector<Text>& lines) {
    std::string bytes;
    for (const Text& line : lines) bytes += ToCp1252(line) + "\r\n";
    disc.File(path, bytes);
  }
  void Dos(std::string_view path) { disc.File(path, DosExecutable()); }
  void Program(std::string_view path, const VersionStrings& strings) {
    disc.File(path, NeExecutable(VersionBlock8(strings)));
  }

  MainForm form;
};

// A window that was loaded.
class ScreenTest : public MainWindowTest {
 protected:
  ScreenTest() { form.Load(); }
};

}  // namespace trovex::test
