#include "Resources/RgbFormTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

// A channel a line, the colour beside them in a thin frame.
constexpr ControlSpec kControls[] = {
    {K::kLabel, u"LabelR", -1, {180, 225, 240, 225}, u"R"},
    {K::kScrollBar, u"HScroll_R", -1, {480, 210, 3300, 255}},
    {K::kTextBox, u"R_Value", -1, {3900, 180, 600, 315}},
    {K::kLabel, u"LabelG", -1, {180, 645, 240, 225}, u"G"},
    {K::kScrollBar, u"HScroll_G", -1, {480, 630, 3300, 255}},
    {K::kTextBox, u"G_Value", -1, {3900, 600, 600, 315}},
    {K::kLabel, u"LabelB", -1, {180, 1065, 240, 225}, u"B"},
    {K::kScrollBar, u"HScroll_B", -1, {480, 1050, 3300, 255}},
    {K::kTextBox, u"B_Value", -1, {3900, 1020, 600, 315}},
    {K::kShape, u"CadreRGB", -1, {4665, 165, 1290, 1185}},
    {K::kPictureBox, u"PictureRGB", -1, {4680, 180, 1260, 1155}},
    {K::kLabel, u"LabelRGB", -1, {4680, 1395, 1260, 225}, u"FFFFFF"},
    {K::kButton, u"Valider", -1, {3240, 1740, 1290, 375}},
    {K::kButton, u"Annuler", -1, {4650, 1740, 1290, 375}},
    {K::kLabel, u"reponse", -1, {180, 1800, 420, 225}, u"", false},
    {K::kPanel, u"PanelAide", -1, {0, 2235, 6120, 315}},
};

}  // namespace

const FormSpec kRgbFormSpec = {u"Lib_RGBForm",    u"",      6120, 2550, false,
                               kButtonFaceColour, kControls};

}  // namespace trovex
