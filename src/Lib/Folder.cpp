#include "Lib/Folder.h"

#include "Lib/LIB_FILE.h"
#include "Platform/Unread.h"

namespace trovex {
namespace {

bool IsPlainFile(const ListedEntry& entry) {
  return (entry.attributes & kAttributesSpecial) == 0 && !Trimmed(entry.name).empty();
}

}  // namespace

Folder::Folder(const Text& name) : Folder(name, CurrentPlatform().OpenDirectory(name)) {}

Folder::Folder(const Text& name, std::shared_ptr<HeldDirectory> held)
    : name_(name),
      held_(std::move(held)),
      entries_(held_ ? held_->Entries() : nullptr),
      whole_(held_ && held_->IsWhole()) {}

Text Folder::NameOf(TextView file) const {
  Text name;
  name.reserve(name_.size() + 1 + file.size());
  name = name_;
  if (!name.ends_with(u'\\')) name += u'\\';
  return name.append(file);
}

Folder Folder::Below(const ListedEntry& entry, const Text& name) const {
  return held_ ? Folder(name, held_->OpenDirectory(entry)) : Folder(name);
}

bool Folder::HasFile(TextView file) const {
  if (!entries_) return bFichierExiste(NameOf(file));
  ListedEntry entry;
  return entries_->Find(file, entry) && IsPlainFile(entry);
}

FileInHand::FileInHand(const Folder& folder, TextView name) : folder_(&folder), name_(name) {
  if (folder.held_ && folder.entries_->Find(name, entry_)) held_ = folder.held_.get();
}

FileInHand::FileInHand(const Folder* folder, Text full_name) : full_name_(std::move(full_name)) {
  if (folder == nullptr || !folder->held_) return;
  const std::size_t begin = full_name_.rfind(u'\\') + 1;
  const TextView plain = TextView(full_name_).substr(begin);
  const bool there = EqualsNoCase(folder->NameOf({}), TextView(full_name_).substr(0, begin));
  if (there && folder->entries_->Find(plain, entry_)) held_ = folder->held_.get();
}

bool FileInHand::Exists() const {
  if (held_ != nullptr) return IsPlainFile(entry_);
  return folder_ != nullptr ? folder_->HasFile(name_) : bFichierExiste(full_name_);
}

bool FileInHand::GetFileStatus(FileStatus& status) const {
  if (held_ == nullptr) return CurrentPlatform().GetFileStatus(Name(), status);
  const bool found = held_->GetFileStatus(entry_, status);
  if (!found) NoteUnread();
  return found;
}

FileHandle FileInHand::OpenRead() const {
  if (held_ == nullptr) return CurrentPlatform().OpenRead(Name());
  try {
    return held_->OpenRead(entry_);
  } catch (const RuntimeError&) {
    NoteUnread();
    throw;
  }
}

Reading FileInHand::GetFileProperties(FileStatus& status, std::string& record) const {
  const Reading reading = held_ != nullptr
                              ? held_->GetFileProperties(entry_, status, record)
                              : CurrentPlatform().GetFileProperties(Name(), status, record);
  const bool expected = held_ != nullptr || folder_ != nullptr;
  if (expected && reading != Reading::kAll) NoteUnread();
  return reading;
}

int FileInHand::ExtractIconEx(int index) const {
  return held_ != nullptr ? held_->ExtractIconEx(entry_, index)
                          : CurrentPlatform().ExtractIconEx(Name(), index, IconOwner::kDisc);
}

void FileInHand::NoteUnread() const {
  trovex::NoteUnread(Name());
}

}  // namespace trovex
