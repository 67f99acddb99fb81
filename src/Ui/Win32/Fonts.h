// Fonts as forms name them, at a resolution.
#pragma once

#include <map>
#include <tuple>

#include "Ui/Font.h"
#include "Ui/Win32/Scale.h"

namespace trovex::win32 {

// Owns what it gives; one instance for the life of the view.
class Fonts {
 public:
  ~Fonts();
  HFONT Get(const Font& font, Scale scale);

 private:
  using Key = std::tuple<Text, double, bool, bool, int>;
  std::map<Key, HFONT> fonts_;
};

}  // namespace trovex::win32
