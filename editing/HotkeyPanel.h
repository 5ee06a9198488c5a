// The panel in which a key is composed: the state of its controls, and what keys and clicks do to
// it.
#pragma once

#include <array>
#include <string>

#include "editing/CommandList.h"
#include "editing/HotkeyAssignment.h"
#include "editing/Reaction.h"
#include "platform/MessageBoxes.h"
#include "platform/Pinned.h"
#include "settings/Settings.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// The virtual-key codes that the panel knows.
enum class KeyCode : int {
  Backspace = 8,
  Enter = 13,
  Shift = 16,
  Ctrl = 17,
  Alt = 18,
  Escape = 27,
  Space = 32,
  Right = 39,
  Delete = 46,
  ContextMenu = 93,
};

struct KeyEvent {
  KeyCode Code{};  ///< any virtual-key code
  bool CtrlHeld = false;
  bool AltHeld = false;
  bool ShiftHeld = false;
};

inline constexpr int PanelTimerMilliseconds = 50;

/// No key chosen in the chooser.
inline constexpr int NoKeyChosen = -1;

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

  Reaction KeyDown(const KeyEvent& event);
  Reaction KeyUp(const KeyEvent& event);
  Reaction TimerTick();

 private:
  using PerModifier = std::array<bool, AllModifiers.size()>;

  /// What the toggles are when nothing has been pressed yet.
  [[nodiscard]] PerModifier ToggleResetValues() const;

  Catalogue& catalogue_;
  CommandList& list_;
  HotkeyAssignment& assignment_;
  const HotkeyNotation& notation_;
  const Settings& settings_;
  MessageBoxes& messageBoxes_;
  PerModifier boxesChecked_{};
  PerModifier ModifierToggle_;  ///< what each box becomes at the next press of its key
  int chosenKey_ = NoKeyChosen;
};

}  // namespace tessera
