// Splitting the toolbar's text.
#include "app/ToolbarSpecification.h"

#include "text/Text.h"

namespace tessera {

namespace {

/// Takes the text up to the next "," off the front.
std::wstring_view TakeItem(std::wstring_view& text) {
  const std::size_t end = text.find(L',');
  const std::wstring_view item = text.substr(0, end);
  text.remove_prefix(end == std::wstring_view::npos ? text.size() : end + 1);
  return item;
}

ToolbarStyle StyleOf(wchar_t digit) {
  switch (digit) {
    case L'1':
      return ToolbarStyle::Check;
    case L'3':
      return ToolbarStyle::Separator;
    case L'5':
      return ToolbarStyle::DropDown;
    default:
      return ToolbarStyle::Normal;
  }
}

int DecimalOf(std::wstring_view digits) {
  int number = 0;
  for (const wchar_t digit : digits) {
    number = number * 10 + (digit - L'0');
  }
  return number;
}

}  // namespace

std::vector<ToolbarButton> ParseToolbar(std::wstring_view buttons, std::wstring_view tags) {
  std::vector<ToolbarButton> parsed;
  int image = 0;
  while (!buttons.empty()) {
    const std::wstring_view item = TakeItem(buttons);
    if (item.empty()) {
      continue;
    }
    ToolbarButton button;
    button.Style = StyleOf(item.front());
    if (button.Style != ToolbarStyle::Separator) {
      button.Key = ToLower(item.substr(1));
      button.ToolTip = TextId{DecimalOf(TakeItem(tags))};
      button.Image = image++;
    }
    parsed.push_back(button);
  }
  return parsed;
}

}  // namespace tessera
