// Entries of a menu are left out: their letters count once it is open.
#include "app/MnemonicLetters.h"

#include "app/MenuBar.h"
#include "localisation/Mnemonic.h"

namespace tessera {

std::wstring MnemonicLetters(const Texts& texts) {
  std::wstring letters;
  const auto add = [&](TextId caption) {
    const wchar_t letter = MnemonicOf(texts.GetLangText(caption));
    if (letter != L'\0') letters += letter;
  };
  for (const MenuEntry& entry : MenuBar()) {
    if (entry.Kind == MenuEntryKind::Menu) add(entry.Caption);
  }
  for (const TextId caption : BoxCaptions) add(caption);
  return letters;
}

}  // namespace tessera
