#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class LabelWindowTest : public ViewTest {
 protected:
  Label& label = ShowOne<Label>(ControlKind::kLabel, {1500, 300, 600, 195});
};

TEST_F(LabelWindowTest, ShowsItsCaption) {
  EXPECT_EQ(Shown(label), u"Texte");
  label.SetCaption(u"Copyright & Cie :");
  EXPECT_EQ(Shown(label), u"Copyright & Cie :");
}

TEST_F(LabelWindowTest, GrowsWithATextThatItsPlaceCannotHold) {
  label.SetCaption(u"Affichage des fichiers ASCII :");
  const RECT at = PlaceOf(label);
  EXPECT_EQ(at.left, 100);
  EXPECT_GT(at.right, 140);
}

TEST_F(LabelWindowTest, GrowsToTheLeftWhereItIsAlignedToTheRight) {
  label.SetAlignment(Alignment::kRight);
  label.SetCaption(u"Société de distribution :");
  const RECT at = PlaceOf(label);
  EXPECT_LT(at.left, 100);
  EXPECT_EQ(at.right, 140);
}

TEST_F(LabelWindowTest, TheTabKeyPassesIt) {
  EXPECT_FALSE(view.Of(TheForm())->Of(label)->TakesFocus());
}

class PictureWindowTest : public ViewTest {
 protected:
  PictureWindowTest() { box.SetBackColor(0xFFFFFF); }

  // Pixels of the box that are not its background.
  int Drawn() {
    UpdateWindow(Handle(box));
    const HDC dc = GetDC(Handle(box));
    int drawn = 0;
    for (int y = 0; y < 36; ++y) {
      for (int x = 0; x < 36; ++x) drawn += GetPixel(dc, x, y) != 0xFFFFFF;
    }
    ReleaseDC(Handle(box), dc);
    return drawn;
  }

  PictureBox& box = ShowOne<PictureBox>(ControlKind::kPictureBox, {150, 150, 540, 540});
};

TEST_F(PictureWindowTest, ShowsAPictureOfTheProgramsOwnAndNoneAfterwards) {
  EXPECT_EQ(Drawn(), 0);
  box.SetPicture({Picture::Source::kResource, u"Trovex", 0});
  EXPECT_GT(Drawn(), 200);
  box.SetPicture({});
  EXPECT_EQ(Drawn(), 0);
}

TEST_F(PictureWindowTest, ShowsTheIconInsideAFile) {
  Text system(MAX_PATH, u'\0');
  system.resize(GetModuleFileNameW(nullptr, Wide(system), MAX_PATH));
  box.SetPicture({Picture::Source::kIconOf, system, 0});
  EXPECT_GT(Drawn(), 200);
}

TEST_F(PictureWindowTest, ACorruptOrMissingPictureShowsNothing) {
  disc.File("corrompu.ico", std::string("\0\0\1\0\1\0\x20\x20\0\0\1\0\x20\0\xFF\xFF\xFF\x7F", 18));
  disc.File("texte.ico", "ceci n'est pas une icône");
  disc.File("vide.ico");
  for (const char16_t* name :
       {u"D:\\corrompu.ico", u"D:\\texte.ico", u"D:\\vide.ico", u"D:\\nul"}) {
    box.SetPicture({Picture::Source::kFile, name, 0});
    EXPECT_EQ(Drawn(), 0);
    box.SetPicture({Picture::Source::kIconOf, name, 7});
    EXPECT_EQ(Drawn(), 0);
  }
}

}  // namespace
}  // namespace trovex::win32
