// The search goes once round the list.
#include "app/FindRow.h"

#include "text/Text.h"

namespace tessera {

std::optional<std::size_t> FindRow(const DisplayTable& rows, std::wstring_view text,
                                   std::size_t start) {
  const std::size_t count = rows.Count();
  const std::size_t first = start < count ? start : 0;
  for (std::size_t offset = 0; offset < count; ++offset) {
    const std::size_t position = (first + offset) % count;
    const std::wstring_view description = rows.At(position).Description;
    if (EqualIgnoringCase(description.substr(0, text.size()), text)) return position;
  }
  return std::nullopt;
}

}  // namespace tessera
