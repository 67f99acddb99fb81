// What became of an export.
#pragma once

namespace trovex {

// Written whole; not or not wholly written, which the user was told; given up by the user.
enum class ExportOutcome { kWritten, kFailed, kCancelled };

}  // namespace trovex
