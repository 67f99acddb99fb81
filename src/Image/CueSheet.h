// Cue sheets: which file holds which track of a disc.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trovex::image {

// Where a track of data begins.
struct CueTrack {
  std::string file;         // as the sheet writes it, without its path
  std::uint64_t start = 0;  // of the track in the file, in bytes
};

struct CueSheet {
  std::vector<CueTrack> data;  // in the order of the disc
  bool has_tracks = false;     // be they of data or of music
};

// True for a text that reads as a cue sheet from its first line on.
bool IsCueSheet(std::string_view text);

// Anything that is no line of a cue sheet is passed over. The place of a track that shares its file
// with others is reckoned from the times of their INDEX lines and the sizes of their sectors.
CueSheet ReadCueSheet(std::string_view text);

}  // namespace trovex::image
