#include "Resources/OptionsHtmlTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

constexpr bool kHidden = false;

// One option a line: its box, and below it what belongs to it, indented.
constexpr ControlSpec kControls[] = {
    {K::kCheckBox, u"CheckEntete", -1, {180, 150, 4200, 285}},
    {K::kCheckBox, u"CheckFin", -1, {4500, 150, 4200, 285}},
    {K::kCheckBox, u"CheckFrame", -1, {4500, 480, 4200, 285}, u"", kHidden},
    {K::kCheckBox, u"CheckCR", -1, {180, 540, 4200, 285}},
    {K::kOptionButton, u"OptionTag", 0, {480, 870, 1500, 285}, u"<BR>"},
    {K::kOptionButton, u"OptionTag", 1, {2100, 870, 1500, 285}, u"<P>"},
    {K::kCheckBox, u"CheckTitre", -1, {180, 1320, 2100, 285}},
    {K::kTextBox, u"TextTitre", -1, {2340, 1305, 6360, 315}},
    {K::kCheckBox, u"CheckFond", -1, {180, 1770, 5220, 285}},
    {K::kTextBox, u"CouleurRGB", -1, {5460, 1755, 1500, 315}},
    {K::kButton, u"LaCouleur", -1, {7080, 1740, 1620, 345}},
    {K::kCheckBox, u"CheckBack", -1, {180, 2220, 5220, 285}},
    {K::kLabel, u"LabelNom", 0, {480, 2595, 600, 225}},
    {K::kTextBox, u"ImageBack", -1, {1140, 2550, 7020, 315}},
    {K::kButton, u"Limage", -1, {8280, 2535, 420, 345}, u"...", kHidden},
    {K::kCheckBox, u"CheckImage", -1, {180, 3015, 5220, 285}},
    {K::kLabel, u"LabelNom", 1, {480, 3390, 600, 225}},
    {K::kTextBox, u"ImageDebut", -1, {1140, 3345, 7020, 315}},
    {K::kButton, u"LeFichier", -1, {8280, 3330, 420, 345}, u"...", kHidden},
    {K::kCheckBox, u"CheckSuffixe", -1, {180, 3750, 5940, 285}, u"", kHidden},
    {K::kTextBox, u"TextSuffixe", -1, {6180, 3735, 2520, 315}, u"", kHidden},
    {K::kCheckBox, u"CheckRef", -1, {180, 4110, 5220, 285}, u"", kHidden},
    {K::kLabel, u"LabelFichier", -1, {480, 4470, 720, 225}, u"", kHidden},
    {K::kTextBox, u"RefHTML", -1, {1260, 4425, 5580, 315}, u"", kHidden},
    {K::kButton, u"FichierHTML", -1, {6900, 4410, 420, 345}, u"...", kHidden},
    {K::kButton, u"Fermer", -1, {7440, 4380, 1260, 375}},
    {K::kPanel, u"PanelAide", -1, {0, 4860, 8880, 315}},
};

}  // namespace

const FormSpec kOptionsHtmlSpec = {u"Lib_OptionsHTML", u"",      8880, 5175, false,
                                   kButtonFaceColour,  kControls};

}  // namespace trovex
