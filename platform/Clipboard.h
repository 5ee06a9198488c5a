// The clipboard's plain text.
#pragma once

#include <string>

namespace tessera {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Clears the clipboard and puts `text` there; its line breaks are CR LF. False when another
  /// program holds the clipboard for long, or memory is short: nothing is then put there.
  virtual bool SetText(const std::wstring& text) = 0;
};

}  // namespace tessera
