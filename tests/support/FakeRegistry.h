// A registry in memory, which also tells what was asked of it.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>

#include "platform/Registry.h"
#include "tests/support/Log.h"

namespace tessera {

class FakeRegistry final : public Registry {
 public:
  using Address = std::tuple<RootKey, std::wstring, std::wstring>;  ///< root, subkey, name

  FakeRegistry() = default;
  explicit FakeRegistry(Log& log) : log_(&log) {}

  std::map<Address, RegistryValue> Values;

  /// Stores a text as the system does, with its terminator.
  void SetText(RootKey root, const std::wstring& subkey, const std::wstring& name,
               const std::wstring& text) {
    Values[{root, subkey, name}] = {1, {}, text + L'\0'};
  }

  [[nodiscard]] std::optional<RegistryValue> Query(RootKey root, const std::wstring& subkey,
                                                   const std::wstring& name,
                                                   std::size_t capacity) const override {
    Record(L"Query", root, subkey, name);
    const auto found = Values.find({root, subkey, name});
    if (found == Values.end()) return std::nullopt;
    const RegistryValue& value = found->second;
    const bool fits = value.Bytes.size() <= capacity && value.Text.size() <= capacity;
    return fits ? std::optional(value) : std::nullopt;
  }

  bool Set(RootKey root, const std::wstring& subkey, const std::wstring& name,
           const RegistryValue& value) override {
    Record(L"Set", root, subkey, name);
    Values[{root, subkey, name}] = value;
    return true;
  }

  bool DeleteKey(RootKey root, const std::wstring& subkey, const std::wstring& name) override {
    Record(L"DeleteKey", root, subkey, name);
    const std::wstring key = subkey + L'\\' + name;
    return std::erase_if(Values, [&](const auto& entry) {
             return std::get<0>(entry.first) == root && std::get<1>(entry.first) == key;
           }) != 0;
  }

 private:
  void Record(const std::wstring& call, RootKey root, const std::wstring& subkey,
              const std::wstring& name) const {
    if (log_ == nullptr) return;
    const auto number = static_cast<std::uint32_t>(root) - 0x80000000U;
    log_->push_back(call + L' ' + std::to_wstring(number) + L' ' + subkey + L' ' + name);
  }

  Log* log_ = nullptr;
};

}  // namespace tessera
