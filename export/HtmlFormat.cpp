// All numbers of the header have as many digits, so that its length is known beforehand.
#include "export/HtmlFormat.h"

namespace tessera {
namespace {

constexpr std::string_view PageBegin = "<html><body>\r\n<!--StartFragment-->";
constexpr std::string_view PageEnd = "<!--EndFragment-->\r\n</body></html>";

constexpr std::size_t Digits = 10;

std::string Line(std::string_view name, std::size_t offset) {
  const std::string digits = std::to_string(offset);
  return std::string(name) + ":" + std::string(Digits - digits.size(), '0') + digits + "\r\n";
}

std::string Header(std::size_t pageBegin, std::size_t pieceBegin, std::size_t pieceEnd,
                   std::size_t pageEnd) {
  return "Version:0.9\r\n" + Line("StartHTML", pageBegin) + Line("EndHTML", pageEnd) +
         Line("StartFragment", pieceBegin) + Line("EndFragment", pieceEnd);
}

}  // namespace

std::string HtmlFormat(std::string_view piece) {
  const std::size_t pageBegin = Header(0, 0, 0, 0).size();
  const std::size_t pieceBegin = pageBegin + PageBegin.size();
  const std::size_t pieceEnd = pieceBegin + piece.size();
  return Header(pageBegin, pieceBegin, pieceEnd, pieceEnd + PageEnd.size())
      .append(PageBegin)
      .append(piece)
      .append(PageEnd);
}

}  // namespace tessera
