// Stands in for the one variable that may be missing.
#include "settings/commander/CommanderEnvironment.h"

#include <utility>

#include "text/Text.h"

namespace tessera {

CommanderEnvironment::CommanderEnvironment(const Environment& environment)
    : environment_(environment) {}

std::wstring CommanderEnvironment::Variable(const std::wstring& name) const {
  std::wstring value = environment_.Variable(name);
  return value.empty() && EqualIgnoringCase(name, L"Commander_Path") ? directory_ : value;
}

std::wstring CommanderEnvironment::ProgramDirectory() const {
  return environment_.ProgramDirectory();
}

std::wstring CommanderEnvironment::TemporaryDirectory() const {
  return environment_.TemporaryDirectory();
}

TwipsSize CommanderEnvironment::ScreenSize() const { return environment_.ScreenSize(); }

void CommanderEnvironment::SetTotalCommanderDirectory(std::wstring directory) {
  directory_ = std::move(directory);
  if (directory_.ends_with(L'\\')) directory_.pop_back();
}

}  // namespace tessera
