// Keys that are pressed to be chosen, as a keyboard sends them.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/StartResolution.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::press_test {
namespace {

/// Milliseconds: there are many presses.
constexpr DWORD BetweenLooks = 2;

constexpr WORD KeyOfNoUse = VK_F13;
constexpr std::array Boxes{IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2};

/// A set of modifiers: bit 0 is Ctrl, then Alt and Shift.
constexpr std::array<WORD, 3> ModifierKeys{VK_CONTROL, VK_MENU, VK_SHIFT};

struct Combination {
  std::wstring Name;
  WORD Key = 0;
  unsigned Modifiers = 0;
};

std::map<std::wstring, WORD> Keys() {
  std::map<std::wstring, WORD> keys{{L"INS", VK_INSERT}, {L"HOME", VK_HOME},  {L"END", VK_END},
                                    {L"PGUP", VK_PRIOR}, {L"PGDN", VK_NEXT},  {L"LEFT", VK_LEFT},
                                    {L"UP", VK_UP},      {L"DOWN", VK_DOWN},  {L"SPACE", VK_SPACE},
                                    {L"+", VK_ADD},      {L"-", VK_SUBTRACT}, {L"*", VK_MULTIPLY},
                                    {L"/", VK_DIVIDE}};
  for (WORD number = 1; number <= 12; ++number) {
    keys[L"F" + std::to_wstring(number)] = static_cast<WORD>(VK_F1 + number - 1);
  }
  for (WORD code = 'A'; code <= 'Z'; ++code) keys[std::wstring(1, code)] = code;
  for (WORD code = '0'; code <= '9'; ++code) keys[std::wstring(1, code)] = code;
  return keys;
}

/// Those that choose their key while the chooser has the focus.
bool Chooses(const Combination& pressed, std::wstring_view mnemonics) {
  const auto isOneOf = [&](std::initializer_list<std::wstring_view> names) {
    return std::ranges::find(names, pressed.Name) != names.end();
  };
  const bool ctrl = (pressed.Modifiers & 1U) != 0;
  const bool alt = (pressed.Modifiers & 2U) != 0;
  if (alt && pressed.Name.size() == 1 && mnemonics.find(pressed.Name[0]) != mnemonics.npos) {
    return false;
  }
  if (alt && isOneOf({L"F4", L"SPACE"})) return false;
  if (pressed.Modifiers == 2 && isOneOf({L"UP", L"DOWN"})) return false;
  if (pressed.Name == L"F10") return ctrl;
  const bool functionKey = pressed.Name.size() > 1 && pressed.Name[0] == L'F';
  return functionKey || pressed.Modifiers != 0 ||
         isOneOf({L"INS", L"SPACE", L"+", L"-", L"*", L"/"});
}

class PressTest : public EndToEndTest {
 protected:
  void StartIn(const std::wstring& language) {
    folder_.UseLanguageFile(folder_.ShippedLanguage(language));
    StartAndLoad();
    Select(L"cm_SrcTree");
  }

  [[nodiscard]] unsigned CheckedBoxes() const {
    unsigned checked = 0;
    for (std::size_t box = 0; box < Boxes.size(); ++box) {
      if (window_->BoxChecked(Boxes.at(box))) checked |= 1U << box;
    }
    return checked;
  }

  /// Presses the combination, and waits until the panel shows it.
  void Try(const Combination& pressed, std::vector<WORD> modifiers) {
    SCOPED_TRACE(Utf8(pressed.Name) + " with " + std::to_string(pressed.Modifiers));
    if (modifiers.empty()) GoToTheClearedChooser();
    modifiers.push_back(pressed.Key);
    PressTogether(modifiers);
    // A key after Alt finds the box as the timer would leave it.
    if ((pressed.Modifiers & 2U) != 0) Press(KeyOfNoUse);
    try {
      WaitFor(
          "the combination",
          [&] {
            return window_->ChosenKey() == pressed.Name && CheckedBoxes() == pressed.Modifiers;
          },
          UsualLimit, BetweenLooks);
    } catch (const std::runtime_error&) {
      FAIL() << Utf8(window_->ChosenKey()) << " with " << CheckedBoxes();
    }
  }

  void GoToTheClearedChooser() {
    for (const int key : {VK_ESCAPE, VK_CONTROL, VK_CONTROL}) Press(static_cast<WORD>(key));
  }

