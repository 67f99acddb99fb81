// A name for those functions of the system that take none of more than 259 characters.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// The file's own name where it is short enough, else its 8.3 name, else that of a copy that goes
// with the object. Empty where the file cannot be had so: it is missing, or too large to be copied.
class ShortName {
 public:
  explicit ShortName(const Text& name);
  ~ShortName();
  ShortName(const ShortName&) = delete;
  ShortName& operator=(const ShortName&) = delete;

  const Text& Get() const { return name_; }

 private:
  Text name_;
  bool copy_ = false;
};

}  // namespace trovex
