#include "Apps/trovex-cli/GivenNames.h"

#include "Platform/Encoding.h"

namespace trovex::cli {
namespace {

Text WithoutExtension(const Text& name) {
  const std::size_t level = name.find_last_of(u"\\/") + 1;
  const std::size_t point = name.rfind(u'.');
  return point != Text::npos && point > level ? name.substr(0, point) : name;
}

}  // namespace

void GivenNames::Add(const Text& name, const std::string& argument) {
  if (name.empty()) return;
  stems_.emplace_back(WithoutExtension(name), WithoutExtension(FromUtf8(argument)));
}

Text GivenNames::PutInto(Text text) const {
  for (const auto& [name, given] : stems_) {
    for (std::size_t at = 0; (at = text.find(name, at)) != Text::npos; at += given.size()) {
      text.replace(at, name.size(), given);
    }
  }
  return text;
}

}  // namespace trovex::cli
