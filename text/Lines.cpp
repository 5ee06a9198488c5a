// Finds the ends of lines in one walk along the text.
#include "text/Lines.h"

#include <algorithm>

namespace tessera {
namespace {

template <typename View>
std::vector<View> Split(View text) {
  std::vector<View> lines;
  // Each of the two is looked for again only once it is passed, so that no character is seen twice.
  std::size_t carriageReturn = text.find('\r');
  std::size_t lineFeed = text.find('\n');
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t end = std::min({carriageReturn, lineFeed, text.size()});
    if (end < text.size()) end += end + 1 == lineFeed ? 2 : 1;
    lines.push_back(text.substr(begin, end - begin));
    begin = end;
    if (carriageReturn < begin) carriageReturn = text.find('\r', begin);
    if (lineFeed < begin) lineFeed = text.find('\n', begin);
  }
  return lines;
}

}  // namespace

std::vector<std::string_view> SplitIntoLines(std::string_view text) { return Split(text); }

std::vector<std::wstring_view> SplitIntoLines(std::wstring_view text) { return Split(text); }

}  // namespace tessera
