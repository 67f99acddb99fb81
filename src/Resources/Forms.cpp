#include "Resources/Forms.h"

#include "Resources/LibFormTable.h"
#include "Resources/MainFormTable.h"
#include "Resources/OptionsHtmlTable.h"
#include "Resources/RgbFormTable.h"
#include "Resources/SelectDlgTable.h"

namespace trovex {

std::span<const FormSpec* const> AllForms() {
  static constexpr const FormSpec* kForms[] = {
      &kLibFormSpec, &kOptionsHtmlSpec, &kRgbFormSpec, &kSelectDlgSpec, &kMainFormSpec,
  };
  return kForms;
}

}  // namespace trovex
