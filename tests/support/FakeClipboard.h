// A clipboard that remembers all that was put there.
#pragma once

#include <string>
#include <vector>

#include "platform/Clipboard.h"

namespace tessera {

class FakeClipboard final : public Clipboard {
 public:
  std::vector<std::wstring> Texts;  ///< the last one is on the clipboard

  std::vector<std::string> Htmls;  ///< likewise

  bool IsHeld = false;  ///< by another program

  bool SetText(const std::wstring& text) override {
    if (!IsHeld) Texts.push_back(text);
    return !IsHeld;
  }

  bool SetTextAndHtml(const std::wstring& text, const std::string& html) override {
    if (!IsHeld) Htmls.push_back(html);
    return SetText(text);
  }
};

}  // namespace tessera
