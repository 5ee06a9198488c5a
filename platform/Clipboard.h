// The clipboard's plain text.
#pragma once

#include <string>

namespace tessera {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Clears the clipboard and puts `text` there; its line breaks are CR LF. While another program
  /// holds the clipboard for long, or memory is short, nothing is put there.
  virtual void SetText(const std::wstring& text) = 0;
};

}  // namespace tessera
