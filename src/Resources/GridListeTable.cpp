#include "Resources/GridListeTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

constexpr ControlSpec kControls[] = {
    {K::kPanel, u"PanelGrid", -1, {120, 600, 9360, 4680}},
    {K::kButton, u"cmdSelection", -1, {120, 5400, 1500, 375}, u"Sélectionner"},
    {K::kGrid, u"GridListe", -1, {60, 60, 9240, 4560}, u"", {.container = u"PanelGrid"}},
    {K::kButton, u"cmdImprimer", -1, {4740, 5400, 1500, 375}, u"Imprimer..."},
    {K::kPanel,
     u"LibelleGrid",
     -1,
     {120, 120, 9360, 360},
     u"Titre",
     {.font = {u"Times New Roman", 12}, .alignment = Alignment::kCentre}},
    {K::kButton, u"cmdFermer", -1, {7980, 5400, 1500, 375}, u"Fermer"},
    {K::kButton, u"cmdExporter", -1, {6360, 5400, 1500, 375}, u"Exporter..."},
    {K::kLabel, u"reponse", -1, {1740, 5460, 420, 195}, u"", {.visible = false}},
};

}  // namespace

const FormSpec kGridListeSpec = {
    u"Lib_GridListe", u"Liste d'informations", 9600, 5895, false, kButtonFaceColour, kControls};

}  // namespace trovex
