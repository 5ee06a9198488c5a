// Every access is checked: a test must not go on with what was not read.
#include "tests/e2e/RemoteMemory.h"

#include <stdexcept>

namespace tessera::e2e {
namespace {

constexpr UINT AnswerLimit = 10000;  // milliseconds

}  // namespace

RemoteMemory::RemoteMemory(HANDLE process, std::size_t bytes)
    : process_(process),
      address_(static_cast<std::byte*>(
          VirtualAllocEx(process, nullptr, bytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))) {
  if (address_ == nullptr) throw std::runtime_error("No memory in the program could be had");
}

RemoteMemory::~RemoteMemory() { VirtualFreeEx(process_, address_, 0, MEM_RELEASE); }

void* RemoteMemory::At(std::size_t offset) const { return address_ + offset; }

void RemoteMemory::Write(const void* data, std::size_t bytes, std::size_t offset) {
  if (WriteProcessMemory(process_, At(offset), data, bytes, nullptr) == FALSE) {
    throw std::runtime_error("The program's memory could not be written");
  }
}

void RemoteMemory::Read(void* data, std::size_t bytes, std::size_t offset) const {
  if (ReadProcessMemory(process_, At(offset), data, bytes, nullptr) == FALSE) {
    throw std::runtime_error("The program's memory could not be read");
  }
}

LRESULT Send(HWND window, UINT message, WPARAM first, LPARAM second) {
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, AnswerLimit, &answer) == 0) {
    throw std::runtime_error("No answer to message " + std::to_string(message) + ", error " +
                             std::to_string(GetLastError()));
  }
  return static_cast<LRESULT>(answer);
}

LRESULT Send(HWND window, UINT message, WPARAM first, const void* second) {
  return Send(window, message, first, reinterpret_cast<LPARAM>(second));
}

std::wstring TextOf(HWND window) {
  const auto length = static_cast<std::size_t>(Send(window, WM_GETTEXTLENGTH));
  std::wstring text(length + 1, L'\0');
  const auto copied = static_cast<std::size_t>(Send(window, WM_GETTEXT, text.size(), text.data()));
  text.resize(copied);
  return text;
}

}  // namespace tessera::e2e
