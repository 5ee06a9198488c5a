// The panel in which a key is composed: the state of its controls, and what keys and clicks do to
// it.
#pragma once

#include <array>
#include <string>

#include "editing/CommandList.h"
#include "editing/HotkeyAssignment.h"
#include "editing/KeyEvent.h"
#include "editing/Reaction.h"
#include "platform/MessageBoxes.h"
#include "platform/Pinned.h"
#include "settings/Settings.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

inline constexpr int PanelTimerMilliseconds = 50;

/// The three boxes, in their order on the panel.
enum class Modifier { Ctrl, Alt, Shift };

inline constexpr std::array AllModifiers{Modifier::Ctrl, Modifier::Alt, Modifier::Shift};

class HotkeyPanel : Pinned {
 public:
  HotkeyPanel(Catalogue& catalogue, CommandList& list, HotkeyAssignment& assignment,
              const HotkeyNotation& notation, const Settings& settings, MessageBoxes& messageBoxes);

  // -- Queries: what the controls show

  [[nodiscard]] bool BoxChecked(Modifier box) const;
  [[nodiscard]] int ChosenKey() const;  ///< index into KeyVocabulary(), or NoKeyChosen
  [[nodiscard]] bool InputsEnabled() const;
  [[nodiscard]] bool AssignEnabled() const;
  [[nodiscard]] bool DeleteEnabled() const;
  [[nodiscard]] bool AddEnabled() const;
  [[nodiscard]] std::wstring ComposeKey() const;

  /// Somebody has the key of that index of the vocabulary, with the modifiers that are checked, by
  /// what the cells show.
  [[nodiscard]] bool IsTaken(int key) const;

  /// The context menu key works on the box Alt, and opens no menu.
  [[nodiscard]] bool ContextMenuKeyIsAlt() const;

  // -- Changes by the controls

  Reaction SetBox(Modifier box, bool checked);

  /// An index outside the vocabulary chooses no key.
  Reaction ChooseKey(int index);

  Reaction ResetPanel();

  // -- Edits of the selected row

  Reaction Assign();
  Reaction Add();
  Reaction Delete();
  Reaction DeleteAll();

  // -- Keyboard

  /// What the key does in the panel, and then, unless it did all its work there, the key that it
  /// chooses in the chooser.
  Reaction KeyDown(const KeyEvent& event);
  Reaction KeyUp(const KeyEvent& event);
  Reaction TimerTick();

 private:
  using PerModifier = std::array<bool, AllModifiers.size()>;

  /// The timer that starts when Alt is released.
  enum class Tick { None, Due, Stale };

  /// What the toggles are when nothing has been pressed yet.
  [[nodiscard]] PerModifier ToggleResetValues() const;
  [[nodiscard]] std::wstring ComposeWith(int chosenKey) const;

  [[nodiscard]] bool IsModifier(KeyCode code) const;
  void ClearModifiers();
  void BeginAnew(const KeyEvent& event);
  Reaction Act(const KeyEvent& event);
  Reaction ResetBy(const KeyEvent& event);
  bool Take(const KeyEvent& event);
  void FlipAlt();

  Catalogue& catalogue_;
  CommandList& list_;
  HotkeyAssignment& assignment_;
  const HotkeyNotation& notation_;
  const Settings& settings_;
  MessageBoxes& messageBoxes_;
  PerModifier boxesChecked_{};
  PerModifier ModifierToggle_;  ///< what each box becomes at the next press of its key
  int chosenKey_ = NoKeyChosen;
  bool pressedWithModifier_ = false;  ///< a key was chosen so; the next press begins anew
  KeyCode taken_{};                   ///< the key that was pressed last, if it chose itself
  bool takenWithAlt_ = false;         ///< since Alt was pressed
  Tick tick_ = Tick::None;
};

}  // namespace tessera
