// Registry values, addressed by one path text that begins with the name of a root key.
#pragma once

#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace tessera {

class cRegistry {
 public:
  explicit cRegistry(Registry& registry);

  /// A text value as text; a binary one as upper-case hexadecimal digits; a number as its first
  /// three bytes (a quirk that is kept); the missing marker when the value, its key or the root
  /// name does not exist.
  [[nodiscard]] std::wstring ReadValue(std::wstring_view keyPath,
                                       std::wstring_view valueName) const;

  /// Sets a text (type 1), or a number (type 4) read from the leading number of `value`.
  void WriteValue(std::wstring_view keyPath, std::wstring_view valueName, std::wstring_view value,
                  int type);

  /// Deletes the key `name` below `keyPath`.
  void Deletekey(std::wstring_view keyPath, std::wstring_view name);

 private:
  Registry& registry_;
};

}  // namespace tessera
