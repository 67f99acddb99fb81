#include "Resources/AboutDlgTable.h"

#include "Resources/Strings.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;
using S = StringId;

constexpr double kWidth = 5400, kHeight = 4050;

constexpr FontSpec Times(double size) {
  return {u"Times New Roman", size, true};
}

// The picture comes first: all others lie on it.
constexpr ControlSpec kControls[] = {
    {K::kImage, u"ImageFond", -1, {0, 0, kWidth, kHeight}},
    {K::kImage, u"ImageAppli", -1, {3615, 1215, 480, 480}},
    {K::kLabel,
     u"LabelNom",
     -1,
     {2430, 450, 2850, 375},
     u"",
     {.font = Times(14.25), .alignment = Alignment::kCentre}},
    {K::kLabel,
     u"LabelVersion",
     -1,
     {3450, 825, 795, 285},
     u"",
     {.font = Times(12), .alignment = Alignment::kCentre}},
    {K::kLabel, u"LabelAccord", -1, {360, 3015, 3915, 225}, u"", {.font = Times(9.75)}},
    {K::kButton,
     u"CommFermer",
     -1,
     {4350, 1800, 735, 540},
     u"",
     {.help = kEmptyText, .spoken = S::kFermer, .picture = u"Fermer"}},
    {K::kButton,
     u"CommInfos",
     -1,
     {4320, 2970, 840, 870},
     u"",
     {.help = kEmptyText, .spoken = S::kInfosVersion, .picture = u"Infos"}},
};

}  // namespace

const FormSpec kAboutDlgSpec = {.name = u"Lib_AboutDlg",
                                .caption = u"A propos de...",
                                .client_width = kWidth,
                                .client_height = kHeight,
                                .sizable = false,
                                .back_color = Rgb(192, 192, 255),
                                .controls = kControls,
                                .texts = ResString};

}  // namespace trovex
