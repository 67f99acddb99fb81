#include "Screen/LIB_GENERALE.h"

#include <algorithm>

#include "Lib/Dialogs.h"
#include "Lib/FichesUnicode.h"
#include "Lib/FileNumbers.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "Lib/SettingsFile.h"

namespace trovex {
namespace {

Event end_of_program;

// A name beside the program, drawn where the first one is taken; it is not tested further.
Text SecondTemporaryName() {
  const int number = static_cast<int>(CurrentPlatform().Random() * 47 + 23);
  return sRepertoireAppli() + u"~" + u"Trvx" + Decimal(number) + u".tmp";
}

void ChooseTemporaryFile() {
  if (sFichierTemp.empty()) sFichierTemp = sNomTempAppli();
  if (bFichierExiste(sFichierTemp)) sFichierTemp = SecondTemporaryName();
}

void EnterProgramDirectory() {
  const Text sRepertoire = CurrentPlatform().GetProgramDirectory();
  CurrentPlatform().ChangeDirectory(sRepertoire);
  // A network path has no drive to change to.
  if (sRepertoire.find(u"\\\\") == Text::npos) CurrentPlatform().ChangeDrive(sRepertoire);
}

// Forms are told apart by their captions: one that bears the given form's caption stays.
Form* FirstOtherForm(const Form& form) {
  const auto& forms = LoadedForms();
  const auto other = std::find_if(forms.begin(), forms.end(), [&](const Form* loaded) {
    return loaded->Caption() != form.Caption();
  });
  return other == forms.end() ? nullptr : *other;
}

}  // namespace

Text sFichierTemp;

void InitApplication() {
  CurrentView().SetPointer(Pointer::kHourglass);
  ChoisitFichierIni();
  LitFichesUnicode();
  InitAssociations();
  ChooseTemporaryFile();
  Lib_Form();
  InitChaines();
  ChercheFichierDAide();
  EnterProgramDirectory();
}

void FermerApplication(Form& form, bool bTerminer) {
  IgnoringErrors(EffacerFichierTemp);
  while (Form* other = LoadedForms().size() > 1 ? FirstOtherForm(form) : nullptr) {
    IgnoringErrors([&] { other->Unload(); });
    if (other->Loaded()) break;  // it would not go
  }
  CloseAllFiles();
  IgnoringErrors([&] { form.Unload(); });
  if (bTerminer) Raise(end_of_program);
}

void EffacerFichierTemp() {
  if (!sFichierTemp.empty()) bEffaceFichier(sFichierTemp, false, false);
}

void SetEndOfProgram(Event end) {
  end_of_program = std::move(end);
}

void Main(Form& main_form) {
  CurrentView().SetPointer(Pointer::kHourglass);
  InitApplication();
  CurrentView().SetPointer(Pointer::kHourglass);
  main_form.Show();
}

}  // namespace trovex
