// A platform on which disc images are drives: what lies on them is answered from the images, all
// else by the platform beneath.
#pragma once

#include <map>
#include <memory>

#include "Image/Drive.h"
#include "Image/OpenFiles.h"
#include "Platform/EntrySearch.h"
#include "Platform/ForwardingPlatform.h"

namespace trovex {

// Nothing on an image can be written, and nothing that lies there can be started: what would do so
// is refused here and never reaches the platform beneath, which may have a drive of the same
// letter.
class DiscPlatform : public ForwardingPlatform {
 public:
  explicit DiscPlatform(Platform& target) : ForwardingPlatform(target) {}

  // From now on the letter (A to Z) is the disc's, a CD-ROM drive's.
  void Mount(char16_t letter, std::shared_ptr<image::Disc> disc);

  // A name that leads beneath: on a drive that an image hides it gets the form "\\?\X:\...", which
  // is never the image's. Any other name stays as it is.
  Text Beneath(Text name);

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override;
  bool FindNextFile(FindHandle handle, FindData& data) override;
  void FindClose(FindHandle handle) override;
  bool CanBeListed(const Text& directory) override;
  std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory) override;
  bool GetFileStatus(const Text& name, FileStatus& status) override;
  Reading GetFileProperties(const Text& name, FileStatus& status, std::string& record) override;
  FileHandle OpenRead(const Text& name) override;
  FileHandle OpenWrite(const Text& name) override;
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override;
  void Close(FileHandle file) override;
  std::unique_ptr<records::ByteSource> OpenSource(const Text& name) override;
  void CopyFile(const Text& source, const Text& destination) override;
  void DeleteFile(const Text& name) override;
  void PutInPlace(const Text& source, const Text& place) override;
  bool MakeDirectory(const Text& name) override;

  std::uint32_t GetFileVersionInfoSize(const Text& name) override;
  bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) override;
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override;
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override;

  DriveType GetDriveType(const Text& root) override;
  std::uint32_t GetLogicalDrives() override;
  Text GetVolumeLabel(const Text& root) override;
  Text GetCurrentDirectory() override;
  void ChangeDirectory(const Text& directory) override;
  void ChangeDrive(const Text& drive) override;
  std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) override;
  std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) override;
  Text GetProgramDirectory() override { return Beneath(Target().GetProgramDirectory()); }
  Text GetApplicationDataDirectory() override {
    return Beneath(Target().GetApplicationDataDirectory());
  }
  // Directories are all that the program asks for.
  Text GetEnvironmentVariable(const Text& name) override {
    return Beneath(Target().GetEnvironmentVariable(name));
  }

  bool IsInsideImage(const Text& name) override;
  int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                   const Text& directory, int show) override;
  int FindExecutable(const Text& file, const Text& directory, Text& buffer) override;
  void StartProgram(const Text& command_line, int mode) override;
  int ExtractIconEx(const Text& file, int index, IconOwner owner) override;

 private:
  // A name on one of the images.
  struct Name {
    image::Drive* drive = nullptr;  // null where the name is none of ours
    Text full;
  };

  image::Drive* DriveOf(char16_t letter);
  Name Resolve(TextView name);
  image::Place Find(const Name& name) { return name.drive->Find(name.full); }
  std::unique_ptr<image::FileContents> Open(const Name& name);
  FindHandle Begin(const image::Folder& folder, TextView pattern, FindData& data);
  std::string RecordOf(const Name& name);
  void CopyFrom(const Name& source, const Text& destination);
  std::uint32_t Beneath(Text& buffer, std::uint32_t length, std::uint32_t size);

  std::map<char16_t, image::Drive> drives_;
  char16_t current_ = 0;  // the current drive, if it is one of these
  image::OpenFiles files_;
  struct Running {
    EntrySearch search;
    bool whole;  // whether all of the directory could be read
  };
  std::map<std::int64_t, Running> searches_;
  std::int64_t next_search_ = 1;
};

// The platform on which the user of the window opens images; null where images cannot be opened.
DiscPlatform* CurrentDiscs();

// Puts it in place for a time; the former one comes back at the end. The caller owns it.
class DiscsScope {
 public:
  explicit DiscsScope(DiscPlatform& discs);
  ~DiscsScope();
  DiscsScope(const DiscsScope&) = delete;
  DiscsScope& operator=(const DiscsScope&) = delete;

 private:
  DiscPlatform* former_;
};

}  // namespace trovex
