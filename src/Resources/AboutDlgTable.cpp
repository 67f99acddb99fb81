#include "Resources/AboutDlgTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

constexpr double kWidth = 5400, kHeight = 4050;

// The picture comes first: all others lie on it.
constexpr ControlSpec kControls[] = {
    {K::kImage, u"ImageFond", -1, {0, 0, kWidth, kHeight}},
    {K::kImage, u"ImageAppli", -1, {3615, 1215, 480, 480}},
    {K::kLabel, u"LabelNom", -1, {2430, 450, 2850, 375}},
    {K::kLabel, u"LabelVersion", -1, {3450, 825, 795, 285}},
    {K::kLabel, u"LabelAccord", -1, {360, 3015, 3915, 225}},
    {K::kButton, u"CommFermer", -1, {4350, 1800, 735, 540}},
    {K::kButton, u"CommInfos", -1, {4320, 2970, 840, 870}},
};

}  // namespace

const FormSpec kAboutDlgSpec = {u"Lib_AboutDlg", u"A propos de...",  kWidth,   kHeight,
                                false,           Rgb(192, 192, 255), kControls};

}  // namespace trovex
