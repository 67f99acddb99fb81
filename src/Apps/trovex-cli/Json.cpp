#include "Apps/trovex-cli/Catalogue.h"
#include "Apps/trovex-cli/JsonText.h"

// Everything is joined as text: the memory of a whole tree of values would be many times that of
// what they say, and so would the time.

namespace trovex::cli {
namespace {

// `count` elements behind each other, as a JSON array.
template <typename Element>
std::string ArrayOf(int count, Element element) {
  std::string array = "[";
  for (int i = 0; i < count; ++i) {
    if (i > 0) array += ',';
    array += element(i);
  }
  return array + "]";
}

std::string RowOf(const Grid& grid, int row) {
  return ArrayOf(grid.Cols(), [&](int col) { return Quoted(grid.Cell(row, col)); });
}

std::string TableOf(const Grid& grid, const std::vector<std::string>* details) {
  const int rows = IsEmptyTable(grid) ? 0 : grid.Rows() - 1;
  std::string table = R"({"titles":)" + RowOf(grid, 0) + R"(,"rows":)";
  table += ArrayOf(rows, [&](int i) { return RowOf(grid, i + 1); });
  if (details != nullptr) {
    const int count = static_cast<int>(details->size());
    table += R"(,"details":)";
    table += ArrayOf(count, [&](int i) { return (*details)[static_cast<std::size_t>(i)]; });
  }
  return table + "}";
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

std::string MessageOf(const Box& box) {
  return std::string(R"({"kind":")") + KindOf(box.style) + R"(","title":)" + Quoted(box.title) +
         R"(,"text":)" + Quoted(box.text) + "}";
}

const char* Dump(bool value) {
  return value ? "true" : "false";
}

std::string DetailsOf(MainForm& form) {
  constexpr int kTexts = 6;
  const ListBox& list = form.ListFichier;
  std::string details = R"({"TextInfo":)";
  details += ArrayOf(kTexts, [&](int i) { return Quoted(form.TextInfo(i).GetText()); });
  details += R"(,"ListFichier":)";
  details += ArrayOf(list.ListCount(), [&](int i) { return Quoted(list.List(i)); });
  details += R"(,"ListFichier.Tag":)" + Quoted(list.Tag());
  details += R"(,"ListIndex":)" + std::to_string(list.ListIndex());
  details += std::string(R"(,"visible":{"TextInfo0":)") + Dump(form.TextInfo(0).Visible());
  details += std::string(R"(,"LabelInfo2":)") + Dump(form.LabelInfo(2).Visible());
  details += std::string(R"(,"PrintTexte":)") + Dump(form.PrintTexte.Visible());
  details += std::string(R"(,"ImageSelect":)") + Dump(form.ImageSelect.Visible());
  return details + "}}";
}

}  // namespace

Inspection InspectRows(MainForm& form) {
  Inspection inspection;
  for (int i = 0; i < kTableCount; ++i) {
    Grid& grid = form.GridLogiciel(i);
    const int former_row = grid.Row(), former_col = grid.Col();
    for (int row = 1; row < grid.Rows() && !IsEmptyTable(grid); ++row) {
      grid.SetRow(row);
      Raise(grid.on_click);
      inspection[static_cast<std::size_t>(i)].push_back(DetailsOf(form));
    }
    // A tab that comes up counts its table by the current row.
    grid.SetRow(former_row);
    grid.SetCol(former_col);
  }
  return inspection;
}

std::string ToJson(MainForm& form, const Text& start, const Inspection* inspection,
                   const std::vector<Box>& boxes, const std::vector<Text>& unread) {
  std::string json = R"({"start":)" + Quoted(start);
  json += R"(,"tab":)" + std::to_string(form.ZoneDesTableaux.Tab());
  json += R"(,"count":)" + Quoted(form.TextInfo(6).GetText()) + R"(,"tables":)";
  json += ArrayOf(kTableCount, [&](int i) {
    const auto* details = inspection ? &(*inspection)[static_cast<std::size_t>(i)] : nullptr;
    return TableOf(form.GridLogiciel(i), details);
  });
  json += R"(,"messages":)";
  json += ArrayOf(static_cast<int>(boxes.size()),
                  [&](int i) { return MessageOf(boxes[static_cast<std::size_t>(i)]); });
  if (!unread.empty()) {
    json += R"(,"unread":)";
    json += ArrayOf(static_cast<int>(unread.size()),
                    [&](int i) { return Quoted(unread[static_cast<std::size_t>(i)]); });
  }
  return json + "}\n";
}

}  // namespace trovex::cli
