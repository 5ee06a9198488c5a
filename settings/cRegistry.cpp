// Turns path texts into root keys, and stored bytes into texts.
#include "settings/cRegistry.h"

#include <array>
#include <optional>
#include <utility>

#include "settings/ini/MissingMarker.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace tessera {
namespace {

constexpr std::size_t ValueCapacity = 2048;  // bytes, or characters of a text

constexpr std::uint32_t TypeText = 1;
constexpr std::uint32_t TypeExpandableText = 2;
constexpr std::uint32_t TypeBinary = 3;
constexpr std::uint32_t TypeNumber = 4;

constexpr std::array<std::pair<std::wstring_view, RootKey>, 6> RootKeys{{
    {L"HKEY_CLASSES_ROOT", RootKey::ClassesRoot},
    {L"HKEY_CURRENT_USER", RootKey::CurrentUser},
    {L"HKEY_LOCAL_MACHINE", RootKey::LocalMachine},
    {L"HKEY_USERS", RootKey::Users},
    {L"HKEY_CURRENT_CONFIG", RootKey::CurrentConfig},
    {L"HKEY_DYN_DATA", RootKey::DynData},
}};

struct KeyAddress {
  RootKey Root;
  std::wstring Subkey;
};

/// The parts of a key path; nothing when it does not begin with the name of a root key.
std::optional<KeyAddress> AddressOf(std::wstring_view keyPath) {
  const std::size_t end = keyPath.find(L'\\');
  for (const auto& [name, root] : RootKeys) {
    if (!EqualIgnoringCase(name, keyPath.substr(0, end))) continue;
    const bool hasSubkey = end != std::wstring_view::npos;
    return KeyAddress{root, hasSubkey ? std::wstring(keyPath.substr(end + 1)) : std::wstring()};
  }
  return std::nullopt;
}

std::wstring HexadecimalDigits(std::string_view bytes) {
  constexpr std::wstring_view Digits = L"0123456789ABCDEF";
  std::wstring result;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    result += Digits[value >> 4U];
    result += Digits[value & 15U];
  }
  return result;
}

/// Deliberate: the last character falls away whether it is the terminator or not.
template <typename Character>
std::basic_string<Character> WithoutLast(std::basic_string_view<Character> text) {
  return std::basic_string<Character>(text.substr(0, text.empty() ? 0 : text.size() - 1));
}

std::string NumberBytes(std::wstring_view text) {
  auto number = static_cast<std::uint32_t>(RoundTo32Bits(LeadingNumber(text)));
  std::string bytes;
  for (int i = 0; i < 4; ++i, number >>= 8U) bytes += static_cast<char>(number & 255U);
  return bytes;
}

}  // namespace

cRegistry::cRegistry(Registry& registry) : registry_(registry) {}

std::wstring cRegistry::ReadValue(std::wstring_view keyPath, std::wstring_view valueName) const {
  const auto address = AddressOf(keyPath);
  if (!address) return std::wstring(MissingMarker);
  const auto value =
      registry_.Query(address->Root, address->Subkey, std::wstring(valueName), ValueCapacity);
  if (!value) return std::wstring(MissingMarker);
  if (value->Type == TypeBinary) return HexadecimalDigits(value->Bytes);
  if (value->Type == TypeText || value->Type == TypeExpandableText) {
    return WithoutLast(std::wstring_view(value->Text));
  }
  // Deliberate: a number is not formatted; its last byte falls away like a text's terminator.
  return Decode(WithoutLast(std::string_view(value->Bytes)));
}

void cRegistry::WriteValue(std::wstring_view keyPath, std::wstring_view valueName,
                           std::wstring_view value, int type) {
  const auto address = AddressOf(keyPath);
  if (!address) return;
  RegistryValue stored;
  stored.Type = static_cast<std::uint32_t>(type);
  if (stored.Type == TypeText) {
    stored.Text = std::wstring(value) + L'\0';
  } else if (stored.Type == TypeNumber) {
    stored.Bytes = NumberBytes(value);
  } else {
    return;
  }
  registry_.Set(address->Root, address->Subkey, std::wstring(valueName), stored);
}

void cRegistry::Deletekey(std::wstring_view keyPath, std::wstring_view name) {
  if (const auto address = AddressOf(keyPath)) {
    registry_.DeleteKey(address->Root, address->Subkey, std::wstring(name));
  }
}

}  // namespace tessera
