#include "Screen/DiscImages.h"

#include "Image/DiscPlatform.h"
#include "Image/OpenDisc.h"
#include "Lib/Dialogs.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

using image::Problem;

// 0 where every letter is taken. A: and B: are the floppy drives', C: is the system's.
char16_t NextLetter(std::uint32_t drives) {
  for (char16_t letter = u'D'; letter <= u'Z'; ++letter) {
    if ((drives >> (letter - u'A') & 1u) == 0) return letter;
  }
  return 0;
}

StringId ReasonId(Problem problem) {
  switch (problem) {
    case Problem::kUnreadable:
      return StringId::kDisqueIllisible;
    case Problem::kEmpty:
      return StringId::kImageVide;
    case Problem::kUdf:
      return StringId::kImageUdf;
    case Problem::kHfs:
      return StringId::kImageHfs;
    case Problem::kCompressed:
      return StringId::kImageCompressee;
    case Problem::kNoDirectory:
      return StringId::kImageTronquee;
    case Problem::kMissingFile:
      return StringId::kImageFichierManquant;
    case Problem::kNoData:
      return StringId::kImageSansDonnees;
    case Problem::kNone:
    case Problem::kNoImage:
      break;
  }
  return StringId::kImageInconnue;
}

void Refuse(const Text& sFichier, const Text& sRaison) {
  Err().Clear();
  MessageErreur(ResString(StringId::kImageRefusee) + sFichier + Text(kCrLf) + Text(kCrLf) +
                sRaison);
}

}  // namespace

void OuvreImage(MainForm& form, const Text& sFichier) {
  DiscPlatform* discs = CurrentDiscs();
  if (discs == nullptr) return;
  BusyOn();
  const image::Opened opened = image::OpenDisc(CurrentPlatform(), sFichier);
  BusyOff();
  if (!opened.disc) {
    return Refuse(sFichier, ResString(ReasonId(opened.problem)) + opened.missing);
  }
  const char16_t letter = NextLetter(CurrentPlatform().GetLogicalDrives());
  if (letter == 0) return Refuse(sFichier, ResString(StringId::kImageSansLettre));
  discs->Mount(letter, opened.disc);
  form.ListeDrive.Update();
  form.ListeDrive.SetDrive(Text{letter});
  if (opened.disc->GetVolume().cut_short) MainMsg(ResString(StringId::kImageIncomplete));
}

void Form_DropFiles(MainForm& form, const std::vector<Text>& files) {
  for (const Text& sFichier : files) OuvreImage(form, sFichier);
}

void OuvrirImage_Click(MainForm& form) {
  const Text sFichier =
      sChoixFichier(ResString(StringId::kOuvrirImageTitre), ResString(StringId::kFiltreImages));
  if (!sFichier.empty()) OuvreImage(form, sFichier);
}

bool bRefuseDansImage(const Text& sFichier) {
  if (!CurrentPlatform().IsInsideImage(sFichier)) return false;
  MessageInfo(ResString(StringId::kDansUneImage) + Text(kCrLf) + sFichier + Text(kCrLf) +
              Text(kCrLf) + ResString(StringId::kRienNEstExtrait));
  return true;
}

}  // namespace trovex
