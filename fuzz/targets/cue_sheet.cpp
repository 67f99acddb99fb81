// Cue sheets.
#include "Image/CueSheet.h"
#include "support/Target.h"

namespace trovex::fuzz {

void Try(std::string_view input) {
  const bool is_sheet = image::IsCueSheet(input);
  Promise(image::IsCueSheet(input) == is_sheet, "the same text is told alike");
  const image::CueSheet sheet = image::ReadCueSheet(input), again = image::ReadCueSheet(input);
  Promise(sheet.data.size() <= 198, "a sheet has no more tracks than two discs");
  Promise(sheet.data.empty() || sheet.has_tracks, "tracks of data are tracks");
  Promise(sheet.data.size() == again.data.size(), "the same sheet has the same tracks");
  for (std::size_t i = 0; i < sheet.data.size(); ++i) {
    const image::CueTrack& track = sheet.data[i];
    Promise(track.file.find_first_of("/\\\r\n") == std::string::npos, "a file has no path");
    Promise(track.file == again.data[i].file && track.start == again.data[i].start,
            "the same sheet has the same tracks");
    Promise(track.start < std::uint64_t{1} << 48, "a track begins within reach");
  }
}

void Seeds(const TakeSeed& take) {
  take("one", "FILE \"disque.bin\" BINARY\r\n  TRACK 01 MODE1/2352\r\n    INDEX 01 00:00:00\r\n");
  take("mixed",
       "REM SESSION 01\nFILE disque un.bin BINARY\nTRACK 01 MODE2/2336\nINDEX 01 00:00:00\n"
       "TRACK 02 AUDIO\nPREGAP 00:02:00\nINDEX 00 10:20:30\nINDEX 01 10:22:30\n");
  take("names",
       "\xEF\xBB\xBF"
       "CATALOG 1234567890123\nTITLE \"a\"\nFILE \"C:\\x\\\xE9.bin\" BINARY\n"
       "TRACK 99 CDI/2352\nFLAGS DCP\nINDEX 01 99:59:74\n");
}

}  // namespace trovex::fuzz
