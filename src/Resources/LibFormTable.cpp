#include "Resources/LibFormTable.h"

namespace trovex {
namespace {

constexpr ControlSpec kControls[] = {
    {ControlKind::kDriveListBox, u"ListeDrive", -1, {0, 0, 1800, 315}},
    {ControlKind::kDirListBox, u"ListeRepertoire", -1, {0, 375, 1800, 990}},
    {ControlKind::kFileListBox, u"ListeFichier", -1, {1875, 0, 1800, 1365}},
    {ControlKind::kCommonDialog, u"DialogueCommun", -1, {3750, 0, 420, 420}},
};

}  // namespace

const FormSpec kLibFormSpec = {u"Lib_Form", u"Lib_Form", 4500, 1500, false, 0xC0C0C0, kControls};

}  // namespace trovex
