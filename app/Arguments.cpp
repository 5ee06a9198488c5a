// One switch; everything else is a file.
#include "app/Arguments.h"

#include <string_view>
#include <utility>

#include "text/Text.h"

namespace tessera {
namespace {

constexpr std::wstring_view PageSwitch = L"/page";

/// The file that a switch names; nothing for an argument that is none.
std::optional<std::wstring> PageOf(std::wstring_view argument) {
  if (!EqualIgnoringCase(argument.substr(0, PageSwitch.size()), PageSwitch)) return std::nullopt;
  const std::wstring_view rest = argument.substr(PageSwitch.size());
  if (rest.empty()) return L"";
  if (!rest.starts_with(L'=')) return std::nullopt;
  return std::wstring(rest.substr(1));
}

}  // namespace

Arguments ReadArguments(std::span<const wchar_t* const> arguments) {
  Arguments read;
  bool hasFile = false;
  for (const std::wstring_view argument : arguments) {
    if (std::optional<std::wstring> page = PageOf(argument)) {
      if (!read.Page) read.Page = std::move(page);
    } else if (!std::exchange(hasFile, true)) {
      read.File = argument;
    }
  }
  return read;
}

}  // namespace tessera
