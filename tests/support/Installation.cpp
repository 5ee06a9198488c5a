#include "tests/support/Installation.h"

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
    if (command % 20 == 0) text += "[_____Group " + std::to_string(command / 20) + "_____]=0\r\n";
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

Installation SmallInstallation() {
  return {
      "[___File___]=0\r\ncm_Copy=101;Copy files\r\ncm_View=102;View a file\r\n"
      "[___Other___]=0\r\ncm_Pack=103;Pack files\r\n",
      "[TC Default Hotkeys]\r\n101=F5\r\n102=F3\r\n", ""};
}

Installation LargeInstallation(int commands) {
  return {CommandLines(commands), DefaultKeys(commands), Shortcuts(commands)};
}

}  // namespace tessera
