// One report over many discs.
#pragma once

#include <iosfwd>

#include "Apps/trovex-cli/Options.h"

namespace trovex::cli {

// Catalogues one disc after the other and writes a row for each entry as it comes; gives the exit
// status. What a disc lacks goes to `err`, and the others follow. The report, and the list of
// digests if one is wanted, stand under their names when they are complete, or not at all.
int Report(const Options& options, std::ostream& err, bool err_is_terminal);

}  // namespace trovex::cli
