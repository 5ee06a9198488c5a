// The native notation of Wincmd.ini becomes the shown one, and back.
#include <gtest/gtest.h>

#include <string>

#include "tests/unit/notations.h"

namespace tessera::hotkey_notation_native_test {
namespace {

using namespace notations;

TEST(NativeToDisplay, ShowsModifiersInFixedOrderAndTheKeyInUpperCase) {
  const Conversion conversions[] = {
      {L"CA+F1", L"Ctrl + Alt + F1"},     {L"SAC+f1", L"Ctrl + Alt + Shift + F1"},
      {L"SC+a", L"Ctrl + Shift + A"},     {L"A+X", L"Alt + X"},
      {L"CS + F5", L"Ctrl + Shift + F5"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().NativeToDisplay(from, L"---"), to);
  }
}

TEST(NativeToDisplay, MarksTheKeypadOperators) {
  const Conversion conversions[] = {
      {L"A++", L"Alt + Num +"},   {L"C+-", L"Ctrl + Num -"},
      {L"S+*", L"Shift + Num *"}, {L"CA+/", L"Ctrl + Alt + Num /"},
      {L"-", L"Num -"},           {L"*", L"Num *"},
      {L"/", L"Num /"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().NativeToDisplay(from, L"---"), to);
  }
}

TEST(NativeToDisplay, TakesAPlusAloneForTheKeypadPlus) {
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"+", L"---"), L"Num +");
  EXPECT_EQ(Reversed().NativeToDisplay(L"+", L"---"), L"Num +");
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L" +"), L"+");
}

TEST(NativeToDisplay, KeepsTheLetterCaseOfAKeyWithoutPlus) {
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"f3", L"---"), L"f3");
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"Space", L"---"), L"Space");
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"OEM_US[{", L"---"), L"OEM_US[{");
}

TEST(NativeToDisplay, KnowsOnlyUpperCaseModifierLetters) {
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"cas+F1", L"---"), L"F1");
}

TEST(NativeToDisplay, GivesSomethingForOddKeys) {
  const Conversion conversions[] = {
      {L"", L""},         {L" ", L" "},        {L"++", L"Num +"},
      {L"+++", L"++"},    {L"C+", L"Ctrl + "}, {L"+C", L"C"},
      {L" + ", L"Num +"}, {L"X+F1", L"F1"},    {L"C+A+F1", L"Ctrl + A+F1"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().NativeToDisplay(from, L"---"), to);
  }
  EXPECT_EQ(Reversed().NativeToDisplay(L"C+", L"---"), L" + Ctrl");
  EXPECT_EQ(Reversed().NativeToDisplay(L"", L"---"), L"");
}

TEST(NativeToDisplay, AddsToTheKeysThatAreThere) {
  const HotkeyNotation notation;
  std::wstring column = notation.NativeToDisplay(L"F2", L"---");
  column = notation.NativeToDisplay(L"C+R", column);
  column = notation.NativeToDisplay(L"A++", column);
  EXPECT_EQ(column, L"F2 = Ctrl + R = Alt + Num +");
  EXPECT_EQ(notation.KeysOf(column), (Strings{L"F2", L"Ctrl + R", L"Alt + Num +"}));
}

TEST(NativeToDisplay, ReplacesOnlyTheUndefinedMarkerInForce) {
  HotkeyNotation notation;
  notation.UndefinedHotkey = L"none";
  EXPECT_EQ(notation.NativeToDisplay(L"F2", L"none"), L"F2");
  EXPECT_EQ(notation.NativeToDisplay(L"F2", L"None"), L"None = F2");
  EXPECT_EQ(notation.NativeToDisplay(L"F2", L"---"), L"--- = F2");
}

TEST(NativeToDisplay, AddsReversedKeysWithoutTouchingTheOthers) {
  const HotkeyNotation notation = Reversed();
  const std::wstring column = notation.NativeToDisplay(L"CA+F1", L"R + Ctrl");
  EXPECT_EQ(column, L"R + Ctrl = F1 + Ctrl + Alt");
}

TEST(NativeToDisplay, LosesLocalisedModifiersInReverseOrder) {
  HotkeyNotation notation = Named(L"Strg", L"Alt", L"Umschalt");
  notation.ReverseOrderHotkey = true;
  EXPECT_EQ(notation.NativeToDisplay(L"C+F1", L"---"), L"F1");
  EXPECT_EQ(notation.NativeToDisplay(L"CA+F1", L"---"), L"F1 + Alt");
}

TEST(DisplayToNative, WritesTheLettersInFixedOrder) {
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L"Shift + Alt + Ctrl + F1"), L"CAS+F1");
  EXPECT_EQ(Reversed().DisplayToNative(L"F1 + Alt + Ctrl"), L"CA+F1");
}

TEST(DisplayToNative, FindsNamesInTheirOwnLetterCaseOnly) {
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L"ctrl + F1"), L"ctrl + F1");
  EXPECT_EQ(Named(L"Strg", L"Alt", L"Umschalt").DisplayToNative(L"Umschalt + F1"), L"S+F1");
}

TEST(DisplayToNative, FindsANameInsideAnotherOne) {
  const HotkeyNotation notation = Named(L"Ctrl", L"Alt", L"RightAlt");
  EXPECT_EQ(notation.DisplayToNative(L"Alt + F1"), L"A+F1");
  EXPECT_EQ(notation.DisplayToNative(L"RightAlt + F1"), L"AS+F1");
  EXPECT_EQ(notation.DisplayToNative(L"Ctrl + RightAlt + F1"), L"CAS+F1");
}

TEST(DisplayToNative, RestoresTheKeypadPlus) {
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L"Alt +  +"), L"A++");
  EXPECT_EQ(Reversed().DisplayToNative(L" + + Alt"), L"A++");
  EXPECT_EQ(Reversed().DisplayToNative(L"+ + Ctrl + Shift"), L"CS++");
}

TEST(DisplayToNative, GivesSomethingForOddKeys) {
  const Conversion conversions[] = {
      {L"", L""},          {L"   ", L""},          {L"+", L"+"},   {L"++", L"++"},
      {L"C+", L"C+"},      {L"+C", L"+C"},         {L" x ", L"x"}, {L"Ctrl", L"C+Ctrl"},
      {L"Ctrl + ", L"C+"}, {L"Ctrl+", L"C+Ctrl+"},
  };
  for (const auto& [from, to] : conversions) EXPECT_EQ(HotkeyNotation().DisplayToNative(from), to);

  const Conversion reversed[] = {
      {L"", L""}, {L"+", L"+"}, {L"Ctrl", L"C+Ctrl"}, {L" + Ctrl", L"C++"}, {L"Alt+", L"A+Alt"}};
  for (const auto& [from, to] : reversed) EXPECT_EQ(Reversed().DisplayToNative(from), to);
}

}  // namespace
}  // namespace tessera::hotkey_notation_native_test
