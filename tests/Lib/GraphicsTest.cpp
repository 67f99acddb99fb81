#include "Lib/Graphics.h"

#include "Lib/Lib_SelectDlg.h"
#include "Ui/Colour.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

constexpr unsigned kShadow = 0x80000010, kLight = 0x80000014;

class GraphicsTest : public LogicTest {
 protected:
  GraphicsTest() { form.Load(); }

  Lib_SelectDlg form;
};

TEST_F(GraphicsTest, AFormIsCentredByHalvesOfTwips) {
  view.SetScreenSize({12000, 9001});
  form.Resize(5401, 2000);
  CenterForm(form);
  EXPECT_EQ(form.Left(), 3299.5);
  EXPECT_EQ(form.Top(), 3500.5);
}

TEST_F(GraphicsTest, AFormLargerThanTheScreenGetsANegativePlace) {
  view.SetScreenSize({9600, 7200});
  form.Resize(11025, 7830);
  CenterForm(form);
  EXPECT_EQ(form.Left(), -712.5);
  EXPECT_EQ(form.Top(), -315);
}

TEST_F(GraphicsTest, AVerticalLineIsTwoThinOnes) {
  TraceLigne3D(form, 100, 200, 1000, false);
  EXPECT_THAT(view.Strokes(), ElementsAre(Stroke{110, 200, 110, 1200, kShadow},
                                          Stroke{120, 200, 120, 1200, kLight}));
}

TEST_F(GraphicsTest, AHorizontalLineIsTwoThinOnes) {
  TraceLigne3D(form, 100, 200, 1000, true);
  EXPECT_THAT(view.Strokes(), ElementsAre(Stroke{100, 200, 1100, 200, kShadow},
                                          Stroke{1105, 220, 95, 220, kLight}));
}

TEST_F(GraphicsTest, ALineOfTheFormMarksThePlace) {
  Line line;
  line.SetPoints(10, 20, 300, 400);
  TraceLigneVerticale3D(form, line);
  TraceLigneHorizontale3D(form, line);
  EXPECT_THAT(view.Strokes(),
              ElementsAre(Stroke{20, 20, 20, 400, kShadow}, Stroke{30, 20, 30, 400, kLight},
                          Stroke{10, 20, 300, 20, kShadow}, Stroke{305, 40, 5, 40, kLight}));
}

class ScreenlessView : public HeadlessView {
 public:
  Extent ScreenSize() override { throw RuntimeError(ErrorNumber::kInvalidCall); }
};

TEST_F(GraphicsTest, AnErrorWhileCentringIsReported) {
  ScreenlessView screenless;
  ViewScope scope(screenless);
  CenterForm(form);
  ASSERT_EQ(screenless.Boxes().size(), 1u);
  EXPECT_TRUE(screenless.Boxes()[0].text.starts_with(u"la fct CenterForm()\r\n\r\nError #5"));
}

}  // namespace
}  // namespace trovex::test
