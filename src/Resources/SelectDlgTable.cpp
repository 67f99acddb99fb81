#include "Resources/SelectDlgTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

constexpr ControlSpec kControls[] = {
    {K::kPanel, u"Label", -1, {120, 120, 5160, 420}},
    {K::kOptionButton, u"SelOptions", 0, {360, 660, 4680, 285}},
    {K::kOptionButton, u"SelOptions", 1, {360, 990, 4680, 285}},
    {K::kOptionButton, u"SelOptions", 2, {360, 1320, 4680, 285}, u"", false},
    {K::kButton, u"Oui", -1, {2640, 1800, 1260, 375}},
    {K::kButton, u"Annuler", -1, {4020, 1800, 1260, 375}},
    {K::kLabel, u"reponse", -1, {120, 1860, 420, 195}, u"", false},
};

}  // namespace

const FormSpec kSelectDlgSpec = {u"Lib_SelectDlg",  u"",      5400, 2295, false,
                                 kButtonFaceColour, kControls};

}  // namespace trovex
