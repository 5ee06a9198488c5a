// Every search goes once round the list.
#include "app/FindRow.h"

#include <algorithm>
#include <string>

#include "text/Text.h"

namespace tessera {
namespace {

constexpr std::wstring_view CommandPrefix = L"cm_";

template <typename IsMeant>
std::optional<std::size_t> FindRound(const ShownRows& rows, std::size_t start,
                                     const IsMeant& isMeant) {
  const std::size_t count = rows.Count();
  const std::size_t first = start < count ? start : 0;
  for (std::size_t offset = 0; offset < count; ++offset) {
    const std::size_t position = (first + offset) % count;
    if (isMeant(rows.At(position))) return position;
  }
  return std::nullopt;
}

bool BeginsWith(std::wstring_view text, std::wstring_view beginning) {
  return EqualIgnoringCase(text.substr(0, beginning.size()), beginning);
}

bool NameBeginsWith(const CommandEntry& row, std::wstring_view beginning) {
  const std::wstring_view name = row.CommandName;
  return BeginsWith(name, beginning) || (BeginsWith(name, CommandPrefix) &&
                                         BeginsWith(name.substr(CommandPrefix.size()), beginning));
}

/// `text` in upper case.
bool Holds(const CommandEntry& row, const std::wstring& text) {
  return std::ranges::any_of(AllColumns, [&](Column column) {
    return ToUpper(CellText(row, column)).find(text) != std::wstring::npos;
  });
}

}  // namespace

std::optional<std::size_t> FindRow(const ShownRows& rows, std::wstring_view text,
                                   std::size_t start) {
  return FindRound(rows, start,
                   [&](const CommandEntry& row) { return BeginsWith(row.Description, text); });
}

std::optional<std::size_t> FindTypedRow(const ShownRows& rows, std::wstring_view text,
                                        std::size_t start) {
  if (const auto found = FindRow(rows, text, start)) return found;
  const auto named =
      FindRound(rows, start, [&](const CommandEntry& row) { return NameBeginsWith(row, text); });
  if (named) return named;
  const std::wstring upper = ToUpper(text);
  return FindRound(rows, start, [&](const CommandEntry& row) { return Holds(row, upper); });
}

}  // namespace tessera
