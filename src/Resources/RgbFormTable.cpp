#include "Resources/RgbFormTable.h"

#include "Resources/Strings.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;
using S = StringId;

constexpr unsigned kRed = Rgb(255, 0, 0), kGreen = Rgb(0, 255, 0), kBlue = Rgb(0, 0, 255);

// A channel a line, the colour beside them in a thin frame.
constexpr ControlSpec kControls[] = {
    {K::kLabel,
     u"LabelR",
     -1,
     {180, 225, 240, 225},
     u"R",
     {.help = S::kCanalRouge, .fore_color = kRed}},
    {K::kScrollBar, u"HScroll_R", -1, {480, 210, 3300, 255}},
    {K::kTextBox, u"R_Value", -1, {3900, 180, 600, 315}, u"", {.fore_color = kRed, .text = u"000"}},
    {K::kLabel,
     u"LabelG",
     -1,
     {180, 645, 240, 225},
     u"G",
     {.help = S::kCanalVert, .fore_color = kGreen}},
    {K::kScrollBar, u"HScroll_G", -1, {480, 630, 3300, 255}},
    {K::kTextBox,
     u"G_Value",
     -1,
     {3900, 600, 600, 315},
     u"",
     {.fore_color = kGreen, .text = u"000"}},
    {K::kLabel,
     u"LabelB",
     -1,
     {180, 1065, 240, 225},
     u"B",
     {.help = S::kCanalBleu, .fore_color = kBlue}},
    {K::kScrollBar, u"HScroll_B", -1, {480, 1050, 3300, 255}},
    {K::kTextBox,
     u"B_Value",
     -1,
     {3900, 1020, 600, 315},
     u"",
     {.fore_color = kBlue, .text = u"000"}},
    {K::kShape, u"CadreRGB", -1, {4665, 165, 1290, 1185}, u"", {.back_color = Rgb(128, 128, 128)}},
    {K::kPictureBox, u"PictureRGB", -1, {4680, 180, 1260, 1155}, u"", {.help = S::kAidePictureRgb}},
    {K::kLabel,
     u"LabelRGB",
     -1,
     {4680, 1395, 1260, 225},
     u"FFFFFF",
     {.help = S::kAideLabelRgb, .alignment = Alignment::kCentre}},
    {K::kButton,
     u"Valider",
     -1,
     {3240, 1740, 1290, 375},
     u"",
     {.caption = S::kValider, .help = S::kAideValider}},
    {K::kButton,
     u"Annuler",
     -1,
     {4650, 1740, 1290, 375},
     u"",
     {.caption = S::kAnnuler, .help = S::kAideAnnuler}},
    {K::kLabel, u"reponse", -1, {180, 1800, 420, 225}, u"", {.visible = false}},
    {K::kPanel, u"PanelAide", -1, {0, 2235, 6120, 315}, u"", {.help = S::kAideZone}},
};

}  // namespace

const FormSpec kRgbFormSpec = {.name = u"Lib_RGBForm",
                               .caption = u"",
                               .client_width = 6120,
                               .client_height = 2550,
                               .sizable = false,
                               .back_color = kButtonFaceColour,
                               .controls = kControls,
                               .texts = ResString,
                               .caption_text = S::kSelectionCouleur,
                               .help = kEmptyText};

}  // namespace trovex
