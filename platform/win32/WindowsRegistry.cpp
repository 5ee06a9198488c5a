// Names and texts go through as they are; lists of texts become bytes of the ANSI code page.
#include "platform/win32/WindowsRegistry.h"

#include <windows.h>

#include <memory>
#include <type_traits>

#include "text/Text.h"

namespace tessera {
namespace {

struct KeyCloser {
  void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};

using UniqueKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

HKEY Predefined(RootKey root) {
  // A predefined key is its number with the sign carried to the width of a pointer.
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
}

UniqueKey OpenKey(RootKey root, const std::wstring& subkey, REGSAM access) {
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExW(Predefined(root), subkey.c_str(), 0, access, &key);
  return UniqueKey(status == ERROR_SUCCESS ? key : nullptr);
}

bool IsText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ; }

std::optional<RegistryValue> QueryIn(HKEY key, const std::wstring& name) {
  DWORD type{};
  DWORD size{};
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  std::string bytes(size, '\0');
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()),
                       &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  bytes.resize(size);
  if (!IsText(type) && type != REG_MULTI_SZ) return RegistryValue{type, bytes};
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  bytes.copy(reinterpret_cast<char*>(text.data()), text.size() * sizeof(wchar_t));
  return IsText(type) ? RegistryValue{type, {}, text} : RegistryValue{type, Encode(text)};
}

}  // namespace

std::optional<RegistryValue> WindowsRegistry::Query(RootKey root, const std::wstring& subkey,
                                                    const std::wstring& name,
                                                    std::size_t capacity) const {
  // What a 32-bit Total Commander stored for the machine stands in the view of 32-bit programs.
  for (const REGSAM view : {REGSAM{0}, REGSAM{KEY_WOW64_32KEY}}) {
    const UniqueKey key = OpenKey(root, subkey, KEY_QUERY_VALUE | view);
    if (!key) continue;
    const auto value = QueryIn(key.get(), name);
    if (value && value->Bytes.size() <= capacity && value->Text.size() <= capacity) return value;
  }
  return std::nullopt;
}

bool WindowsRegistry::Set(RootKey root, const std::wstring& subkey, const std::wstring& name,
                          const RegistryValue& value) {
  HKEY created = nullptr;
  if (RegCreateKeyExW(Predefined(root), subkey.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                      KEY_SET_VALUE, nullptr, &created, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const UniqueKey key(created);
  const bool isText = IsText(value.Type);
  const void* const data = isText ? static_cast<const void*>(value.Text.data())
                                  : static_cast<const void*>(value.Bytes.data());
  const std::size_t size = isText ? value.Text.size() * sizeof(wchar_t) : value.Bytes.size();
  return RegSetValueExW(key.get(), name.c_str(), 0, value.Type, static_cast<const BYTE*>(data),
                        static_cast<DWORD>(size)) == ERROR_SUCCESS &&
         RegFlushKey(key.get()) == ERROR_SUCCESS;
}

bool WindowsRegistry::DeleteKey(RootKey root, const std::wstring& subkey,
                                const std::wstring& name) {
  const UniqueKey key = OpenKey(root, subkey, KEY_ALL_ACCESS);
  return key && RegDeleteKeyW(key.get(), name.c_str()) == ERROR_SUCCESS;
}

}  // namespace tessera
