// Disc images in the window: dropped, opened from its menu, looked at, and not started from.
#include "Screen/DiscImages.h"

#include "Image/DiscPlatform.h"
#include "ScreenTest.h"
#include "support/IsoBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DiscImagesTest : public ScreenTest {
 protected:
  DiscImagesTest() : discs_scope_(discs_), platform_scope_(discs_) {
    form.Show();
    IsoBuilder iso;
    iso.Label("GRENIER");
    iso.File("JEU/X.EXE", DosExecutable());
    iso.File("JEU/X.TXT", "Le jeu.\r\n");
    iso.File("JEU/X.BMP", "image");
    iso.File("JEU/X.HLP", "aide");
    iso.File("JEU/A.ZIP", ZipArchive(50));
    disc.File("disque.iso", iso.Build(IsoFormat::kJoliet).bytes);
    disc.File("rien.iso", std::string(50000, 'x'));
  }

  void Drop(const std::vector<Text>& files) { form.on_drop_files(files); }
  Text ChosenDrive() { return form.ListeDrive.Drive(); }

 private:
  DiscPlatform discs_{machine};
  DiscsScope discs_scope_;
  PlatformScope platform_scope_;
};

TEST_F(DiscImagesTest, AnImageDroppedBecomesTheNextFreeLetterWithItsLabel) {
  Drop({u"D:\\disque.iso"});
  EXPECT_EQ(ChosenDrive(), u"e: [GRENIER]");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"E:\\");
  EXPECT_EQ(form.ListeRepertoire.List(0), u"E:\\JEU");
  EXPECT_THAT(view.Boxes(), IsEmpty());
}

TEST_F(DiscImagesTest, ASecondOneTakesTheNextLetterAndTheFirstStays) {
  Drop({u"D:\\disque.iso"});
  Drop({u"D:\\disque.iso"});
  EXPECT_EQ(ChosenDrive(), u"f: [GRENIER]");
  form.ListeDrive.SetDrive(u"E");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"E:\\");
  form.ListeDrive.SetDrive(u"D");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
}

TEST_F(DiscImagesTest, SeveralFilesDroppedTogetherTakeALetterEach) {
  Drop({u"D:\\disque.iso", u"D:\\disque.iso"});
  EXPECT_EQ(ChosenDrive(), u"f: [GRENIER]");
}

TEST_F(DiscImagesTest, WhatIsNoImageGetsABox) {
  const Text before = ChosenDrive();
  for (int box = 0; box < 3; ++box) view.Answer(BoxAnswer::kOk);
  Drop({u"D:\\rien.iso"});
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kErreur);
  EXPECT_EQ(LastBox(),
            u"Ce fichier ne peut pas être ouvert comme une image de disque : D:\\rien.iso\r\n\r\n"
            u"Son contenu n'est pas celui d'une image de disque.");
  EXPECT_EQ(ChosenDrive(), before);
  disc.File("vide.iso");
  Drop({u"D:\\vide.iso"});
  EXPECT_TRUE(LastBox().ends_with(u"Le fichier est vide."));
  disc.File("d.cue", "FILE \"absent.bin\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n");
  Drop({u"D:\\d.cue"});
  EXPECT_TRUE(LastBox().ends_with(u"à côté de lui : absent.bin"));
}

TEST_F(DiscImagesTest, AnImageShorterThanItsDiscSaysSoInTheStatusLine) {
  IsoBuilder iso;
  iso.File("X.EXE", DosExecutable());
  BuiltIso built = iso.Build(IsoFormat::kPlain);
  Drop({u"D:\\disque.iso"});
  EXPECT_EQ(Help(), u"");
  built.Put(kPrimarySpace, 100000);
  disc.File("court.iso", built.bytes);
  Drop({u"D:\\court.iso"});
  EXPECT_EQ(Help(), u"L'image est plus courte que son disque.");
  EXPECT_EQ(ChosenDrive(), u"f: [DISQUE]");
}

TEST_F(DiscImagesTest, WithoutAFreeLetterABoxSaysSo) {
  for (char16_t letter = u'E'; letter <= u'Z'; ++letter) machine.drives.insert(Text{letter});
  view.Answer(BoxAnswer::kOk);
  Drop({u"D:\\disque.iso"});
  EXPECT_TRUE(LastBox().ends_with(u"Il n'y a plus de lettre de lecteur libre."));
}

TEST_F(DiscImagesTest, TheMenuOpensAnImageThroughTheFileDialog) {
  view.AnswerFile(u"D:\\disque.iso");
  form.OuvrirImage.Choose();
  EXPECT_EQ(ChosenDrive(), u"e: [GRENIER]");
  EXPECT_EQ(form.OuvrirImage.Caption(), u"Ou&vrir une image de disque...");
}

TEST_F(DiscImagesTest, ADialogThatIsCancelledOpensNothing) {
  const Text before = ChosenDrive();
  view.AnswerFile({});
  form.OuvrirImage.Choose();
  EXPECT_EQ(ChosenDrive(), before);
}

TEST_F(DiscImagesTest, AnImageIsScannedLikeAnyDrive) {
  Drop({u"D:\\disque.iso"});
  Press(form.Explorer);
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 1), u" E:\\Jeu");
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 2), u" X.exe");
  EXPECT_EQ(form.TextInfo(0).GetText(), u"Le jeu.");
}

TEST_F(DiscImagesTest, AProgramInsideAnImageShowsItsOwnIcon) {
  machine.SetClass(u".exe", u"exefile");
  machine.SetClass(u"exefile\\defaulticon", u"%1");
  IsoBuilder iso;
  iso.File("X.EXE", PeExecutable(VersionBlock8({}), Icon::kPresent));
  disc.File("icone.iso", iso.Build(IsoFormat::kPlain).bytes);
  Drop({u"D:\\icone.iso"});
  Press(form.Explorer);
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(form.IconeFichier.GetPicture(), (Picture{Picture::Source::kIconOf, u"E:\\X.exe", 0}));
}

TEST_F(DiscImagesTest, NothingStartsFromInsideAnImage) {
  Drop({u"D:\\disque.iso"});
  Press(form.Explorer);
  for (int box = 0; box < 2; ++box) view.Answer(BoxAnswer::kOk);
  form.ZoneDesTableaux.SetTab(1);
  DoubleClickRow(1);
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
  EXPECT_EQ(LastBox(),
            u"Ouverture impossible depuis une image de disque : \r\nE:\\Jeu\\X.exe\r\n\r\n"
            u"Le contenu de l'image n'est pas extrait : aucun autre programme ne peut y accéder.");
  EXPECT_EQ(BoxCount(), 1u);
  form.ZoneDesTableaux.SetTab(2);
  DoubleClickRow(1);
  EXPECT_EQ(BoxCount(), 2u);
  EXPECT_THAT(machine.started, IsEmpty());
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(DiscImagesTest, WalkingTheCompanionsOfAnImageShowsNoBox) {
  machine.programs[u"BMP"] = u"C:\\PAINT.EXE";
  Drop({u"D:\\disque.iso"});
  Press(form.Explorer);
  for (int i = 0; i < form.ListFichier.ListCount(); ++i) form.ListFichier.SetListIndex(i);
  EXPECT_EQ(BoxCount(), 0u);
  EXPECT_THAT(machine.started, IsEmpty());
  Choose(u"X.bmp");
  view.Answer(BoxAnswer::kOk);
  Raise(form.ListFichier.on_dbl_click);
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_THAT(ToUtf8(LastBox()), HasSubstr("depuis une image de disque"));
  EXPECT_THAT(machine.started, IsEmpty());
}

}  // namespace
}  // namespace trovex::test
