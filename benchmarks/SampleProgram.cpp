// Makes the files of a program with many commands.
#include "benchmarks/SampleProgram.h"

namespace tessera {

namespace {

constexpr int FirstCode = 100;

std::string NameOf(int command) {
  // Spread over the alphabet, so that sorting has something to do.
  const auto letter = static_cast<char>('A' + command * 7 % 26);
  return std::string("cm_") + letter + "Command" + std::to_string(command);
}

std::string CommandLines(int commands) {
  std::string text;
  for (int command = 0; command < commands; ++command) {
    if (command % 20 == 0) {
      text += "[_____Group " + std::to_string(command / 20) + "_____]=0\r\n";
    }
    text += NameOf(command) + "=" + std::to_string(FirstCode + command) + ";Does what command " +
            std::to_string(command) + " is for\r\n";
  }
  return text;
}

std::string DefaultKeys(int commands) {
  std::string text = "[TC Default Hotkeys]\r\n";
  for (int command = 0; command < commands; command += 5) {
    text += std::to_string(FirstCode + command) + "=Ctrl+D" + std::to_string(command) + "\r\n";
  }
  return text;
}

std::string Shortcuts(int commands) {
  std::string text = "[Shortcuts]\r\n";
  for (int command = 0; command < commands; command += 10) {
    text += "CS+K" + std::to_string(command) + "=" + NameOf(command) + "\r\n";
  }
  return text;
}

}  // namespace

BoxAnswer YesToAll::Show(const std::wstring&, BoxButtons, BoxIcon, BoxDefault) {
  return BoxAnswer::Yes;
}

SampleProgram::SampleProgram(int commands)
    : Editor(
          {Files, registry_, environment_, messageBoxes_, dialogs_, programs_, clock_, clipboard_},
          [](const LoadProgress&) {}) {
  environment_.Variables[L"Commander_Path"] = L"C:\\TC";
  registry_.SetText(RootKey::CurrentUser, L"Software\\Ghisler\\Total Commander", L"IniFileName",
                    IniPath);
  Files.Contents[CommandsPath] = CommandLines(commands);
  Files.Contents[DefaultKeysPath] = DefaultKeys(commands);
  Files.Contents[IniPath] = Shortcuts(commands);
}

void SampleProgram::Start() {
  Editor.Load();
  Editor.Activate();
}

}  // namespace tessera
