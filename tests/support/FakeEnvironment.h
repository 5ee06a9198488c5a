// Surroundings that a test describes.
#pragma once

#include <map>
#include <string>

#include "platform/Environment.h"

namespace tessera {

class FakeEnvironment final : public Environment {
 public:
  std::map<std::wstring, std::wstring> Variables;
  std::wstring Directory = L"C:\\Tessera";
  TwipsSize Screen{28800, 16200};  ///< 1920 x 1080 at 96 dots per inch

  [[nodiscard]] std::wstring Variable(const std::wstring& name) const override {
    const auto found = Variables.find(name);
    return found == Variables.end() ? std::wstring() : found->second;
  }
  [[nodiscard]] std::wstring ProgramDirectory() const override { return Directory; }
  [[nodiscard]] std::wstring TemporaryDirectory() const override { return L"C:\\Temp\\"; }
  [[nodiscard]] TwipsSize ScreenSize() const override { return Screen; }
};

}  // namespace tessera
