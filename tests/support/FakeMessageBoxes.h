// Message boxes that answer from a script, and remember what they showed.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/MessageBoxes.h"
#include "tests/support/Log.h"

namespace tessera {

class FakeMessageBoxes final : public MessageBoxes {
 public:
  struct Box {
    std::wstring Text;
    BoxButtons Buttons;
    BoxIcon Icon;
    BoxDefault Default;
  };

  FakeMessageBoxes() = default;
  explicit FakeMessageBoxes(Log& log) : log_(&log) {}

  std::vector<Box> Shown;
  std::deque<BoxAnswer> Answers;         ///< taken in order; a box with only "OK" needs none
  std::optional<BoxAnswer> AnswerToAll;  ///< in place of a script; such boxes are not remembered
  int BeepCount = 0;
  std::function<void()> OnShow;  ///< what happens while a box is open

  BoxAnswer Show(const std::wstring& text, BoxButtons buttons, BoxIcon icon,
                 BoxDefault defaultButton) override {
    if (AnswerToAll) return *AnswerToAll;
    Shown.push_back({text, buttons, icon, defaultButton});
    if (log_ != nullptr) log_->push_back(L"Show " + text);
    if (OnShow) OnShow();
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    if (Answers.empty()) throw std::logic_error("a question without an answer in the script");
    const BoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  void Beep() override {
    ++BeepCount;
    if (log_ != nullptr) log_->push_back(L"Beep");
  }

 private:
  Log* log_ = nullptr;
};

}  // namespace tessera
