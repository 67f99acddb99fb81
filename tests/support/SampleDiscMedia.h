// The pictures, sounds and help files that stand beside the programs of the sample disc. All are
// computed: small, valid and the same on every system.
#pragma once

#include <string>

namespace trovex::test {

// A BMP of 32 by 32 points and 24 bits: a sunset in horizontal bands.
std::string BmpPicture();
// A GIF of 16 by 16 points: a chessboard.
std::string GifPicture();
// A WAV of a quarter of a second, 8 bits, 8 kHz: a fading bell of about 500 Hz.
std::string WavSound();
// A help file that holds its header alone; a help engine opens it and finds no topic.
std::string HlpFile();

}  // namespace trovex::test
