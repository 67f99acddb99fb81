#include "Scanner/Surroundings.h"

#include "Scanner/VersionRecord.h"

namespace trovex {
namespace {

// In the order of Source.
constexpr TextView kNames[] = {u"SETUP.LST",    u"SETUP.INI",  u"INSTALL.INF", u"file_id.diz",
                               u"lisezmoi.txt", u"readme.txt", u"INSTALL.TXT", u"logiciel.txt"};

}  // namespace

TextView NameOf(Source source) {
  return kNames[static_cast<std::size_t>(source)];
}

Surroundings::Surroundings(const Folder& folder, const Text& first)
    : folder_(folder), first_(first) {
  static_assert(std::size(kNames) == kSources);
  for (std::size_t i = 0; i < kSources; ++i) there_[i] = folder.HasFile(kNames[i]);
}

bool Surroundings::HasDescription() const {
  auto descriptions = there_;
  return descriptions.reset(Number(Source::kLogiciel)).any();
}

FileInHand Surroundings::File(Source source) const {
  return FileInHand(folder_, kNames[Number(source)]);
}

IniEnMain& Surroundings::Ini(Source source) {
  auto& ini = ini_[Number(source)];
  if (!ini) ini.emplace(File(source));
  return *ini;
}

TextLines& Surroundings::Lines(Source source) {
  auto& lines = lines_[Number(source)];
  if (!lines) lines.emplace(File(source));
  return *lines;
}

const Text& Surroundings::FirstProduct() {
  if (!first_product_) {
    if (!first_record_) first_record_ = ReadVersionRecord(FileInHand(folder_, first_));
    first_product_ = vNomProduit(*first_record_);
  }
  return *first_product_;
}

}  // namespace trovex
