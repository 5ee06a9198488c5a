// Where the page of keys goes.
#include "app/Editor.h"
#include "export/KeysPage.h"
#include "settings/ini/ReplaceContent.h"
#include "settings/Paths.h"

namespace tessera {
namespace {

/// Always the same, so that pages do not pile up.
constexpr std::wstring_view PageName = L"Tessera keys.html";

}  // namespace

std::string Editor::KeysPage() const {
  return BuildKeysPage(document_.Commands(), document_.Notation(), texts_,
                       {.Path = document_.Path(), .Modified = document_.Modified()});
}

void Editor::ShowKeysPage() {
  if (document_.Busy()) return;
  const std::wstring path = AddBackslash(system_.Environment.TemporaryDirectory()).append(PageName);
  const auto fail = [&](NewsKind kind) {
    system_.MessageBoxes.Beep();
    Tell({.Kind = kind, .File = path});
  };
  if (ReplaceContent(system_.Files, system_.Clock, path, KeysPage(), KeepCopies::No) !=
      FileError::None) {
    fail(NewsKind::PageNotWritten);
  } else if (!system_.Programs.OpenDocument(path)) {
    fail(NewsKind::PageNotOpened);
  }
}

}  // namespace tessera
