#include "Platform/Unread.h"

namespace trovex {
namespace {

Unread* unread_in_place = nullptr;

}  // namespace

void Unread::Add(TextView name) {
  names_.try_emplace(ToUpper(name), name);
}

std::vector<Text> Unread::Names() const {
  std::vector<Text> names;
  for (const auto& [upper, name] : names_) names.push_back(name);
  return names;
}

UnreadScope::UnreadScope(Unread& unread) : former_(unread_in_place) {
  unread_in_place = &unread;
}

UnreadScope::~UnreadScope() {
  unread_in_place = former_;
}

void NoteUnread(TextView name) {
  if (unread_in_place != nullptr) unread_in_place->Add(name);
}

void NoteLeftOut(int table) {
  if (unread_in_place != nullptr) unread_in_place->AddRow(table);
}

}  // namespace trovex
