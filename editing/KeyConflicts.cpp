// Looking for a key among its other uses, and the questions that follow.
#include "editing/KeyConflicts.h"

#include <algorithm>

#include "text/Text.h"

namespace tessera {
namespace {

constexpr const wchar_t* LineBreaks = L"\n\n";

std::wstring AssignItToQuestion(const Texts& texts, const CommandEntry& row) {
  return (texts.GetLangText(TextId::AssignItTo) + L"  ").append(row.CommandName);
}

}  // namespace

KeyConflict FindConflict(const Catalogue& catalogue, RowKey row, std::wstring_view key) {
  if (catalogue.ListView1.Row(row).CurrentKeys == key) return {ConflictKind::SameKey};
  if (const auto entry = catalogue.lvwDefKeys.FindKey(key)) {
    return {ConflictKind::DefaultKey, *entry, catalogue.lvwDefKeys.At(*entry).Owner};
  }
  if (const auto entry = catalogue.lvwCurrKeys.FindKey(key)) {
    return {ConflictKind::CurrentKey, *entry, catalogue.lvwCurrKeys.At(*entry).Owner};
  }
  return {ConflictKind::Free};
}

const StartMenuSlot* FindStartMenuSlot(const Catalogue& catalogue, std::wstring_view key) {
  const auto slot = std::ranges::find_if(catalogue.StartMenuKeys, [key](const StartMenuSlot& each) {
    return EqualIgnoringCase(each.Key, key);
  });
  return slot != catalogue.StartMenuKeys.end() ? &*slot : nullptr;
}

std::wstring StartMenuQuestion(const Texts& texts, const StartMenuSlot& slot,
                               const CommandEntry& row) {
  return texts.GetLangText(TextId::CurrentHotkeyFor) + L"  [" + slot.Caption + L"] " +
         texts.GetLangText(TextId::InStartMenu) + LineBreaks + AssignItToQuestion(texts, row);
}

std::wstring DefaultKeyQuestion(const Texts& texts, const CommandEntry& owner,
                                const CommandEntry& row) {
  return (texts.GetLangText(TextId::DefaultHotkeyFor) + L"  ").append(owner.CommandName) + L"\t" +
         LineBreaks + AssignItToQuestion(texts, row) + L"\t";
}

std::wstring CurrentKeyQuestion(const Texts& texts, const CommandEntry& owner,
                                const CommandEntry& row) {
  return (texts.GetLangText(TextId::CurrentHotkeyFor) + L"  ").append(owner.CommandName) +
         LineBreaks + AssignItToQuestion(texts, row);
}

std::wstring DeleteAllQuestion(const Texts& texts) {
  return texts.GetLangText(TextId::AboutToDeleteAll) + LineBreaks +
         texts.GetLangText(TextId::AreYouSure);
}

}  // namespace tessera
