// What the options dialog shows and edits.
#pragma once

#include <array>
#include <string>

#include "dialogs/cCommonDialog.h"
#include "platform/Dialogs.h"
#include "platform/Environment.h"
#include "platform/Pinned.h"
#include "settings/Settings.h"

namespace tessera {

/// The dialog's check boxes, each of which edits one setting.
enum class OptionBox {
  ShowGridLines,
  FixedBorders,
  FlatUserInterface,
  AlwaysRestartTC,
  UseContextMenuKey,
  ReverseOrderHotkey,
  KeepUnknownShortcuts,
  ForgetKeysAtOpen,
  ShowUserCommands,
  Count  ///< is none
};

/// The colour swatches.
enum class OptionColor { Foreground, Background };

class OptionsSelection : Pinned {
 public:
  OptionsSelection(Settings& settings, Dialogs& dialogs, const Environment& environment);

  // -- Queries: what the controls show

  [[nodiscard]] bool Checked(OptionBox box) const;
  [[nodiscard]] int Color(OptionColor swatch) const;  ///< as the settings hold it
  [[nodiscard]] bool UsesDefaultLanguage() const;
  [[nodiscard]] const std::wstring& LanguageFilePath() const;
  [[nodiscard]] bool LanguageFileEnabled() const;  ///< the text box and its browse button
  [[nodiscard]] bool ApplyEnabled() const;

  /// True when the settings name another language than at the last RememberLanguage, so that the
  /// texts of the main window have to change. Letter case in the file's path makes no other
  /// language.
  [[nodiscard]] bool LanguageChanged() const;

  // -- Changes

  /// Before the dialog is shown, and before showing it may change the language in use.
  void RememberLanguage();

  /// Takes everything from the settings; at each showing of the dialog.
  void Load();

  void Click(OptionBox box);
  void UseDefaultLanguage(bool use);

  /// A path that is in the box already is no change: the box was filled, not edited.
  void EditLanguageFilePath(std::wstring path);

  /// Asks for a file in the program's folder "Languages".
  void BrowseForLanguageFile();

  /// A colour or a font that was picked is in the settings at once; Cancel does not undo it,
  /// deliberately.
  void PickColor(OptionColor swatch);
  void PickFont();

  /// Copies the boxes and the language into the settings; a file that does not exist is taken too.
  /// OK does the same and closes.
  void Apply();

 private:
  Settings& settings_;
  Dialogs& dialogs_;
  const Environment& environment_;
  std::array<bool, static_cast<std::size_t>(OptionBox::Count)> boxes_{};
  bool usesDefaultLanguage_ = true;
  std::wstring languageFilePath_;
  bool applyEnabled_ = false;
  std::wstring rememberedLanguageFile_;
  short rememberedUseDefaultLanguage_ = 1;
};

}  // namespace tessera
