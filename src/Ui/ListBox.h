// A list of texts with at most one selected.
#pragma once

#include <vector>

#include "Ui/Control.h"

namespace trovex {

class ListBox : public Control {
 public:
  explicit ListBox(ControlKind kind = ControlKind::kListBox) : Control(kind) {}

  // A sorted list keeps its entries in ascending order of their upper-cased texts, code unit by
  // code unit; equal ones in the order of their coming.
  bool Sorted() const { return sorted_; }
  void SetSorted(bool sorted) { sorted_ = sorted; }

  int ListCount() const { return static_cast<int>(entries_.size()); }
  // An index outside the list gives an empty text.
  const Text& List(int index) const;
  void AddItem(TextView text);
  // Where the entry added last stands; -1 if there is none.
  int NewIndex() const { return new_index_; }
  void Clear();

  // -1 for none. A new value raises the click at once; one outside the list raises
  // kInvalidProperty.
  int ListIndex() const { return list_index_; }
  void SetListIndex(int index);
  // The selected entry, empty if there is none.
  const Text& GetText() const { return List(list_index_); }

 private:
  bool sorted_ = false;
  std::vector<Text> entries_;
  int new_index_ = -1;
  int list_index_ = -1;
};

// True if `a` stands before `b` in the order of lists: upper-cased, code unit by code unit.
bool ListOrder(TextView a, TextView b);

}  // namespace trovex
