#include "Resources/MainFormTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

constexpr bool kHidden = false;

// A shadow stands 75 to the right of its button.
constexpr ControlSpec ShadowAt(int index, double button_left) {
  return {K::kShape, u"ShapeOmbre", index, {button_left + 75, 150, 990, 825}};
}

constexpr ControlSpec kControls[] = {
    ShadowAt(2, 2700),
    ShadowAt(4, 4050),
    ShadowAt(3, 5175),
    ShadowAt(5, 6300),
    ShadowAt(6, 7545),
    ShadowAt(1, 8670),
    ShadowAt(0, 9795),
    {K::kDriveListBox, u"ListeDrive", -1, {75, 75, 2580, 315}},
    {K::kDirListBox, u"ListeRepertoire", -1, {75, 450, 2580, 1665}},
    {K::kButton, u"Explorer", -1, {2700, 75, 990, 840}, u"Explorer"},
    {K::kButton, u"ConvertHTML", -1, {4050, 75, 990, 840}, u"HTML..."},
    {K::kButton, u"Exporter", -1, {5175, 75, 990, 840}, u"Exporter..."},
    {K::kButton, u"Imprimer", -1, {6300, 75, 990, 840}, u"Imprimer..."},
    {K::kButton, u"CommandOption", -1, {7545, 75, 990, 840}, u"Options..."},
    {K::kButton, u"Apropos", -1, {8670, 75, 990, 840}, u"A propos..."},
    {K::kButton, u"Quitter", -1, {9795, 75, 990, 840}, u"Quitter"},
    {K::kImage, u"ImageAppli", -1, {2850, 1080, 480, 480}},
    {K::kLabel, u"Label2", 11, {3450, 1140, 1065, 195}, u"Libellé produit :"},
    {K::kTextBox, u"TextInfo", 4, {4575, 1065, 5490, 285}},
    {K::kLabel, u"Label2", 20, {3765, 1440, 750, 195}, u"Copyright :"},
    {K::kTextBox, u"TextInfo", 1, {4575, 1365, 5490, 285}},
    {K::kLabel, u"Label2", 21, {3570, 1740, 945, 195}, u"Nom interne :"},
    {K::kTextBox, u"TextInfo", 2, {4575, 1665, 5490, 285}},
    {K::kLabel, u"Label2", 22, {2865, 2040, 1650, 195}, u"Société de distribution :"},
    {K::kTextBox, u"TextInfo", 3, {4575, 1980, 5490, 285}},
    {K::kPictureBox, u"IconeFichier", -1, {10110, 1395, 540, 540}},
    {K::kTextBox, u"TextInfo", 5, {4575, 2295, 5490, 285}},
    {K::kTextBox, u"TextInfo", 6, {10110, 2295, 705, 285}},
    {K::kTabControl, u"ZoneDesTableaux", -1, {30, 2295, 10800, 3165}},
    {K::kGrid, u"GridLogiciel", 0, {75, 375, 8775, 2745}, u"", true, u"ZoneDesTableaux", 0},
    {K::kGrid, u"GridLogiciel", 1, {75, 375, 8775, 2745}, u"", true, u"ZoneDesTableaux", 1},
    {K::kGrid, u"GridLogiciel", 2, {75, 375, 8775, 2745}, u"", true, u"ZoneDesTableaux", 2},
    {K::kLabel, u"LabelInfo", 1, {150, 5610, 1500, 195}, u"Fichiers accessibles :"},
    {K::kLabel,
     u"LabelInfo",
     2,
     {2625, 5610, 2055, 195},
     u"Affichage des fichiers ASCII :",
     kHidden},
    {K::kButton, u"PrintTexte", -1, {4800, 5530, 300, 300}, u"", kHidden},
    {K::kListBox, u"ListFichier", -1, {75, 5835, 2415, 645}},
    {K::kTextBox, u"TextInfo", 0, {2550, 5850, 8325, 1215}, u"", kHidden},
    {K::kPictureBox, u"ImageSelect", -1, {2580, 5850, 540, 540}, u"", kHidden},
    {K::kStatusBar, u"PanelAide", -1, {0, 7095, 10905, 315}},
    {K::kLine, u"Line1", 0, {2775, 990, 8070, 0}},
    {K::kLine, u"Line1", 1, {30, 2160, 2730, 0}},
    {K::kLine, u"Line2", -1, {2760, 990, 0, 1190}},
};

constexpr unsigned kBackground = Rgb(192, 192, 255);

}  // namespace

const FormSpec kMainFormSpec = {u"MainForm", u"Trovex", 10905, 7410, true, kBackground, kControls};

}  // namespace trovex
