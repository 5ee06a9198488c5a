// Who holds each of the keys, all at once.
#include <gtest/gtest.h>

#include "export/KeyUses.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::key_uses_test {
namespace {

using Holders = std::vector<KeyHolder>;
using enum HolderKind;

class KeyUsesTest : public testing::Test {
 protected:
  [[nodiscard]] Holders Of(std::wstring_view key) const {
    const KeyUses uses(catalogue_, notation_);
    const std::span<const KeyHolder> holders = uses.HoldersOf(uses.Find(key));
    return {holders.begin(), holders.end()};
  }

  [[nodiscard]] KeyUse Use(std::wstring_view key) const { return UseOf(Of(key)); }

  [[nodiscard]] std::vector<std::wstring_view> Keys() const {
    const KeyUses uses(catalogue_, notation_);
    return {uses.Keys().begin(), uses.Keys().end()};
  }

  void GiveToStartMenu(int slot, const std::wstring& caption) {
    catalogue_.StartMenuKeys[static_cast<std::size_t>(slot) - 1] = {StartMenuKey(slot, notation_),
                                                                    caption, L"key1"};
  }

  CommandEntry& Edit(RowKey row) { return catalogue_.ListView1.Edit(row); }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
};

TEST_F(KeyUsesTest, NameEveryKeyOfTheCellsOnce) {
  EXPECT_EQ(Keys(), (std::vector<std::wstring_view>{L"F6", L"F7", L"F8", L"F9", L"F5", L"F2",
                                                    L"Ctrl + R"}));
}

TEST_F(KeyUsesTest, NameHoldersByWhatTheCellsShow) {
  EXPECT_EQ(Of(L"F5"), (Holders{{Default, sample::Copy, L"cm_Copy"}}));
  EXPECT_EQ(Of(L"F6"), (Holders{{Current, sample::View, L"cm_View"}}));
  EXPECT_EQ(Of(L"F8"), (Holders{{Current, sample::Refresh, L"cm_Refresh"}}));
  EXPECT_EQ(Of(L"Ctrl + R"), (Holders{{Default, sample::Refresh, L"cm_Refresh"}}));
  EXPECT_EQ(Of(L"F9"), (Holders{{Current, sample::Sync, L"cm_Sync"},
                                {OverriddenDefault, sample::Search, L"cm_Search"}}));
  EXPECT_EQ(Of(L"F1"), Holders{});
  EXPECT_EQ(Of(L"---"), Holders{});
}

TEST_F(KeyUsesTest, TellWhatAKeyIsToTheUser) {
  GiveToStartMenu(3, L"Notepad");
  EXPECT_EQ(Use(L"F1"), KeyUse::Free);
  EXPECT_EQ(Use(L"F5"), KeyUse::Default);
  EXPECT_EQ(Use(L"F6"), KeyUse::User);
  EXPECT_EQ(Use(L"F9"), KeyUse::UserOverDefault);
  EXPECT_EQ(Use(L"Ctrl + Alt + F3"), KeyUse::StartMenu);
}

TEST_F(KeyUsesTest, ADefaultIsOneAlsoWhereItIsStillMarked) {
  Edit(sample::Sync).CurrentKeys = L"---";
  EXPECT_EQ(Of(L"F9"), (Holders{{OverriddenDefault, sample::Search, L"cm_Search"}}));
  EXPECT_EQ(Use(L"F9"), KeyUse::Default);
}

TEST_F(KeyUsesTest, DoNotCareForLetterCase) {
  Edit(sample::View).CurrentKeys = L"f6";
  Edit(sample::Pack).CurrentKeys = L"F6";
  EXPECT_EQ(Of(L"F6").size(), 2U);
  EXPECT_EQ(Keys().front(), L"f6");
}

TEST_F(KeyUsesTest, NameARowOnceThatHoldsAKeyTwice) {
  Edit(sample::View).CurrentKeys = L"F6 = F6 = F6";
  Edit(sample::View).DefaultKeys = L"F6 = F6";
  EXPECT_EQ(Of(L"F6"),
            (Holders{{Current, sample::View, L"cm_View"}, {Default, sample::View, L"cm_View"}}));
  catalogue_.ListView1.Fill({SampleCommand(1, L"First", L"---", L"F6 = F6")});
  EXPECT_EQ(Of(L"F6").size(), 1U);
}

TEST_F(KeyUsesTest, KnowNoKeyOfAnEmptyPiece) {
  Edit(sample::View).CurrentKeys = L" = ";
  Edit(sample::View).DefaultKeys = L"=F3=";
  EXPECT_EQ(Of(L""), Holders{});
  EXPECT_EQ(Of(L"F3").size(), 1U);
}

TEST_F(KeyUsesTest, AnEntryOfTheStartMenuWinsOverADefault) {
  GiveToStartMenu(3, L"Notepad");
  Edit(sample::Copy).DefaultKeys = L"Ctrl + Alt + F3";
  EXPECT_EQ(Of(L"Ctrl + Alt + F3"),
            (Holders{{Default, sample::Copy, L"cm_Copy"}, {StartMenu, 0, L"Notepad"}}));
  EXPECT_EQ(Use(L"Ctrl + Alt + F3"), KeyUse::StartMenu);
  EXPECT_EQ(ChiefHolder(Of(L"Ctrl + Alt + F3"))->Kind, StartMenu);

  Edit(sample::View).CurrentKeys = L"Ctrl + Alt + F3";
  EXPECT_EQ(Use(L"Ctrl + Alt + F3"), KeyUse::UserOverDefault);
  EXPECT_EQ(ChiefHolder(Of(L"Ctrl + Alt + F3"))->Name, L"cm_View");

  Edit(sample::Copy).DefaultKeys = L"---";
  EXPECT_EQ(Use(L"Ctrl + Alt + F3"), KeyUse::User);
}

TEST_F(KeyUsesTest, KnowNoEntryWhoseKeyWasTakenAway) {
  GiveToStartMenu(3, L"Notepad");
  catalogue_.StartMenuKeys[2].Key += OverriddenMark;
  EXPECT_EQ(Of(L"Ctrl + Alt + F3"), Holders{});
  EXPECT_EQ(Of(L"Ctrl + Alt + F3 *"), Holders{});
}

/// Cells as they come about, with the keys and separators of the notation.
class RandomCells {
 public:
  explicit RandomCells(unsigned seed) : state_(seed) {}

