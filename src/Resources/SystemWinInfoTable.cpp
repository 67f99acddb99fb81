#include "Resources/SystemWinInfoTable.h"

#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;

// The captions are written when the form is loaded.
constexpr ControlSpec kControls[] = {
    {K::kFrame, u"ZoneInfos", -1, {75, 0, 6495, 1935}},
    {K::kLabel, u"Label2", 0, {360, 300, 1605, 195}},
    {K::kLabel, u"LabelInfo", 0, {2025, 315, 3765, 195}},
    {K::kLabel, u"Label2", 1, {360, 540, 1605, 195}},
    {K::kLabel, u"LabelInfo", 1, {2025, 540, 3765, 195}},
    {K::kLabel, u"Label2", 2, {360, 960, 1380, 195}},
    {K::kLabel, u"LabelInfo", 2, {1800, 960, 1620, 195}},
    {K::kLabel, u"Label2", 3, {360, 1215, 1380, 195}},
    {K::kLabel, u"LabelInfo", 3, {1800, 1215, 1620, 195}},
    {K::kLabel, u"Label2", 4, {3480, 960, 780, 195}},
    {K::kLabel, u"LabelInfo", 5, {4320, 960, 2100, 195}},
    {K::kLabel, u"Label2", 5, {3480, 1215, 780, 195}},
    {K::kLabel, u"LabelInfo", 7, {4320, 1215, 2100, 195}},
    {K::kLabel, u"Label2", 6, {360, 1560, 420, 195}},
    {K::kLabel, u"LabelInfo", 4, {840, 1560, 5580, 195}},
    {K::kButton, u"CommandMSInfo", -1, {5850, 225, 540, 540}},
    {K::kLabel, u"Label2", 7, {165, 2145, 4560, 195}},
    {K::kButton, u"AfficheProcess", -1, {4845, 2025, 1695, 315}},
    {K::kListBox, u"ListProcess", -1, {45, 2385, 6525, 1425}},
};

}  // namespace

const FormSpec kSystemWinInfoSpec = {
    u"Lib_SystemWinInfo", u"Informations Windows", 6630, 3855, false, kButtonFaceColour, kControls};

}  // namespace trovex
