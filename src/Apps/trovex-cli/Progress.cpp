#include "Apps/trovex-cli/Progress.h"

#include <ostream>

#include "Apps/trovex-cli/Catalogue.h"
#include "Lib/FichesUnicode.h"
#include "Lib/LIB_INI.h"
#include "Ui/StatusBar.h"

namespace trovex::cli {
namespace {

constexpr std::size_t kLineWidth = 78;

Text OneLine(Text text) {
  for (char16_t& unit : text) {
    if (unit == u'\r' || unit == u'\n') unit = u' ';
  }
  return text;
}

}  // namespace

Progress::Progress(HeadlessView& view, const GivenNames& names, std::ostream& err, bool shown,
                   std::string prefix)
    : names_(names), err_(err), shown_(shown), prefix_(std::move(prefix)) {
  view.on_repaint = [this](Control& control) { OnRepaint(control); };
  view.on_box = [this](const Box& box) { OnBox(box); };
}

Progress::~Progress() {
  ClearLine();
}

void Progress::OnRepaint(Control& control) {
  if (!shown_ || control.Kind() != ControlKind::kStatusBar) return;
  const Text& text = static_cast<StatusBar&>(control).PanelText(u"Msg");
  ClearLine();
  if (text.empty()) return;
  err_ << prefix_ << Printable(TextView(text).substr(0, kLineWidth - prefix_.size())) << std::flush;
  line_used_ = true;
}

void Progress::OnBox(const Box& box) {
  if (box.style != BoxStyle::kErreur) return;
  ClearLine();
  err_ << "trovex-cli: " << Printable(OneLine(names_.PutInto(box.text))) << '\n';
}

void Progress::ClearLine() {
  if (line_used_) err_ << "\r\x1B[K" << std::flush;
  line_used_ = false;
}

std::string MessageOf(const RuntimeError& error) {
  return "trovex-cli: erreur d'exécution " + std::to_string(error.Number()) + " : " +
         Printable(error.Description()) + " (" + Printable(error.Source()) + ")";
}

void UseSettings(const Options& options, const Text& ini) {
  if (options.ini || !ini.empty()) {
    sFichierIni = ini;
    LitFichesUnicode();
  }
  if (options.unicode_records) ChoisitFichesUnicode(true);
}

}  // namespace trovex::cli
