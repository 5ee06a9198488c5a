// The clipboard, as another program finds it.
#pragma once

#include <string>

namespace tessera::e2e {

/// Its text; empty when it holds none.
[[nodiscard]] std::wstring ClipboardText();

/// Its "HTML Format"; empty when it holds none.
[[nodiscard]] std::string ClipboardHtml();

void SetClipboardText(const std::wstring& text);

}  // namespace tessera::e2e
