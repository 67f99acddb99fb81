#include "Ui/Headless/HeadlessView.h"

#include <algorithm>

#include "Ui/CommonDialog.h"
#include "Ui/FontWidths.h"
#include "Ui/Form.h"
#include "Ui/Preview.h"

namespace trovex {
namespace {

// The answer of a box whose user presses Enter.
BoxAnswer DefaultAnswer(BoxStyle style) {
  return style == BoxStyle::kQuestion ? BoxAnswer::kYes : BoxAnswer::kOk;
}

template <typename T>
T TakeFirst(std::deque<T>& queue) {
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

void HeadlessView::Detach(Form& form) {
  std::erase(topmost_, &form);
  if (front_ == &form) front_ = nullptr;
  if (focus_ != nullptr && focus_->Parent() == &form) focus_ = nullptr;
}

void HeadlessView::Repaint(Control& control) {
  const auto seen = std::find_if(repaints_.begin(), repaints_.end(),
                                 [&](const auto& entry) { return entry.first == &control; });
  if (seen != repaints_.end()) {
    ++seen->second;
  } else {
    repaints_.emplace_back(&control, 1);
  }
  if (on_repaint) on_repaint(control);
}

int HeadlessView::Repaints(const Control& control) const {
  const auto seen = std::find_if(repaints_.begin(), repaints_.end(),
                                 [&](const auto& entry) { return entry.first == &control; });
  return seen == repaints_.end() ? 0 : seen->second;
}

void HeadlessView::RunModal(Form& form) {
  form.Show();
  if (!form.Loaded() || !form.Visible()) return;
  if (!form_answers_.empty()) TakeFirst(form_answers_)(form);
  if (!form.Loaded() || !form.Visible()) return;
  // Nobody is there to close it.
  Complain(u"form " + form.Name());
  form.Hide();
}

void HeadlessView::SetTopmost(Form& form, bool topmost) {
  std::erase(topmost_, &form);
  if (topmost) topmost_.push_back(&form);
}

BoxAnswer HeadlessView::ShowBox(const Box& box) {
  boxes_.push_back(box);
  if (on_box) on_box(box);
  const bool question = box.style == BoxStyle::kQuestion;
  if (question && !question_answers_.empty()) return TakeFirst(question_answers_);
  if (!box_answers_.empty()) return TakeFirst(box_answers_);
  Complain(box.text);
  return DefaultAnswer(box.style);
}

bool HeadlessView::ShowFileDialog(CommonDialog& dialog) {
  file_dialogs_.push_back(dialog.title);
  if (file_answers_.empty()) {
    Complain(dialog.title);
    return false;
  }
  const Text name = TakeFirst(file_answers_);
  if (name.empty()) return false;
  dialog.file_name = name;
  return true;
}

void HeadlessView::ShowHelp(CommonDialog& dialog) {
  helps_.push_back({dialog.help_file, dialog.help_command, dialog.help_key});
}

void HeadlessView::ForgetAnswers() {
  question_answers_.clear();
  box_answers_.clear();
  file_answers_.clear();
  form_answers_.clear();
  preview_answers_.clear();
}

double HeadlessView::TextWidth(TextView text, const Font& font) {
  return StandardWidth(text, font);
}

FontMeasure HeadlessView::MeasureFont(const Font& font) {
  return StandardMeasure(font);
}

void HeadlessView::ShowPreview(const Preview& preview) {
  if (preview_answers_.empty()) return Complain(u"preview " + preview.pages.title);
  TakeFirst(preview_answers_)(preview);
}

void HeadlessView::Forget() {
  boxes_.clear();
  helps_.clear();
  file_dialogs_.clear();
  strokes_.clear();
  complaints_.clear();
  repaints_.clear();
}

void HeadlessView::Complain(Text what) {
  if (unexpected_ == Unexpected::kReport) complaints_.push_back(std::move(what));
}

}  // namespace trovex
