// The key index gives what a search of a plain list from its front would give.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "shortcuts/KeyIndex.h"
#include "text/Text.h"
#include "text/TextHash.h"

namespace tessera::key_index_test {
namespace {

TEST(KeyIndex, IsEmptyAtFirst) {
  const KeyIndex index;
  EXPECT_EQ(index.Count(), 0u);
  EXPECT_TRUE(index.Ids().empty());
  EXPECT_EQ(index.FindWhole(L"F1"), std::nullopt);
  EXPECT_EQ(index.FindKey(L"F1"), std::nullopt);
}

TEST(KeyIndex, KeepsEntriesInTheOrderOfAdding) {
  KeyIndex index;
  const auto first = index.Add(L"F2", 7);
  const auto second = index.Add(L"F1", 3);
  EXPECT_LT(first, second);
  EXPECT_EQ(index.Ids(), (std::vector<KeyIndex::EntryId>{first, second}));
  EXPECT_EQ(index.At(second).Text, L"F1");
  EXPECT_EQ(index.At(second).Owner, 3u);
}

TEST(KeyIndex, WholeTextsMatchWithoutRegardToLetterCase) {
  KeyIndex index;
  const auto id = index.Add(L"Ctrl + Ä", 1);
  EXPECT_EQ(index.FindWhole(L"CTRL + ä"), id);
  EXPECT_EQ(index.FindWhole(L"Ctrl"), std::nullopt);
  EXPECT_EQ(index.FindWhole(L"Ctrl + Ä *"), std::nullopt);
}

TEST(KeyIndex, AKeyIsFoundInItsOverriddenEntry) {
  KeyIndex index;
  const auto id = index.Add(L"F1 *", 1);
  EXPECT_EQ(index.FindKey(L"f1"), id);
  EXPECT_EQ(index.FindWhole(L"F1"), std::nullopt);
}

TEST(KeyIndex, AKeyIsFoundByEveryBeginningBeforeABlank) {
  KeyIndex index;
  const auto id = index.Add(L"F1 + Ctrl *", 1);
  for (const wchar_t* key : {L"F1", L"F1 +", L"F1 + Ctrl", L"F1 + Ctrl *"}) {
    EXPECT_EQ(index.FindKey(key), id) << key;
  }
  for (const wchar_t* key : {L"", L"F", L"F1 ", L"F1 + C", L"F1 + Ctrl * ", L"1"}) {
    EXPECT_EQ(index.FindKey(key), std::nullopt) << key;
  }
}

TEST(KeyIndex, F1IsNotFoundInF12) {
  KeyIndex index;
  index.Add(L"F12", 1);
  EXPECT_EQ(index.FindKey(L"F1"), std::nullopt);
}

TEST(KeyIndex, TheFirstOfSeveralMatchesWins) {
  KeyIndex index;
  const auto marked = index.Add(L"F1 *", 1);
  const auto plain = index.Add(L"F1", 2);
  index.Add(L"F1", 3);
  EXPECT_EQ(index.FindKey(L"F1"), marked);
  EXPECT_EQ(index.FindWhole(L"F1"), plain);
}

TEST(KeyIndex, TextsWithOneHashAreToldApart) {
  ASSERT_EQ(HashIgnoringCase()(L"AÄ"), HashIgnoringCase()(L"BA"));
  KeyIndex index;
  index.Add(L"AÄ", 1);
  EXPECT_EQ(index.FindWhole(L"BA"), std::nullopt);
  EXPECT_EQ(index.FindKey(L"BA"), std::nullopt);
  const auto second = index.Add(L"BA", 2);
  EXPECT_EQ(index.FindWhole(L"BA"), second);
  EXPECT_EQ(index.FindKey(L"BA"), second);
}

TEST(KeyIndex, ARowBeyondAllOwnersOwnsNothing) {
  KeyIndex index;
  index.Add(L"F1", 7);
  for (const RowKey owner : {RowKey{8}, RowKey{9}, RowKey{100}}) index.RemoveOwnedBy(owner);
  EXPECT_EQ(index.Count(), 1u);
}

TEST(KeyIndex, AChangedTextIsFoundInItsOldPlaceOfTheOrder) {
  KeyIndex index;
  const auto first = index.Add(L"F1", 1);
  const auto second = index.Add(L"F2", 2);
  index.SetText(first, L"F2");
  EXPECT_EQ(index.FindWhole(L"F2"), first);
  EXPECT_EQ(index.FindWhole(L"F1"), std::nullopt);
  index.SetText(first, L"F3");
  EXPECT_EQ(index.FindWhole(L"F2"), second);
}

TEST(KeyIndex, AMovedEntryGoesWithItsNewOwner) {
  KeyIndex index;
  const auto id = index.Add(L"F1", 1);
  index.SetOwner(id, 2);
  index.RemoveOwnedBy(1);
  EXPECT_EQ(index.FindWhole(L"F1"), id);
  index.RemoveOwnedBy(2);
  EXPECT_EQ(index.Count(), 0u);
}

TEST(KeyIndex, RemovingAnOwnersEntriesLeavesTheOthers) {
  KeyIndex index;
  index.Add(L"F1", 1);
  const auto other = index.Add(L"F1", 2);
  index.Add(L"F2 *", 1);
  index.RemoveOwnedBy(1);
  index.RemoveOwnedBy(99);
  EXPECT_EQ(index.Ids(), std::vector<KeyIndex::EntryId>{other});
  EXPECT_EQ(index.FindKey(L"F1"), other);
  EXPECT_EQ(index.FindKey(L"F2"), std::nullopt);
}

TEST(KeyIndex, NothingIsFoundAfterClear) {
  KeyIndex index;
  index.Add(L"F1", 1);
  index.Clear();
  EXPECT_EQ(index.Count(), 0u);
  EXPECT_EQ(index.FindKey(L"F1"), std::nullopt);
  index.RemoveOwnedBy(1);
  const auto id = index.Add(L"F1", 1);
  EXPECT_EQ(index.FindWhole(L"F1"), id);
}

TEST(KeyIndex, EmptyAndBlankTextsFollowTheSameRules) {
  KeyIndex index;
  const auto blank = index.Add(L" x", 1);
  const auto empty = index.Add(L"", 2);
  EXPECT_EQ(index.FindWhole(L""), empty);
  EXPECT_EQ(index.FindKey(L""), blank);
}

// -- Against a plain list

struct ListEntry {
  KeyIndex::EntryId Id;
  std::wstring Text;
  RowKey Owner;
};

class PlainList {
 public:
  std::vector<ListEntry> Entries;

