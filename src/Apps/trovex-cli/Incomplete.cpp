#include "Apps/trovex-cli/Incomplete.h"

#include <ostream>

#include "Apps/trovex-cli/Catalogue.h"
#include "Platform/Encoding.h"
#include "Resources/Strings.h"

namespace trovex::cli {
namespace {

constexpr std::size_t kNamesTold = 20;

// "12 lignes de trop dans le tableau 1", table by table.
std::vector<Text> RowsLeftOut(const Unread& unread) {
  std::vector<Text> texts;
  for (const auto& [table, count] : unread.Rows()) {
    texts.push_back(Decimal(count) +
                    ResString(count == 1 ? StringId::kLigneDeTrop : StringId::kLignesDeTrop) +
                    Decimal(table));
  }
  return texts;
}

}  // namespace

std::vector<Text> TextsOf(const Unread& unread) {
  std::vector<Text> texts = unread.Names();
  for (Text& rows : RowsLeftOut(unread)) texts.push_back(std::move(rows));
  return texts;
}

void TellUnread(const Unread& unread, Host& host, std::ostream& err) {
  const auto line = [&](TextView text) { err << "trovex-cli: " << Printable(text) << '\n'; };
  const std::vector<Text> names = unread.Names();
  const std::size_t told = std::min(names.size(), kNamesTold);
  for (std::size_t i = 0; i < told; ++i) {
    line(ResString(StringId::kNonLu) + FromUtf8(host.UserNameOf(names[i])));
  }
  const auto more = static_cast<long long>(names.size() - told);
  if (more > 0) line(ResString(StringId::kNonLu) + Decimal(more) + ResString(StringId::kAutres));
  for (const Text& rows : RowsLeftOut(unread)) line(rows);
}

}  // namespace trovex::cli
