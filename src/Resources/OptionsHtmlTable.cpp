#include "Resources/OptionsHtmlTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

constexpr bool kHidden = false;

// One option a line: its box, and below it what belongs to it, indented. Engraved lines part the
// groups: form of the page, what its head says, images, and the way out.
constexpr ControlSpec kControls[] = {
    {K::kCheckBox, u"CheckEntete", -1, {180, 150, 4200, 285}},
    {K::kCheckBox, u"CheckFin", -1, {4500, 150, 4200, 285}},
    {K::kCheckBox, u"CheckCR", -1, {180, 510, 4200, 285}},
    {K::kOptionButton, u"OptionTag", 0, {480, 840, 1500, 285}, u"<BR>"},
    {K::kOptionButton, u"OptionTag", 1, {2100, 840, 1500, 285}, u"<P>"},
    {K::kCheckBox, u"CheckFrame", -1, {4500, 510, 4200, 285}, u"", kHidden},
    {K::kLine, u"LigneGroupe", 0, {180, 1245, 8520, 0}},
    {K::kCheckBox, u"CheckTitre", -1, {180, 1380, 2100, 285}},
    {K::kTextBox, u"TextTitre", -1, {2340, 1365, 6360, 315}},
    {K::kCheckBox, u"CheckFond", -1, {180, 1800, 5220, 285}},
    {K::kTextBox, u"CouleurRGB", -1, {5460, 1785, 1500, 315}},
    {K::kButton, u"LaCouleur", -1, {7080, 1770, 1620, 345}},
    {K::kLine, u"LigneGroupe", 1, {180, 2250, 8520, 0}},
    {K::kCheckBox, u"CheckBack", -1, {180, 2370, 5220, 285}},
    {K::kLabel, u"LabelNom", 0, {480, 2745, 600, 225}},
    {K::kTextBox, u"ImageBack", -1, {1140, 2700, 7020, 315}},
    {K::kButton, u"Limage", -1, {8280, 2685, 420, 345}, u"...", kHidden},
    {K::kCheckBox, u"CheckImage", -1, {180, 3135, 5220, 285}},
    {K::kLabel, u"LabelNom", 1, {480, 3510, 600, 225}},
    {K::kTextBox, u"ImageDebut", -1, {1140, 3465, 7020, 315}},
    {K::kButton, u"LeFichier", -1, {8280, 3450, 420, 345}, u"...", kHidden},
    {K::kLine, u"LigneGroupe", 2, {180, 3930, 8520, 0}},
    {K::kCheckBox, u"CheckSuffixe", -1, {180, 4020, 5220, 285}, u"", kHidden},
    {K::kTextBox, u"TextSuffixe", -1, {5460, 4005, 1500, 315}, u"", kHidden},
    {K::kCheckBox, u"CheckRef", -1, {180, 4335, 3600, 285}, u"", kHidden},
    {K::kLabel, u"LabelFichier", -1, {3900, 4380, 720, 225}, u"", kHidden},
    {K::kTextBox, u"RefHTML", -1, {4680, 4335, 1800, 315}, u"", kHidden},
    {K::kButton, u"FichierHTML", -1, {6540, 4320, 420, 345}, u"...", kHidden},
    {K::kButton, u"Fermer", -1, {7440, 4110, 1260, 375}},
    {K::kPanel, u"PanelAide", -1, {0, 4740, 8880, 315}},
};

}  // namespace

const FormSpec kOptionsHtmlSpec = {u"Lib_OptionsHTML", u"",      8880, 5055, false,
                                   kButtonFaceColour,  kControls};

}  // namespace trovex
