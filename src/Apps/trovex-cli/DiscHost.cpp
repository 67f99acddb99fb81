#include "Apps/trovex-cli/DiscHost.h"

#include "Apps/trovex-cli/Catalogue.h"
#include "Image/DiscPlatform.h"
#include "Image/OpenDisc.h"
#include "Platform/Encoding.h"

namespace trovex::cli {
namespace {

using image::Opened;
using image::Problem;

// A host one of whose drives shows an image.
class ImageHost : public Host {
 public:
  // `given` is what the user calls the image.
  ImageHost(std::unique_ptr<Host> host, char16_t drive, std::shared_ptr<image::Disc> disc,
            std::string given)
      : host_(std::move(host)),
        drive_(ToUpper(drive)),
        given_(std::move(given)),
        platform_(host_->GetPlatform()) {
    platform_.Mount(drive_, std::move(disc));
    platform_.ChangeDrive(Start());
  }

  Platform& GetPlatform() override { return platform_; }
  Text Start() override { return {drive_, u':', u'\\'}; }
  Text NameOf(const std::string& argument) override {
    return platform_.Beneath(host_->NameOf(argument));
  }
  Text InstalledSettings() override { return host_->InstalledSettings(); }
  // What lies inside the image stands behind its name.
  std::string UserNameOf(const Text& name) override {
    constexpr TextView kVerbatim = u"\\\\?\\";  // before a name on the drive that the image hides
    if (name.starts_with(kVerbatim)) return host_->UserNameOf(name.substr(kVerbatim.size()));
    const bool inside = name.size() >= 2 && ToUpper(name[0]) == drive_ && name[1] == u':';
    return inside ? given_ + ": " + ToUtf8(name) : host_->UserNameOf(name);
  }

 private:
  std::unique_ptr<Host> host_;
  char16_t drive_;
  std::string given_;
  DiscPlatform platform_;
};

std::string Reason(const Opened& opened) {
  switch (opened.problem) {
    case Problem::kNone:
      break;
    case Problem::kUnreadable:
      return "cannot be read";
    case Problem::kEmpty:
      return "the file is empty";
    case Problem::kNoImage:
      return "neither a directory nor a disc image";
    case Problem::kUdf:
      return "a disc with a UDF volume alone; only ISO 9660 is read";
    case Problem::kHfs:
      return "a Macintosh disc (HFS) alone; only ISO 9660 is read";
    case Problem::kCompressed:
      return "a compressed image (CHD); only images that are not compressed are read";
    case Problem::kNoDirectory:
      return "the disc's root directory cannot be read; the image may be cut short";
    case Problem::kMissingFile:
      return "names the file '" + Printable(opened.missing) + "', which is not there";
    case Problem::kNoData:
      return "a disc without a track of data";
  }
  return {};
}

bool IsFile(Platform& platform, const Text& name) {
  FileStatus status;
  return !name.empty() && platform.GetFileStatus(name, status) &&
         (status.attributes & kAttributeDirectory) == 0;
}

}  // namespace

std::unique_ptr<Host> OpenDisc(const std::string& argument, char16_t drive,
                               std::string& complaint) {
  complaint.clear();
  auto host = OpenHostWithoutDisc(drive);
  const Text name = host->NameOf(argument);
  if (!IsFile(host->GetPlatform(), name)) return OpenHost(argument, drive, complaint);
  const Opened opened = image::OpenDisc(host->GetPlatform(), name);
  const std::string prefix = "trovex-cli: " + argument + ": ";
  if (!opened.disc) {
    complaint = prefix + Reason(opened);
    return nullptr;
  }
  if (opened.disc->GetVolume().cut_short) complaint = prefix + "the image ends before its volume";
  return std::make_unique<ImageHost>(std::move(host), drive, opened.disc, argument);
}

}  // namespace trovex::cli
