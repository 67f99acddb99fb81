#include "Lib/LIB_BUSY.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

constexpr ControlSpec kControls[] = {
    {ControlKind::kStatusBar, u"PanelAide", -1, {0, 0, 3000, 300}}};
constexpr FormSpec kForm = {u"Fenetre", u"", 3000, 3000, false, 0, kControls};

class BusyTest : public LibTest {
 protected:
  BusyTest() : form(kForm), bar(form.Get<StatusBar>(u"PanelAide")) {
    bar.AddPanel(u"Msg", StatusBar::PanelStyle::kText);
    form.Load();
    RegisterPanelAide(&bar);
  }
  ~BusyTest() override { RegisterPanelAide(nullptr); }

  const Text& Line() const { return bar.PanelText(u"Msg"); }

  Form form;
  StatusBar& bar;
};

// --- MainMsg ------------------------------------------------------------------------------------

TEST_F(BusyTest, ANewTextIsWrittenAndPaintedAtOnce) {
  view.on_repaint = [this](Control&) { EXPECT_EQ(Line(), u"Aide"); };
  MainMsg(u"Aide");
  EXPECT_EQ(Line(), u"Aide");
  EXPECT_EQ(view.Repaints(bar), 1);
}

TEST_F(BusyTest, TheTextAlreadyShownIsNotPaintedAgain) {
  MainMsg(u"Aide");
  MainMsg(u"Aide");
  EXPECT_EQ(view.Repaints(bar), 1);
  MainMsg(u"aide");
  EXPECT_EQ(view.Repaints(bar), 2);
}

TEST_F(BusyTest, AnEmptyTextOnAnEmptyLinePaintsNothing) {
  MainMsg(u"");
  EXPECT_EQ(view.Repaints(bar), 0);
}

TEST_F(BusyTest, ABarWithoutThePanelIsReported) {
  StatusBar bare;
  RegisterPanelAide(&bare);
  ExpectBox();
  MainMsg(u"Aide");
  EXPECT_EQ(LastBox(), u"Error in MainMsg()\r\n\r\nError #340 by StatusBar\r\n" +
                           ErrorDescription(ErrorNumber::kNoSuchElement));
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kErreur);
}

TEST_F(BusyTest, WithoutABarTheTextGoesNowhere) {
  RegisterPanelAide(nullptr);
  BusyOn();
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  EXPECT_EQ(Line(), u"");
}

// --- BusyOn and BusyOff -------------------------------------------------------------------------

TEST_F(BusyTest, BusyShowsTheHourglassAndTheUsualText) {
  BusyOn();
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  EXPECT_EQ(static_cast<int>(Pointer::kHourglass), 11);
  EXPECT_EQ(Line(), u"Traitement en cours, patientez s.v.p");
}

TEST_F(BusyTest, BusyTakesATextEvenAnEmptyOne) {
  BusyOn(u"Patientez");
  EXPECT_EQ(Line(), u"Patientez");
  BusyOn(u"");
  EXPECT_EQ(Line(), u"");
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
}

TEST_F(BusyTest, TheEndGivesTheDefaultPointerAndAnEmptyLine) {
  BusyOn();
  BusyOff();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Line(), u"");
}

TEST_F(BusyTest, OneEndEndsAnyNumber) {
  BusyOn();
  BusyOn(u"Encore");
  BusyOff();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Line(), u"");
}

TEST_F(BusyTest, ABoxInBetweenLeavesThePointerToTheNextBusyOnOrBusyOff) {
  BusyOn();
  ExpectBox();
  MessageInfo(u"Fait");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Line(), u"Traitement en cours, patientez s.v.p");
  BusyOn();
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
}

}  // namespace
}  // namespace trovex::test
