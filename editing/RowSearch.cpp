// Each row's texts stand in one text, as they are compared.
#include "editing/RowSearch.h"

#include <algorithm>

#include "text/Text.h"

namespace tessera {
namespace {

/// Between two texts of a row: no word holds it.
constexpr wchar_t BetweenTexts = L'\0';

/// Appends the text without the blanks around each "+".
void AppendJoined(std::wstring& joined, std::wstring_view text) {
  std::size_t copied = 0;
  for (std::size_t plus = text.find(L'+'); plus != std::wstring_view::npos;
       plus = text.find(L'+', copied)) {
    std::size_t before = plus;
    while (before > copied && text[before - 1] == L' ') --before;
    joined.append(text.substr(copied, before - copied)).append(1, L'+');
    copied = std::min(text.find_first_not_of(L' ', plus + 1), text.size());
  }
  joined.append(text.substr(copied));
}

}  // namespace

std::vector<std::wstring> WordsOf(std::wstring_view text) {
  std::wstring joined;
  AppendJoined(joined, text);
  joined = ToUpper(joined);
  std::vector<std::wstring> words;
  for (std::size_t begin = 0; begin < joined.size();) {
    const std::size_t end = std::min(joined.find(L' ', begin), joined.size());
    if (end > begin) words.push_back(joined.substr(begin, end - begin));
    begin = end + 1;
  }
  return words;
}

std::vector<bool> RowSearch::Match(const DisplayTable& rows,
                                   const std::vector<std::wstring>& words) {
  if (changes_ != rows.Changes()) Read(rows);
  std::vector<bool> matches(ends_.size(), true);
  std::size_t begin = 0;
  for (std::size_t row = 0; row < ends_.size(); ++row) {
    const std::wstring_view texts = std::wstring_view(texts_).substr(begin, ends_[row] - begin);
    matches[row] = !texts.empty() && std::ranges::all_of(words, [&](const std::wstring& word) {
      return texts.find(word) != std::wstring_view::npos;
    });
    begin = ends_[row];
  }
  return matches;
}

void RowSearch::Read(const DisplayTable& rows) {
  std::wstring texts;
  ends_.clear();
  rows.ForEachRow([&](const CommandEntry& row) {
    if (!row.IsHeading()) {
      for (const std::wstring_view text :
           {row.Description, row.CommandName, row.Tag, std::wstring_view(row.DefaultKeys),
            std::wstring_view(row.CurrentKeys)}) {
        AppendJoined(texts, text);
        texts += BetweenTexts;
      }
    }
    ends_.push_back(texts.size());
  });
  texts_ = ToUpper(texts);
  changes_ = rows.Changes();
}

}  // namespace tessera
