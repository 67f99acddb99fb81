#pragma once

#include <span>

#include "Ui/FormSpec.h"

namespace trovex {

// Every form's table, in alphabetical order of the forms' names. A new form takes its place here,
// and with it the checks that hold for all of them.
std::span<const FormSpec* const> AllForms();

}  // namespace trovex
