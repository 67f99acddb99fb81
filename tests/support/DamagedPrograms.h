// Programs that are not what their headers say, for whoever reads them.
#pragma once

#include <string>
#include <vector>

namespace trovex::test {

struct DamagedProgram {
  std::string path;  // "NE/CHAMPS/F003C_4.EXE"
  std::string contents;
};

// Small NE and PE executables with a version record and an icon: each field of the headers, the
// tables of resources, the record's and the icon's heads at each of its extremes, one a file, and
// such programs cut short, a 16-bit one at every length, and each kind of damaged icon. Always the
// same, in the same order.
std::vector<DamagedProgram> DamagedPrograms();
// Every seventh of them, for where each one becomes a file.
std::vector<DamagedProgram> SomeDamagedPrograms();

}  // namespace trovex::test
