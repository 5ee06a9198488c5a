// The clipboard: plain text, and tables.
#pragma once

#include <string>

namespace tessera {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Clears the clipboard and puts `text` there; its line breaks are CR LF. False when another
  /// program holds the clipboard for long, or memory is short: nothing is then put there.
  virtual bool SetText(const std::wstring& text) = 0;

  /// The same for a text and, for programs that can show more, what the system calls "HTML Format".
  /// Both get there or none.
  virtual bool SetTextAndHtml(const std::wstring& text, const std::string& html) = 0;
};

}  // namespace tessera
