// A clipboard that remembers every text that was put there.
#pragma once

#include <string>
#include <vector>

#include "platform/Clipboard.h"

namespace tessera {

class FakeClipboard final : public Clipboard {
 public:
  std::vector<std::wstring> Texts;  ///< the last one is on the clipboard

  bool IsHeld = false;  ///< by another program

  bool SetText(const std::wstring& text) override {
    if (!IsHeld) Texts.push_back(text);
    return !IsHeld;
  }
};

}  // namespace tessera