  template <typename Predicate>
  std::optional<KeyIndex::EntryId> First(const Predicate& matches) const {
    const auto found = std::find_if(Entries.begin(), Entries.end(), matches);
    return found == Entries.end() ? std::nullopt : std::optional(found->Id);
  }
  std::optional<KeyIndex::EntryId> FindWhole(const std::wstring& text) const {
    return First([&](const ListEntry& e) { return EqualIgnoringCase(e.Text, text); });
  }
  std::optional<KeyIndex::EntryId> FindKey(const std::wstring& key) const {
    return First([&](const ListEntry& e) {
      return EqualIgnoringCase(e.Text, key) ||
             EqualIgnoringCase(e.Text.substr(0, key.size() + 1), key + L" ");
    });
  }
};

class RandomKeys {
 public:
  explicit RandomKeys(unsigned seed) : engine_(seed) {}

  std::size_t Below(std::size_t limit) { return engine_() % limit; }

  std::wstring Text() {
    static const std::vector<std::wstring> Words{L"F1", L"f1",  L"+", L"Ctrl", L"CTRL", L"*",
                                                 L"",   L"F12", L"É", L"é",    L"A"};
    std::wstring text = Words[Below(Words.size())];
    for (std::size_t more = Below(4); more > 0; --more) text += L" " + Words[Below(Words.size())];
    return text;
  }

 private:
  std::mt19937 engine_;
};

void ChangeBoth(KeyIndex& index, PlainList& list, RandomKeys& random) {
  const std::size_t operation = random.Below(20);
  const RowKey owner = random.Below(30);
  if (operation < 10 || list.Entries.empty()) {
    const std::wstring text = random.Text();
    list.Entries.push_back({index.Add(text, owner), text, owner});
    return;
  }
  ListEntry& entry = list.Entries[random.Below(list.Entries.size())];
  if (operation < 14) {
    entry.Text = random.Text();
    index.SetText(entry.Id, entry.Text);
  } else if (operation < 17) {
    entry.Owner = owner;
    index.SetOwner(entry.Id, owner);
  } else {
    index.RemoveOwnedBy(owner);
    std::erase_if(list.Entries, [&](const ListEntry& e) { return e.Owner == owner; });
  }
}

TEST(KeyIndex, GivesWhatAPlainListGivesAfterAnyChanges) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    RandomKeys random(seed);
    KeyIndex index;
    PlainList list;
    for (int change = 0; change < 500; ++change) {
      ChangeBoth(index, list, random);
      const std::wstring wanted = random.Text();
      ASSERT_EQ(index.FindWhole(wanted), list.FindWhole(wanted)) << seed << " " << change;
      ASSERT_EQ(index.FindKey(wanted), list.FindKey(wanted)) << seed << " " << change;
      ASSERT_EQ(index.Count(), list.Entries.size());
    }
    const std::vector<KeyIndex::EntryId> ids = index.Ids();
    ASSERT_EQ(ids.size(), list.Entries.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
      ASSERT_EQ(ids[i], list.Entries[i].Id);
      ASSERT_EQ(index.At(ids[i]).Text, list.Entries[i].Text);
      ASSERT_EQ(index.At(ids[i]).Owner, list.Entries[i].Owner);
    }
  }
}

}  // namespace
}  // namespace tessera::key_index_test
