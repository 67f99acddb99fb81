#include "Lib/LIB_DIALOGUE.h"

#include "Lib/LIB_STRING.h"
#include "Platform/Platform.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

const Text kBreak(kCrLf);

constexpr std::size_t kSystemBuffer = 500;  // characters, the terminator included

// What the pending run-time error adds to a message; empty if there is none.
Text DetailsOf(const PendingError& error, const Text& sSysteme) {
  if (error.number == 0) return {};
  Text sDetails = kBreak + kBreak + u"Error #" + Decimal(error.number);
  if (error.line != 0)
    sDetails += Text(u" - ") + u"Line" + u" " + u"n°" + u" " + Decimal(error.line);
  sDetails += u" by " + error.source;
  if (!error.description.empty()) sDetails += kBreak + error.description;
  if (!sSysteme.empty()) sDetails += kBreak + kBreak + sSysteme;
  return sDetails;
}

BoxAnswer Show(BoxStyle style, TextView sTitre, StringId usual, TextView sTexte) {
  const Text& sUsuel = ResString(usual);
  return CurrentView().ShowBox({style, sTitre.empty() ? sUsuel : Text(sTitre), Text(sTexte)});
}

void Sound(BoxStyle style) {
  constexpr std::uint32_t kQuestionSignal = 32;
  CurrentPlatform().MessageBeep(style == BoxStyle::kQuestion ? kQuestionSignal
                                                             : static_cast<std::uint32_t>(style));
}

}  // namespace

void MessageErreur(TextView sTexte) {
  CurrentView().SetPointer(Pointer::kDefault);
  Sound(BoxStyle::kErreur);
  Show(BoxStyle::kErreur, {}, StringId::kTitreErreur,
       Text(sTexte) + DetailsOf(Err(), sMessageSysteme()));
  Err().Clear();
}

Text sMessageSysteme() {
  // The code came with the error: the system's own record of its last one knows no more of whose
  // it was.
  const std::uint32_t code = Err().system_code;
  if (code == 0) return {};
  const Text sTexte = CurrentPlatform().FormatMessage(code);
  // A text that does not fit is not formatted at all.
  return sTexte.size() < kSystemBuffer ? Trim(sTexte) : Text();
}

BoxAnswer iQuestion(TextView sTexte, TextView sTitre) {
  CurrentView().SetPointer(Pointer::kDefault);
  Sound(BoxStyle::kQuestion);
  return Show(BoxStyle::kQuestion, sTitre, StringId::kTitreQuestion, sTexte);
}

void MessageInfo(TextView sTexte, TextView sTitre) {
  CurrentView().SetPointer(Pointer::kDefault);
  Sound(BoxStyle::kInfo);
  Show(BoxStyle::kInfo, sTitre, StringId::kTitreInfo, sTexte);
}

}  // namespace trovex
