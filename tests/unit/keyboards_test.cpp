// Which keys are free with which modifiers.
#include "export/Keyboards.h"

#include <gtest/gtest.h>

#include "tests/unit/sample_catalogue.h"

namespace tessera::keyboards_test {
namespace {

class KeyboardsTest : public testing::Test {
 protected:
  /// The free keys of each keyboard, headed by its modifiers.
  [[nodiscard]] std::vector<std::pair<std::wstring, std::size_t>> Counts() const {
    const KeyUses uses(catalogue_, notation_);
    std::vector<std::pair<std::wstring, std::size_t>> counts;
    for (const Keyboard& keyboard : MakeKeyboards(uses, notation_)) {
      EXPECT_EQ(keyboard.Keys.size(), KeyVocabulary().size());
      counts.emplace_back(notation_.NamesOf(keyboard.Held), keyboard.Free);
    }
    return counts;
  }

  [[nodiscard]] std::vector<std::wstring> Elsewhere() const {
    const KeyUses uses(catalogue_, notation_);
    std::vector<std::wstring> keys;
    for (const std::size_t place : KeysElsewhere(uses, MakeKeyboards(uses, notation_))) {
      keys.emplace_back(uses.Keys()[place]);
    }
    return keys;
  }

  void Give(const std::wstring& keys) {
    catalogue_.ListView1.Edit(sample::Pack).CurrentKeys = keys;
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
};

using Counted = std::vector<std::pair<std::wstring, std::size_t>>;
using Keys = std::vector<std::wstring>;

TEST_F(KeyboardsTest, ThoseWithKeysComeFirst) {
  EXPECT_EQ(Counts(), (Counted{{L"", 61},
                               {L"Ctrl", 66},
                               {L"Alt", 67},
                               {L"Shift", 67},
                               {L"Ctrl + Alt", 67},
                               {L"Ctrl + Shift", 67},
                               {L"Alt + Shift", 67},
                               {L"Ctrl + Alt + Shift", 67}}));
  Give(L"Alt + Shift + Num + = Ctrl + Alt + Shift + DEL = Ctrl + Alt + Shift + 0");
  const Counted counts = Counts();
  EXPECT_EQ(counts[2], (Counted::value_type{L"Alt + Shift", 66}));
  EXPECT_EQ(counts[3], (Counted::value_type{L"Ctrl + Alt + Shift", 65}));
  EXPECT_EQ(counts[4], (Counted::value_type{L"Alt", 67}));
}

TEST_F(KeyboardsTest, WithoutAnyKeyHaveTheOrderOfTheirModifiers) {
  catalogue_.ListView1.Fill({});
  EXPECT_EQ(Counts().front(), (Counted::value_type{L"", 67}));
  EXPECT_EQ(Counts().back(), (Counted::value_type{L"Ctrl + Alt + Shift", 67}));
}

TEST_F(KeyboardsTest, KnowKeysInReverseOrderAndOtherLanguages) {
  notation_.ReverseOrderHotkey = true;
  Give(L"Num * + Ctrl + Alt");
  EXPECT_EQ(Counts()[1], (Counted::value_type{L"Ctrl + Alt", 66}));
  notation_.ReverseOrderHotkey = false;
  notation_.CtrlName = L"Strg";
  Give(L"Strg + Alt + Num *");
  EXPECT_EQ(Counts()[1], (Counted::value_type{L"Strg + Alt", 66}));
}

TEST_F(KeyboardsTest, KeysThatNoneHasAreElsewhere) {
  EXPECT_EQ(Elsewhere(), Keys{});
  Give(L"F13 = Ctrl + OEM_5 = f1 = Alt + Ctrl + F3 = Win + E = Num +");
  EXPECT_EQ(Elsewhere(), (Keys{L"F13", L"Ctrl + OEM_5", L"Alt + Ctrl + F3", L"Win + E"}));
}

}  // namespace
}  // namespace tessera::keyboards_test
