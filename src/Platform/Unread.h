// What a catalogue is missing: directories and files that could not be read, and rows for which a
// table had no room. Whoever meets one of them says so here; whoever wants to know puts a list in
// place for the time of the work.
#pragma once

#include <map>
#include <vector>

#include "Platform/Text.h"

namespace trovex {

class Unread {
 public:
  // Full names as the program writes them ("D:\\Jeux\\SETUP.EXE"), each once however often it is
  // added and in whatever case, in the order of their upper-cased texts.
  void Add(TextView name);
  std::vector<Text> Names() const;

  // Rows left out, by the number of their table; tables without any are not there.
  void AddRow(int table) { ++rows_[table]; }
  const std::map<int, int>& Rows() const { return rows_; }

  bool IsEmpty() const { return names_.empty() && rows_.empty(); }

 private:
  std::map<Text, Text> names_;  // by their upper-cased texts
  std::map<int, int> rows_;
};

// Puts a list in place for a time; the former one comes back at the end. The caller owns it.
class UnreadScope {
 public:
  explicit UnreadScope(Unread& unread);
  ~UnreadScope();
  UnreadScope(const UnreadScope&) = delete;
  UnreadScope& operator=(const UnreadScope&) = delete;

 private:
  Unread* former_;
};

// Add to the list in place; without one nothing happens.
void NoteUnread(TextView name);
void NoteLeftOut(int table);

}  // namespace trovex
