#include "Resources/Forms.h"

#include "Resources/AboutDlgTable.h"
#include "Resources/GridListeTable.h"
#include "Resources/LibFormTable.h"
#include "Resources/MainFormTable.h"
#include "Resources/OptionsHtmlTable.h"
#include "Resources/RgbFormTable.h"
#include "Resources/SelectDlgTable.h"
#include "Resources/SystemWinInfoTable.h"

namespace trovex {

std::span<const FormSpec* const> AllForms() {
  static constexpr const FormSpec* kForms[] = {
      &kAboutDlgSpec, &kGridListeSpec, &kLibFormSpec,       &kOptionsHtmlSpec,
      &kRgbFormSpec,  &kSelectDlgSpec, &kSystemWinInfoSpec, &kMainFormSpec,
  };
  return kForms;
}

}  // namespace trovex
