#include "Ui/MenuEntry.h"

#include "Ui/Form.h"

namespace trovex {

void MenuEntry::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  form_.MenuChanged();
}

}  // namespace trovex
