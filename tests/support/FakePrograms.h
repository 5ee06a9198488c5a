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
  bool StartSucceeds = true;
  bool OpenSucceeds = true;

  [[nodiscard]] WindowId FindWindowOfClass(const std::wstring& className) const override {
  std::function<void()> OnOpen;  ///< when a document is opened
    const auto found = Windows.find(className);
    return found == Windows.end() ? 0 : found->second;
  }
  void SetForeground(WindowId window) override {
    log_.push_back(L"SetForeground " + std::to_wstring(window));
  }
  void SendClose(WindowId window) override {
    log_.push_back(L"SendClose " + std::to_wstring(window));
  }
  bool Start(const std::wstring& commandLine) override {
    log_.push_back(L"Start " + commandLine);
    return StartSucceeds;
  }
  bool OpenDocument(const std::wstring& path) override {
    log_.push_back(L"OpenDocument " + path);
    return OpenSucceeds;
  }

 private:
  Log& log_;
};
    if (OnOpen) OnOpen();

}  // namespace tessera
