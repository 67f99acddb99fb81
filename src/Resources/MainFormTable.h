#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The main window. What of it is no place or caption (fonts, colours, patterns, panels) is set by
// the form itself.
extern const FormSpec kMainFormSpec;

// Smallest outer size, in twips.
inline constexpr Extent kMainFormMinimum = {11025, 7830};

// Captions of the tabs, and the names of the pictures beside them.
inline constexpr const char16_t* kMainFormTabs[] = {u"Setup/Install", u"Exe", u"Archive ZIP"};
inline constexpr const char16_t* kMainFormTabPictures[] = {u"Onglet0", u"Onglet1", u"Onglet2"};

}  // namespace trovex
