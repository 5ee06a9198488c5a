// Fills the default keys of the commands from the data file.
#include "shortcuts/DefaultHotkeys.h"

namespace tessera {
namespace {

constexpr std::wstring_view Section = L"TC Default Hotkeys";
constexpr std::size_t BufferLength = 500;

}  // namespace

void FillDefaultKeys(std::span<CommandEntry> rows, const ProfileFile& dataFile,
                     const HotkeyNotation& notation, const ProgressStep& step) {
  const ProfileSection section = dataFile.Section(Section);
  // What stands for an absent value takes the same way as a value does.
  const std::wstring absent =
      notation.DataFileToDisplay(notation.UndefinedHotkey.substr(0, BufferLength - 1));
  for (CommandEntry& row : rows) {
    step();
    if (row.IsHeading()) continue;
    const auto value = section.Find(row.CommandCode, BufferLength);
    if (value) {
      row.DefaultKeys = notation.DataFileToDisplay(*value);
    } else {
      row.DefaultKeys = absent;
    }
  }
}

}  // namespace tessera
