// Texts of the system, short and long.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win32/SystemText.h"

namespace tessera::system_text_test {
namespace {

/// As the functions do it that tell how much room they need.
std::wstring Told(const std::wstring& text) {
  return SystemText([&text](wchar_t* buffer, DWORD size) {
    const auto length = static_cast<DWORD>(text.size());
    if (length >= size) return length + 1;
    std::ranges::copy(text, buffer);
    return length;
  });
}

/// As the functions do it that cut off what does not fit.
std::wstring CutOff(const std::wstring& text) {
  return SystemText([&text](wchar_t* buffer, DWORD size) {
    const std::wstring part = text.substr(0, size - 1);
    std::ranges::copy(part, buffer);
    return static_cast<DWORD>(text.size() < size ? text.size() : size);
  });
}

TEST(SystemText, HasItsWholeLength) {
  for (const std::size_t length : {0U, 1U, 258U, 259U, 260U, 261U, 519U, 520U, 521U, 40000U}) {
    const std::wstring text(length, L'x');
    EXPECT_EQ(Told(text), text);
    EXPECT_EQ(CutOff(text), text);
  }
}

}  // namespace
}  // namespace tessera::system_text_test
