// The drive D: of the contract tests as an image: each change makes a new one.
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>

#include "Image/DiscPlatform.h"
#include "Image/OpenDisc.h"
#include "Platform/Posix/PosixPlatform.h"
#include "support/IsoBuilder.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

std::string MakeTemporaryDirectory() {
  std::string name = (std::filesystem::temp_directory_path() / "trovex-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory");
  return std::filesystem::canonical(name).string();
}

PosixSetup SetupOver(const std::string& root) {
  setenv("TZ", "UTC", 1);
  tzset();
  PosixSetup setup;
  setup.drives = {{u'C', root, DriveType::kFixed, u""}};
  return setup;
}

IsoDate DateOf(const LocalTime& time) {
  const int fields[] = {time.year - 1900, time.month,  time.day,
                        time.hour,        time.minute, time.second};
  IsoDate date;
  for (int i = 0; i < 6; ++i) date.fields[i] = static_cast<signed char>(fields[i]);
  return date;
}

}  // namespace

struct TestDisc::State {
  State() { Insert(); }
  ~State() {
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
  }

  void Insert() {
    const std::string bytes = builder.Build(IsoFormat::kJoliet).bytes;
    std::filesystem::remove(root + "/disque.iso");
    std::ofstream(root + "/disque.iso", std::ios::binary).write(bytes.data(), std::ssize(bytes));
    const Text current = platform.GetCurrentDirectory();
    platform.Mount(u'D', image::OpenDisc(beneath, u"C:\\disque.iso").disc);
    platform.ChangeDrive(u"D:");
    if (current.starts_with(u'D')) platform.ChangeDirectory(current);
  }

  std::string root = MakeTemporaryDirectory();
  PosixPlatform beneath{SetupOver(root)};
  DiscPlatform platform{beneath};
  PlatformScope scope{platform};
  IsoBuilder builder;
};

TestDisc::TestDisc() : state_(std::make_unique<State>()) {}
TestDisc::~TestDisc() = default;

void TestDisc::File(std::string_view path, std::string_view contents, const LocalTime& modified) {
  state_->builder.File(path, contents, DateOf(modified));
  state_->Insert();
}

void TestDisc::Directory(std::string_view path) {
  state_->builder.Directory(path);
  state_->Insert();
}

void TestDisc::Remove(std::string_view path) {
  state_->builder.Remove(path);
  state_->Insert();
}

void TestDisc::Hide(std::string_view path) {
  state_->builder.Hide(path);
  state_->Insert();
}

// Nothing of the disc stands on the host.
std::filesystem::path TestDisc::HostPath(std::string_view) const {
  return {};
}

Platform& TestDisc::GetPlatform() {
  return state_->platform;
}

}  // namespace trovex::test
