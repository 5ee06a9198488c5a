// Dialogs that answer from a script, and remember what they were asked; unscripted ones are
// cancelled.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "tests/support/Log.h"

namespace tessera {

class FakeDialogs final : public Dialogs {
 public:
  FakeDialogs() = default;
  explicit FakeDialogs(Log& log) : log_(&log) {}

  std::vector<FileDialogRequest> OpenRequests;
  std::vector<FileDialogRequest> SaveRequests;
  std::vector<FontRecord> FontRequests;
  std::deque<std::optional<std::wstring>> OpenAnswers;
  std::deque<std::optional<std::wstring>> SaveAnswers;
  std::deque<std::optional<std::uint32_t>> ColorAnswers;
  std::deque<std::optional<FontRecord>> FontAnswers;

  std::optional<std::wstring> Open(const FileDialogRequest& request) override {
    Record(L"Open " + request.FileName);
    OpenRequests.push_back(request);
    return Next(OpenAnswers);
  }

  std::optional<std::wstring> Save(const FileDialogRequest& request) override {
    Record(L"Save " + request.FileName);
    SaveRequests.push_back(request);
    return Next(SaveAnswers);
  }

  std::optional<std::uint32_t> Color() override {
    Record(L"Color");
    return Next(ColorAnswers);
  }

  bool Font(FontRecord& font) override {
    Record(L"Font " + font.FaceName);
    FontRequests.push_back(font);
    const auto answer = Next(FontAnswers);
    if (answer) font = *answer;
    return answer.has_value();
  }

 private:
  template <typename Answer>
  static std::optional<Answer> Next(std::deque<std::optional<Answer>>& answers) {
    if (answers.empty()) return std::nullopt;
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }

  void Record(const std::wstring& call) {
    if (log_ != nullptr) log_->push_back(call);
  }

  Log* log_ = nullptr;
};

}  // namespace tessera
