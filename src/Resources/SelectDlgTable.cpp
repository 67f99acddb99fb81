#include "Resources/SelectDlgTable.h"

#include "Resources/Strings.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;
using S = StringId;

constexpr ControlSpec kControls[] = {
    {K::kPanel, u"Label", -1, {120, 120, 5160, 420}},
    {K::kOptionButton, u"SelOptions", 0, {360, 660, 4680, 285}},
    {K::kOptionButton, u"SelOptions", 1, {360, 990, 4680, 285}},
    {K::kOptionButton, u"SelOptions", 2, {360, 1320, 4680, 285}, u"", {.visible = false}},
    {K::kButton, u"Oui", -1, {2640, 1800, 1260, 375}, u"", {.caption = S::kValider}},
    {K::kButton, u"Annuler", -1, {4020, 1800, 1260, 375}, u"", {.caption = S::kAnnuler}},
    {K::kLabel, u"reponse", -1, {120, 1860, 420, 195}, u"", {.visible = false}},
};

}  // namespace

const FormSpec kSelectDlgSpec = {.name = u"Lib_SelectDlg",
                                 .caption = u"",
                                 .client_width = 5400,
                                 .client_height = 2295,
                                 .sizable = false,
                                 .back_color = kButtonFaceColour,
                                 .controls = kControls,
                                 .texts = ResString,
                                 .caption_text = S::kFaitesVotreChoix};

}  // namespace trovex
