// A clipboard that remembers every text that was put there.
#pragma once

#include <string>
#include <vector>

#include "platform/Clipboard.h"

namespace tessera {

class FakeClipboard final : public Clipboard {
 public:
  std::vector<std::wstring> Texts;  ///< the last one is on the clipboard

  void SetText(const std::wstring& text) override { Texts.push_back(text); }
};

}  // namespace tessera
