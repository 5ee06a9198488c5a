// What remains of a caption without its mnemonic.
#include "localisation/Mnemonic.h"

#include <gtest/gtest.h>

namespace tessera::mnemonic_test {
namespace {

struct Case {
  std::wstring_view Caption;
  std::wstring_view Plain;
};

TEST(Mnemonic, IsTakenOutOfACaption) {
  constexpr Case Cases[] = {
      {L"&Open...", L"Open..."},           {L"E&xit", L"Exit"},         {L"Options", L"Options"},
      {L"Fish && chips", L"Fish & chips"}, {L"Ends in &", L"Ends in "}, {L"", L""},
  };
  for (const Case& each : Cases) EXPECT_EQ(WithoutMnemonic(each.Caption), each.Plain);
}

TEST(Mnemonic, AddedInParenthesesGoesAsAWhole) {
  constexpr Case Cases[] = {
      {L"\x6253\x5F00(&O)...", L"\x6253\x5F00..."},
      {L"Open (&O)", L"Open"},
      {L"(&O)", L""},
      {L"(requires &restart)", L"(requires restart)"},
      {L"(&&)", L"(&)"},
      {L"Cut (&O", L"Cut (O"},
  };
  for (const Case& each : Cases) EXPECT_EQ(WithoutMnemonic(each.Caption), each.Plain);
}

TEST(Mnemonic, IsTheLetterBehindTheMark) {
  constexpr struct {
    std::wstring_view Caption;
    wchar_t Letter;
  } Cases[] = {{L"&Open...", L'O'},
               {L"E&xit", L'x'},
               {L"\x6253(&O)...", L'O'},
               {L"Options", L'\0'},
               {L"", L'\0'},
               {L"Ends in &", L'\0'},
               {L"Fish && c", L'\0'},
               {L"A && &B && C", L'B'},
               {L"&&", L'\0'},
               {L"&\x0424", L'\x0424'}};
  for (const auto& each : Cases) EXPECT_EQ(MnemonicOf(each.Caption), each.Letter);
}

}  // namespace
}  // namespace tessera::mnemonic_test
