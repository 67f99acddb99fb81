#include "Screen/Lib_AboutDlg.h"

#include "Lib/Dialogs.h"
#include "Lib/Graphics.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Resources/AboutDlgTable.h"
#include "Resources/Strings.h"
#include "Resources/Version.h"

namespace trovex {
namespace {

// Day of the last change of the program's directory; empty where that cannot be read.
Text sDateProgramme() {
  FileStatus status;
  Platform& platform = CurrentPlatform();
  if (!platform.GetFileStatus(platform.GetProgramDirectory(), status)) return {};
  return sGaucheDe(sFormatDate(status.modified), u" ");
}

}  // namespace

Lib_AboutDlg::Lib_AboutDlg()
    : Form(kAboutDlgSpec),
      ImageFond(Get<Image>(u"ImageFond")),
      ImageAppli(Get<Image>(u"ImageAppli")),
      LabelNom(Get<Label>(u"LabelNom")),
      LabelVersion(Get<Label>(u"LabelVersion")),
      LabelAccord(Get<Label>(u"LabelAccord")),
      CommFermer(Get<Button>(u"CommFermer")),
      CommInfos(Get<Button>(u"CommInfos")) {
  on_load = [this] { Form_Load(); };
  on_activate = [this] {
    CurrentView().BringToFront(*this);
    CurrentView().SetPointer(Pointer::kDefault);
  };
  on_key_press = [this](int key) {
    if (key == kKeyEscape) CommFermer.Press();
  };
  on_key_down = [](int key) {
    if (key == kKeyF1) AfficheAide({});
  };
  BindButtons();
}

void Lib_AboutDlg::BindButtons() {
  CommFermer.on_click = [this] { Unload(); };
  CommInfos.on_click = [] {
    CurrentView().SetPointer(Pointer::kHourglass);
    AfficheInfosVersion();
    CurrentView().SetPointer(Pointer::kDefault);
  };
}

void Lib_AboutDlg::Form_Load() {
  CurrentView().SetPointer(Pointer::kHourglass);
  CenterForm(*this);
  ImageFond.Move({0, 0, ScaleWidth(), ScaleHeight()});
  ImageFond.SetPicture({Picture::Source::kBitmap, u"ImageFond"});
}

void AfficheAbout(const Text& sTitre, const Text& sVersion, const Image& image,
                  const Text& sDescription) {
  Lib_AboutDlg form;
  form.Load();
  form.SetCaption(ResString(StringId::kAProposDe) + ResString(StringId::kNomProgramme));
  form.LabelNom.SetCaption(sTitre);
  form.LabelVersion.SetCaption(sVersion);
  form.ImageAppli.SetPicture(image.GetPicture());
  const bool bDescription = !Trimmed(sDescription).empty();
  if (bDescription) form.LabelAccord.SetCaption(sDescription);
  form.LabelAccord.SetVisible(bDescription);
  form.ShowModal();
}

void AfficheInfosVersion() {
  const Text kLigne(kCrLf);
  Text sTexte = Text(kTitle) + kLigne;
  sTexte += Text(kLegalTrademarks) + kLigne + kLigne;
  sTexte += Text(kFileDescription) + u" " + kLigne + kLigne;
  sTexte += Text(kComments) + kLigne;
  sTexte += Text(kLegalCopyright) + kLigne + kLigne;
  sTexte += Text(kCompanyName) + kLigne + kLigne;
  sTexte += ResString(StringId::kMotVersion) + u" " + Text(kVersionNumbers) + u" - ";
  MessageInfo(sTexte + sDateProgramme());
}

}  // namespace trovex
