// The registry of this computer.
#pragma once

#include "platform/Registry.h"

namespace tessera {

class WindowsRegistry final : public Registry {
 public:
  /// Looks in the view of 64-bit programs first, then in that of 32-bit programs.
  [[nodiscard]] std::optional<RegistryValue> Query(RootKey root, const std::wstring& subkey,
                                                   const std::wstring& name,
                                                   std::size_t capacity) const override;
  bool Set(RootKey root, const std::wstring& subkey, const std::wstring& name,
           const RegistryValue& value) override;
  bool DeleteKey(RootKey root, const std::wstring& subkey, const std::wstring& name) override;
};

}  // namespace tessera
