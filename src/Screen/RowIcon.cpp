#include <cmath>

#include "Lib/LIB_REGISTRY.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"
#include "Screen/RowIcon.h"
#include "System/LIB_SYSTEME.h"

namespace trovex {
namespace {

// A text as a whole number; raises kTypeMismatch where it is none, kOverflow beyond 32 bits.
int iEntier(TextView sTexte) {
  const TextView trimmed = Trimmed(sTexte);
  const TextView digits = trimmed.substr(trimmed.starts_with(u'-') || trimmed.starts_with(u'+'));
  const bool number = !digits.empty() && digits.find_first_not_of(u"0123456789") == TextView::npos;
  if (!number) throw RuntimeError(ErrorNumber::kTypeMismatch);
  const double value = Val(trimmed);
  if (std::abs(value) > 2147483647.0) throw RuntimeError(ErrorNumber::kOverflow);
  return static_cast<int>(value);
}

// The icon at `index` of a file that the system or its registry names; an empty picture where there
// is none.
Picture IconOf(const Text& sFichier, int index) {
  if (CurrentPlatform().ExtractIconEx(sFichier, index, IconOwner::kSystem) == 0) return {};
  return {Picture::Source::kIconOf, sFichier, index};
}

Picture SystemIcon() {
  return IconOf(LIB_SYSTEME::sRepertoireSysteme() + u"shell32.dll", 0);
}

// The icon that the association of the row's extension names, as the registry writes it.
Text sLireIcone(Grid& grid) {
  grid.SetCol(2);
  const Text sCle = u"." + sDroiteDe(grid.GetText(), u".");
  return sLireCleClasse(sLireCleClasse(sCle) + u"\\defaulticon");
}

// The file's own icon where its type says so, else the system's; a program without one is taken
// for an MS-DOS program.
Picture OwnIcon(MainForm& form, const Text& sIcone) {
  const auto own = [&]() -> Picture {
    const FileInHand oFichier(form.DossierEnMain(), Trim(form.TextInfo(5).GetText()));
    if (oFichier.ExtractIconEx(0) == 0) return {};
    return {Picture::Source::kIconOf, oFichier.Name(), 0};
  };
  Picture icon = sIcone.empty() ? SystemIcon() : own();
  if (icon.source != Picture::Source::kNone) return icon;
  TextBox& interne = form.TextInfo(2);
  if (interne.GetText().empty()) interne.SetText(ResString(StringId::kProgrammeDos));
  return SystemIcon();
}

}  // namespace

void ShowRowIcon(MainForm& form, Grid& grid) {
  const Text sIcone = sLireIcone(grid);
  const int p = iPosition(sIcone, u",");
  Picture icon;
  if (p > 0) {
    const Text sIconeFichier = sIcone.substr(0, static_cast<std::size_t>(p - 1));
    const Text sIconeIndex = sIcone.substr(static_cast<std::size_t>(p));
    icon = IconOf(sIconeFichier, iEntier(sIconeIndex));
  } else {
    icon = OwnIcon(form, sIcone);
  }
  form.IconeFichier.SetPicture({});
  form.IconeFichier.SetPicture(icon);
}

}  // namespace trovex
