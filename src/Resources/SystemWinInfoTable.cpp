#include "Resources/SystemWinInfoTable.h"

#include "Resources/Strings.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

using K = ControlKind;
using S = StringId;

constexpr ControlSpec kControls[] = {
    {K::kFrame, u"ZoneInfos", -1, {75, 0, 6495, 1935}, u"", {.caption = S::kInformationsGenerales}},
    {K::kLabel, u"Label2", 0, {360, 300, 1605, 195}, u"", {.caption = S::kRepertoireWindows}},
    {K::kLabel, u"LabelInfo", 0, {2025, 315, 3765, 195}},
    {K::kLabel, u"Label2", 1, {360, 540, 1605, 195}, u"", {.caption = S::kRepertoireSystem}},
    {K::kLabel, u"LabelInfo", 1, {2025, 540, 3765, 195}},
    {K::kLabel, u"Label2", 2, {360, 960, 1380, 195}, u"", {.caption = S::kMemoirePhysique}},
    {K::kLabel, u"LabelInfo", 2, {1800, 960, 1620, 195}},
    {K::kLabel, u"Label2", 3, {360, 1215, 1380, 195}, u"", {.caption = S::kMemoireVirtuelle}},
    {K::kLabel, u"LabelInfo", 3, {1800, 1215, 1620, 195}},
    {K::kLabel, u"Label2", 4, {3480, 960, 780, 195}, u"", {.caption = S::kSysteme}},
    {K::kLabel, u"LabelInfo", 5, {4320, 960, 2100, 195}},
    {K::kLabel, u"Label2", 5, {3480, 1215, 780, 195}, u"", {.caption = S::kVersionSysteme}},
    {K::kLabel, u"LabelInfo", 7, {4320, 1215, 2100, 195}},
    {K::kLabel, u"Label2", 6, {360, 1560, 420, 195}, u"", {.caption = S::kCpu}},
    {K::kLabel, u"LabelInfo", 4, {840, 1560, 5580, 195}},
    {K::kButton,
     u"CommandMSInfo",
     -1,
     {5850, 225, 540, 540},
     u"",
     {.spoken = S::kOutilSysteme, .picture = u"SystemeInfo"}},
    {K::kLabel, u"Label2", 7, {165, 2145, 4560, 195}, u"", {.caption = S::kListeProcessus}},
    {K::kButton, u"AfficheProcess", -1, {4845, 2025, 1695, 315}, u"", {.caption = S::kRafraichir}},
    {K::kListBox, u"ListProcess", -1, {45, 2385, 6525, 1425}, u"", {.spoken = S::kListeProcessus}},
};

}  // namespace

const FormSpec kSystemWinInfoSpec = {.name = u"Lib_SystemWinInfo",
                                     .caption = u"",
                                     .client_width = 6630,
                                     .client_height = 3855,
                                     .sizable = false,
                                     .back_color = kButtonFaceColour,
                                     .controls = kControls,
                                     .texts = ResString,
                                     .caption_text = S::kInformationsWindows};

}  // namespace trovex