  std::wstring Defaults() {
    std::wstring cell = Currents();
    for (unsigned marks = cell == L"---" ? 0 : Below(3); marks > 0; --marks) cell += OverriddenMark;
    return cell;
  }

  std::wstring Currents() {
    constexpr std::wstring_view Keys[] = {
        L"F5", L"f5", L"Num *", L"Ctrl + Num *", L"Num +", L"Ctrl + Alt + F3", L"A"};
    std::wstring cell = L"---";
    for (unsigned keys = Below(4); keys > 0; --keys) {
      notation_.AddKey(cell, Keys[Below(static_cast<unsigned>(std::size(Keys)))]);
    }
    return cell;
  }

 private:
  unsigned Below(unsigned limit) {
    state_ = state_ * 1664525 + 1013904223;
    return (state_ >> 16) % limit;
  }

  HotkeyNotation notation_;
  unsigned state_;
};

TEST_F(KeyUsesTest, NameTheRowsThatAreNamedWhenOneKeyIsAskedFor) {
  RandomCells cells(1);
  for (int round = 0; round < 300; ++round) {
    for (const RowKey row : {sample::Copy, sample::View, sample::Pack, sample::Refresh}) {
      Edit(row).DefaultKeys = cells.Defaults();
      Edit(row).CurrentKeys = cells.Currents();
    }
    const KeyUses uses(catalogue_, notation_);
    for (std::size_t key = 0; key < uses.Keys().size(); ++key) {
      HoldersOfKey found;
      for (const KeyHolder& holder : uses.HoldersOf(key)) {
        if (holder.Kind == Current) {
          found.Currents.push_back(holder.Row);
        } else {
          found.Defaults.push_back({holder.Row, holder.Kind == OverriddenDefault});
        }
      }
      EXPECT_EQ(found, catalogue_.ListView1.HoldersOf(uses.Keys()[key], notation_)) << round;
    }
  }
}

}  // namespace
}  // namespace tessera::key_uses_test
