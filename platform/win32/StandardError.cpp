// A program that has windows is given no console, but may take that of its parent.
#include "platform/win32/StandardError.h"

#include <windows.h>

#include "platform/win32/Handle.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

/// False where nothing can be written.
bool Write(HANDLE target, const std::wstring& text) {
  DWORD mode{};
  DWORD count{};
  if (GetConsoleMode(target, &mode) != FALSE) {
    return WriteConsoleW(target, text.data(), static_cast<DWORD>(text.size()), &count, nullptr) !=
           FALSE;
  }
  const std::string bytes = Utf8FromWide(text);
  return WriteFile(target, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) !=
         FALSE;
}

}  // namespace

void WriteErrorLine(const std::wstring& line) {
  const std::wstring text = line + L"\r\n";
  if (Write(GetStdHandle(STD_ERROR_HANDLE), text)) return;
  if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) return;
  const UniqueHandle console =
      Own(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                      nullptr, OPEN_EXISTING, 0, nullptr));
  if (console) Write(console.get(), text);
}

}  // namespace tessera
