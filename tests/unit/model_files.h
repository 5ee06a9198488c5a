// Random commands, keys and Start Menu for the model of the rules, and its file as the program has
// it.
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "tests/unit/model_keys.h"
#include "tests/unit/model_tables.h"
#include "text/Text.h"

namespace tessera::model {

/// The whole file; a comment keeps the section's header when no key is left.
[[nodiscard]] inline std::string FileOf(const ModelTables& tables) {
  const auto lines = [](const std::vector<ModelLine>& section) {
    std::string text;
    for (const auto& [name, value] : section) text += Encode(name + L"=" + value) + "\r\n";
    return text;
  };
  return "[Configuration]\r\nx=1\n\n[Shortcuts]\r\n" + lines(tables.Shortcuts) +
         ";mine\n[user]\r\n" + lines(tables.StartMenu) + "[Colors]\r\nred=1";
}

/// Fills the tables that stand before all reading.
class RandomInput {
 public:
  std::string Commands;        ///< the file that names them
  std::string DefaultKeys;     ///< their file
  std::vector<Text> Defaults;  ///< as each row shows them

  RandomInput(std::mt19937& engine, ModelTables& tables) : engine_(engine), tables_(tables) {
    MakeCommands();
    MakeShortcuts();
    MakeStartMenu();
  }

 private:
  std::size_t Below(std::size_t limit) { return engine_() % limit; }

  void MakeCommands() {
    DefaultKeys = "[TC Default Hotkeys]\r\n";
    for (std::size_t i = 0, count = 3 + Below(20); i < count; ++i) {
      ModelRow row;
      Defaults.push_back(Undefined);
      row.IsHeading = Below(6) == 0 && i > 0;
      if (row.IsHeading) {
        Commands += "[Group]\r\n";
        row.Description = L"[Group]";
      } else {
        row.Name = L"cm_C" + std::to_wstring(i);
        row.Code = std::to_wstring(100 + i);
        row.Description = L"Text " + std::to_wstring(Below(5));
        row.Defaults = row.Current = Undefined;
        Commands += Encode(row.Name + L"=" + row.Code + L";" + row.Description + L"\r\n");
        if (Below(2) == 0) DefaultKeys += DefaultLine(row.Code);
      }
      tables_.Master.push_back(row);
    }
  }

  /// Gives the last row some default keys, each with a modifier.
  std::string DefaultLine(const Text& code) {
    Text stored;
    Text shown;
    for (std::size_t keys = 1 + Below(2); keys > 0; --keys) {
      const unsigned modifiers = 1 + static_cast<unsigned>(Below(7));
      const Text key = Vocabulary[Below(57)];  // the named keys, without the operators
      stored += (stored.empty() ? L"" : L"=") + Text((modifiers & 4) != 0 ? L"Shift+" : L"") +
                ((modifiers & 1) != 0 ? L"ctrl+" : L"") + ((modifiers & 2) != 0 ? L"ALT+" : L"") +
                key;
      shown += (shown.empty() ? L"" : L" = ") + Shown(modifiers, key, tables_.Reversed);
    }
    Defaults.back() = shown;
    return Encode(code + L"=" + stored + L"\r\n");
  }

  void MakeShortcuts() {
    for (std::size_t lines = Below(15); lines > 0; --lines) {
      const unsigned modifiers = static_cast<unsigned>(Below(8));
      Text name = Text((modifiers & 4) != 0 ? L"S" : L"") + ((modifiers & 1) != 0 ? L"C" : L"") +
                  ((modifiers & 2) != 0 ? L"A" : L"") + (modifiers != 0 ? L"+" : L"");
      name += Vocabulary[Below(Vocabulary.size())];
      if (Below(4) == 0) name = OddNames[Below(OddNames.size())];
      const std::size_t row = Below(tables_.Master.size() + 1);
      const bool isKnown = row < tables_.Master.size() && !tables_.Master[row].IsHeading;
      const Text value = !isKnown        ? Text(L"em_own")
                         : Below(2) == 0 ? tables_.Master[row].Name
                                         : tables_.Master[row].Code;
      tables_.Shortcuts.push_back({name, value});
    }
  }

  void MakeStartMenu() {
    for (std::size_t entry = 1, count = Below(6); entry <= count; ++entry) {
      const Text number = std::to_wstring(entry);
      tables_.StartMenu.push_back({L"menu" + number, L"Entry " + number});
      if (Below(4) != 0) tables_.StartMenu.push_back({L"key" + number, std::to_wstring(Below(25))});
    }
  }

  std::mt19937& engine_;
  ModelTables& tables_;
};

}  // namespace tessera::model
