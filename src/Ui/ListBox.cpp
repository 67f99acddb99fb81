#include "Ui/ListBox.h"

#include <algorithm>

#include "Platform/EntryNames.h"

namespace trovex {

bool ListOrder(TextView a, TextView b) {
  return CompareNoCase(a, b) < 0;
}

const Text& ListBox::List(int index) const {
  static const Text none;
  return index >= 0 && index < ListCount() ? entries_[static_cast<std::size_t>(index)] : none;
}

void ListBox::AddItem(TextView text) {
  auto place = entries_.end();
  if (sorted_) place = std::upper_bound(entries_.begin(), entries_.end(), text, ListOrder);
  new_index_ = static_cast<int>(place - entries_.begin());
  entries_.emplace(place, text);
  // The selection stays with its entry.
  if (list_index_ >= new_index_) ++list_index_;
  Notify(Property::kList);
}

void ListBox::Clear() {
  entries_.clear();
  new_index_ = list_index_ = -1;
  Notify(Property::kList);
}

void ListBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) {
    throw RuntimeError(ErrorNumber::kInvalidProperty, u"ListBox");
  }
  if (index == list_index_) return;
  list_index_ = index;
  Notify(Property::kSelection);
  if (index >= 0) Raise(on_click);
}

}  // namespace trovex