  /// Presses those that `wanted` tells, each so many times, in random order. With AltGr where there
  /// is one.
  template <typename Wanted>
  void TryAll(std::wstring_view mnemonics, int times, bool altGr, Wanted wanted) {
    std::vector<Combination> all;
    for (const auto& [name, key] : Keys()) {
      for (unsigned modifiers = 0; modifiers < 8; ++modifiers) {
        const Combination each{name, key, modifiers};
        if (Chooses(each, mnemonics) && wanted(each)) {
          all.insert(all.end(), static_cast<std::size_t>(times), each);
        }
      }
    }
    ASSERT_GT(all.size(), 40U);
    std::mt19937 random(15);
    std::ranges::shuffle(all, random);
    for (const Combination& each : all) {
      std::vector<WORD> modifiers;
      for (std::size_t bit = 0; bit < ModifierKeys.size(); ++bit) {
        if ((each.Modifiers >> bit & 1U) != 0) modifiers.push_back(ModifierKeys.at(bit));
      }
      std::ranges::shuffle(modifiers, random);
      // The system reports AltGr as the left Ctrl key, and then the right Alt key.
      if (altGr && each.Modifiers == 3) modifiers = {VK_LCONTROL, VK_RMENU};
      Try(each, modifiers);
      if (HasFailure()) return;
    }
    EXPECT_FALSE(window_->InMenu());
    EXPECT_FALSE(Modified());
  }
};

TEST_F(PressTest, EveryCombinationTwiceInRandomOrder) {
  StartIn(L"English.lng");
  TryAll(L"FVHCAS", 2, false, [](const Combination&) { return true; });
}

TEST_F(PressTest, CombinationsInGermanWithAltGrOnAFineScreen) {
  const StartResolution resolution(192);
  StartIn(L"German.lng");
  TryAll(L"DAHSLU", 1, true, [](const Combination& each) {
    return each.Modifiers == 3 || each.Name == L"F7" || each.Name == L"Q";
  });
}

TEST_F(PressTest, CombinationsInArabic) {
  StartIn(L"Arabic.lng");
  TryAll(L"CAS", 2, false, [](const Combination& each) {
    return each.Name == L"LEFT" || each.Name == L"F8" || each.Name == L"5" || each.Name == L"*";
  });
}

TEST_F(PressTest, SelectPressEnter) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  PressTogether(std::array<WORD, 3>{VK_CONTROL, VK_SHIFT, 'J'});
  Press(VK_RETURN);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Shift + J");
  WaitFor("the list to have the focus", [&] { return window_->HasFocus(IDC_ListView1); });
  EXPECT_EQ(CheckedBoxes(), 0U);
}

TEST_F(PressTest, TheListKeepsTheFocusAndLettersAndF1) {
  StartAndLoad();
  Delete(folder_.Program() + L"Readme.chm");
  Select(L"cm_SrcTree");
  Press(VK_F7);
  WaitFor("F7 to be chosen", [&] { return window_->ChosenKey() == L"F7"; });
  for (const WORD key : {WORD{VK_SPACE}, WORD{'K'}, WORD{VK_F8}}) Press(key);
  WaitFor("F8 to be chosen", [&] { return window_->ChosenKey() == L"F8"; });
  EXPECT_TRUE(window_->HasFocus(IDC_ListView1));
  Press(VK_F1);
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"File not found.") << "of the help";
  Answer(box, IDOK);
  EXPECT_EQ(window_->ChosenKey(), L"F8");
}

TEST_F(PressTest, LettersAloneStayWithTheChooserAndF10WithTheMenuBar) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  GoToTheClearedChooser();
  Press(VK_F12);
  WaitFor("F12 to be chosen", [&] { return window_->ChosenKey() == L"F12"; });
  Press('F');
  WaitFor("the letter to be chosen", [&] { return window_->ChosenKey() == L"F"; });
  Press(VK_DOWN);
  WaitFor("the next key", [&] { return window_->ChosenKey() == L"G"; });
  KeyDown(VK_CONTROL);
  KeyDown('D');
  KeyUp(VK_CONTROL);
  KeyDown('D');  // repeats; typed, it would be the next name
  KeyUp('D');
  Press(VK_F10);
  WaitFor("the menu bar", [&] { return window_->InMenu(); });
  window_->CloseMenus();
  EXPECT_EQ(window_->ChosenKey(), L"D");
}

}  // namespace
}  // namespace tessera::e2e::press_test
