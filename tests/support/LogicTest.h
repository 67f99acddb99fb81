// Ground of the tests of the program's logic: a drive D:, a view without a screen, and the globals
// at rest before each test.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Lib/FichesUnicode.h"
#include "Lib/FileNumbers.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Ui/Form.h"
#include "Ui/Headless/HeadlessView.h"
#include "support/TestDisc.h"

namespace trovex::test {

// A box or dialog that no answer was queued for fails the test, and so does an answer that nobody
// asked for.
class LogicTest : public ::testing::Test {
 protected:
  LogicTest() : view_scope_(view) { Rest(); }
  ~LogicTest() override { Rest(); }

  void TearDown() override {
    EXPECT_THAT(view.Complaints(), ::testing::IsEmpty()) << "boxes or dialogs came unexpected";
    EXPECT_EQ(view.UnusedAnswers(), 0u) << "answers nobody asked for";
  }

  // Text of the last box, and how many came up.
  Text LastBox() const { return view.Boxes().empty() ? Text() : view.Boxes().back().text; }
  std::size_t BoxCount() const { return view.Boxes().size(); }

  TestDisc disc;
  HeadlessView view{HeadlessView::Unexpected::kReport};

 private:
  static void Rest() {
    while (!LoadedForms().empty()) LoadedForms().back()->Unload();
    CloseAllFiles();
    Err().Clear();
    sRepertoireTemp.clear();
    sDernierNomTemp.clear();
    sDernierFichierIni.clear();
    ChoisitFichesUnicode(false);
  }

  ViewScope view_scope_;
};

}  // namespace trovex::test
