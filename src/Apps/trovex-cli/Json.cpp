#include <nlohmann/json.hpp>

#include "Apps/trovex-cli/Catalogue.h"
#include "Platform/Encoding.h"

namespace trovex::cli {
namespace {

using Json = nlohmann::ordered_json;

Json Row(const Grid& grid, int row) {
  Json cells = Json::array();
  for (int col = 0; col < grid.Cols(); ++col) cells.push_back(ToStrictUtf8(grid.Cell(row, col)));
  return cells;
}

Json TableOf(const Grid& grid) {
  Json rows = Json::array();
  for (int row = 1; row < grid.Rows() && !IsEmptyTable(grid); ++row) rows.push_back(Row(grid, row));
  return {{"titles", Row(grid, 0)}, {"rows", std::move(rows)}};
}

const char* KindOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::kErreur:
      return "erreur";
    case BoxStyle::kQuestion:
      return "question";
    case BoxStyle::kInfo:
      break;
  }
  return "info";
}

Json MessagesOf(const std::vector<Box>& boxes) {
  Json messages = Json::array();
  for (const Box& box : boxes) {
    messages.push_back({{"kind", KindOf(box.style)},
                        {"title", ToStrictUtf8(box.title)},
                        {"text", ToStrictUtf8(box.text)}});
  }
  return messages;
}

}  // namespace

std::string ToJson(MainForm& form, const Text& start, const std::vector<Box>& boxes) {
  Json tables = Json::array();
  for (int i = 0; i < kTableCount; ++i) tables.push_back(TableOf(form.GridLogiciel(i)));
  const Json catalogue = {{"start", ToStrictUtf8(start)},
                          {"tab", form.ZoneDesTableaux.Tab()},
                          {"count", ToStrictUtf8(form.TextInfo(6).GetText())},
                          {"tables", std::move(tables)},
                          {"messages", MessagesOf(boxes)}};
  return catalogue.dump() + "\n";
}

}  // namespace trovex::cli
