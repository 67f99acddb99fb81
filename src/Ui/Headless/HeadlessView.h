// A view without a screen: it records what was shown and answers dialogs from a queue. It is the
// view of the command line program and of the tests.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "Ui/View.h"

namespace trovex {

class HeadlessView : public View {
 public:
  // What happens to a box or dialog that the queue holds no answer for.
  enum class Unexpected { kDefaultAnswer, kReport };

  explicit HeadlessView(Unexpected unexpected = Unexpected::kDefaultAnswer)
      : unexpected_(unexpected) {}

  // Answers questions, and questions alone, before the queue of boxes is asked.
  void AnswerQuestion(BoxAnswer answer) { question_answers_.push_back(answer); }

  // The queues. Answers are used in the order of their coming.
  void Answer(BoxAnswer answer) { box_answers_.push_back(answer); }
  // A file name chosen, or the dialog cancelled where it is empty.
  void AnswerFile(Text name) { file_answers_.push_back(std::move(name)); }
  // What a user does in the next modal form; it must end by hiding or unloading the form.
  void AnswerForm(std::function<void(Form&)> user) { form_answers_.push_back(std::move(user)); }
  // Empties the queues.
  void ForgetAnswers();
  // What a user does in the next preview.
  void AnswerPreview(std::function<void(const Preview&)> user) {
    preview_answers_.push_back(std::move(user));
  }
  std::size_t UnusedAnswers() const {
    return question_answers_.size() + box_answers_.size() + file_answers_.size() +
           form_answers_.size() + preview_answers_.size();
  }

  // What was shown, in order.
  struct HelpShown {
    Text file;
    int command = 0;
    Text key;
    bool operator==(const HelpShown&) const = default;
  };
  const std::vector<Box>& Boxes() const { return boxes_; }
  const std::vector<HelpShown>& Helps() const { return helps_; }
  const std::vector<Text>& FileDialogs() const { return file_dialogs_; }  // their titles
  const std::vector<Stroke>& Strokes() const { return strokes_; }
  // Everything that came up although the queue held no answer, where that is to be reported.
  const std::vector<Text>& Complaints() const { return complaints_; }
  Pointer GetPointer() const { return pointer_; }
  bool IgnoresInput() const { return ignoring_ > 0; }
  Control* Focus() const { return focus_; }
  int Repaints(const Control& control) const;
  const std::vector<Form*>& TopmostForms() const { return topmost_; }
  // The form brought to the front last; null once it is unloaded.
  Form* Front() const { return front_; }
  void SetScreenSize(Extent size) { screen_ = size; }
  void Forget();

  // Called on each repaint and each box, for whoever follows the program's progress.
  std::function<void(Control&)> on_repaint;
  std::function<void(const Box&)> on_box;

  void Attach(Form&) override {}
  void Detach(Form& form) override;
  void Changed(Control&, Property) override {}
  void Repaint(Control& control) override;
  void SetFocus(Control& control) override { focus_ = &control; }
  void RunModal(Form& form) override;
  void SetTopmost(Form& form, bool topmost) override;
  void BringToFront(Form& form) override { front_ = &form; }
  void DrawStroke(Form&, const Stroke& stroke) override { strokes_.push_back(stroke); }
  BoxAnswer ShowBox(const Box& box) override;
  bool ShowFileDialog(CommonDialog& dialog) override;
  void ShowHelp(CommonDialog& dialog) override;
  double TextWidth(TextView text, const Font& font) override;
  FontMeasure MeasureFont(const Font& font) override;
  void ShowPreview(const Preview& preview) override;
  void SetPointer(Pointer pointer) override { pointer_ = pointer; }
  void IgnoreInput(bool ignore) override { ignoring_ += ignore ? 1 : -1; }
  Extent ScreenSize() override { return screen_; }

 private:
  void Complain(Text what);

  Unexpected unexpected_;
  std::deque<BoxAnswer> question_answers_;
  std::deque<BoxAnswer> box_answers_;
  std::deque<Text> file_answers_;
  std::deque<std::function<void(Form&)>> form_answers_;
  std::deque<std::function<void(const Preview&)>> preview_answers_;
  std::vector<Box> boxes_;
  std::vector<HelpShown> helps_;
  std::vector<Text> file_dialogs_;
  std::vector<Stroke> strokes_;
  std::vector<Text> complaints_;
  std::vector<std::pair<const Control*, int>> repaints_;
  std::vector<Form*> topmost_;
  Pointer pointer_ = Pointer::kDefault;
  int ignoring_ = 0;
  Control* focus_ = nullptr;
  Form* front_ = nullptr;
  Extent screen_ = {15360, 11520};  // 1024 by 768 pixels
};

}  // namespace trovex
