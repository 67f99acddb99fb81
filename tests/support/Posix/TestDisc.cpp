#include "support/TestDisc.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>

#include "Platform/Posix/PosixPlatform.h"

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
  setup.drives = {{u'D', root, DriveType::kFixed, u""}};
  setup.program_directory = u"D:\\";
  return setup;
}

std::time_t Seconds(const LocalTime& time) {
  std::tm fields = {};
  fields.tm_year = time.year - 1900;
  fields.tm_mon = time.month - 1;
  fields.tm_mday = time.day;
  fields.tm_hour = time.hour;
  fields.tm_min = time.minute;
  fields.tm_sec = time.second;
  return timegm(&fields);
}

}  // namespace

struct TestDisc::State {
  std::string root = MakeTemporaryDirectory();
  PosixPlatform platform{SetupOver(root)};
  PlatformScope scope{platform};
};

TestDisc::TestDisc() : state_(std::make_unique<State>()) {}

TestDisc::~TestDisc() {
  const std::string root = state_->root;
  state_.reset();
  std::error_code ignored;
  std::filesystem::remove_all(root, ignored);
}

void TestDisc::File(std::string_view path, std::string_view contents, const LocalTime& modified) {
  const std::filesystem::path host = HostPath(path);
  std::filesystem::create_directories(host.parent_path());
  std::ofstream(host, std::ios::binary).write(contents.data(), std::ssize(contents));
  const timespec date = {Seconds(modified), 0};
  const timespec dates[] = {date, date};
  if (utimensat(AT_FDCWD, host.c_str(), dates, 0) != 0) {
    throw std::runtime_error("cannot write " + host.string());
  }
}

void TestDisc::Directory(std::string_view path) {
  std::filesystem::create_directories(HostPath(path));
}

void TestDisc::Remove(std::string_view path) {
  std::filesystem::remove_all(HostPath(path));
}

void TestDisc::Hide(std::string_view) {}

std::filesystem::path TestDisc::HostPath(std::string_view path) const {
  return path.empty() ? std::filesystem::path(state_->root)
                      : std::filesystem::path(state_->root) / path;
}

Platform& TestDisc::GetPlatform() {
  return state_->platform;
}

}  // namespace trovex::test
