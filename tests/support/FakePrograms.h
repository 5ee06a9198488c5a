// Other programs as a test describes them, and a log of what was done to them.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/Programs.h"
#include "tests/support/Log.h"

namespace tessera {

class FakePrograms final : public Programs {
 public:
  explicit FakePrograms(Log& log) : log_(log) {}

  std::map<std::wstring, WindowId> Windows;  ///< by class name
  std::map<WindowId, std::wstring> Paths;    ///< of the programs they belong to
  bool CloseIsAllowed = true;
  mutable int PollsBeforeAnswer = 0;  ///< how often one is still awaited; negative: for ever
  bool StartSucceeds = true;
  bool OpenSucceeds = true;
  std::function<void()> OnClose;  ///< when a window is asked to close
  std::function<void()> OnOpen;   ///< when a document is opened

  [[nodiscard]] WindowId FindWindowOfClass(const std::wstring& className) const override {
    const auto found = Windows.find(className);
    return found == Windows.end() ? 0 : found->second;
  }
  [[nodiscard]] std::wstring PathOf(WindowId window) const override {
    const auto found = Paths.find(window);
    return found == Paths.end() ? L"" : found->second;
  }
  void SetForeground(WindowId window) override {
    log_.push_back(L"SetForeground " + std::to_wstring(window));
  }
  bool SendClose(WindowId window) override {
    log_.push_back(L"SendClose " + std::to_wstring(window));
    if (OnClose) OnClose();
    return CloseIsAllowed;
  }
  [[nodiscard]] bool AwaitsAnswer() const override {
    return PollsBeforeAnswer != 0 && PollsBeforeAnswer-- != 0;
  }
  bool Start(const std::wstring& commandLine) override {
    log_.push_back(L"Start " + commandLine);
    return StartSucceeds;
  }
  bool OpenDocument(const std::wstring& path) override {
    log_.push_back(L"OpenDocument " + path);
    if (OnOpen) OnOpen();
    return OpenSucceeds;
  }

 private:
  Log& log_;
};

}  // namespace tessera
