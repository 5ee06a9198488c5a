// The registry, by predefined key, subkey and value name.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

/// A predefined key, by the number that the system gives it (0x80000001 is HKEY_CURRENT_USER).
enum class RootKey : std::uint32_t {
  ClassesRoot = 0x80000000,
  CurrentUser = 0x80000001,
  LocalMachine = 0x80000002,
  Users = 0x80000003,
  CurrentConfig = 0x80000005,
  DynData = 0x80000006,
};

struct RegistryValue {
  std::uint32_t Type = 0;  ///< 1 and 2 text, 3 binary, 4 number, as the system counts them
  std::string Bytes;       ///< as stored, a list of texts in the ANSI code page
  std::wstring Text{};     ///< of types 1 and 2, in place of bytes; with its terminator
};

class Registry {
 public:
  virtual ~Registry() = default;

  /// The value, or nothing when it or its key is absent or holds more than `capacity` bytes, or
  /// characters of a text.
  [[nodiscard]] virtual std::optional<RegistryValue> Query(RootKey root, const std::wstring& subkey,
                                                           const std::wstring& name,
                                                           std::size_t capacity) const = 0;

  /// Creates the key as needed, sets the value and flushes it; false on any error.
  virtual bool Set(RootKey root, const std::wstring& subkey, const std::wstring& name,
                   const RegistryValue& value) = 0;

  /// Deletes the key `name` below `subkey`; false on any error.
  virtual bool DeleteKey(RootKey root, const std::wstring& subkey, const std::wstring& name) = 0;
};

}  // namespace tessera
