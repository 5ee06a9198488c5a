// Finding and closing windows, and starting programs, on the real system.
#include <windows.h>
#include <gtest/gtest.h>

#include <future>
#include <string>
#include <thread>

#include "platform/win32/Handle.h"
#include "platform/win32/WindowsClock.h"
#include "platform/win32/WindowsFiles.h"
#include "platform/win32/WindowsPrograms.h"

namespace tessera::windows_programs_test {
namespace {

int closeRequests = 0;
WORD closeParameter = 1;

LRESULT CALLBACK CountCloseRequests(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_CLOSE) return DefWindowProcW(window, message, wParam, lParam);
  ++closeRequests;
  closeParameter = *reinterpret_cast<const WORD*>(lParam);
  return 0;
}

TEST(WindowsPrograms, WindowIsFoundByItsClassAndAskedToCloseOnce) {
  const OwnerWindow owner;
  WindowsPrograms programs(owner);
  const std::wstring name = L"TesseraTest" + std::to_wstring(GetCurrentProcessId());
  EXPECT_EQ(programs.FindWindowOfClass(name), 0U);

  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = CountCloseRequests;
  windowClass.lpszClassName = name.c_str();
  ASSERT_NE(RegisterClassW(&windowClass), 0);
  const HWND window = CreateWindowW(name.c_str(), L"title", WS_OVERLAPPEDWINDOW, 0, 0, 9, 9,
                                    nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(window, nullptr);
  const WindowId found = programs.FindWindowOfClass(name);
  EXPECT_EQ(found, reinterpret_cast<WindowId>(window));
  SetLastError(ERROR_ACCESS_DENIED);  // of a former call
  EXPECT_TRUE(programs.SendClose(found));
  EXPECT_FALSE(programs.AwaitsAnswer());
  EXPECT_EQ(closeRequests, 1);
  EXPECT_EQ(closeParameter, 0);
  DestroyWindow(window);
}

UniqueHandle mayAnswer;

LRESULT CALLBACK CountCloseRequestsLate(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  constexpr DWORD Limit = 5000;  // milliseconds; whoever waits for the answer gets none sooner
  if (message == WM_CLOSE) WaitForSingleObject(mayAnswer.get(), Limit);
  if (message == WM_APP) DestroyWindow(window);
  if (message == WM_DESTROY) PostQuitMessage(0);
  return CountCloseRequests(window, message, wParam, lParam);
}

TEST(WindowsPrograms, PathIsThatOfTheWindowsProgram) {
  const OwnerWindow owner;
  const WindowsPrograms programs(owner);
  const HWND window = CreateWindowW(L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 9, 9, nullptr,
                                    nullptr, nullptr, nullptr);
  std::wstring own(MAX_PATH, L'\0');
  own.resize(GetModuleFileNameW(nullptr, own.data(), MAX_PATH));
  EXPECT_EQ(programs.PathOf(reinterpret_cast<WindowId>(window)), own);
  DestroyWindow(window);
  EXPECT_EQ(programs.PathOf(reinterpret_cast<WindowId>(window)), L"");
  EXPECT_EQ(programs.PathOf(0), L"");
}

TEST(WindowsPrograms, ProgramIsGivenTimeToClose) {
  const std::wstring name = L"TesseraTestLate" + std::to_wstring(GetCurrentProcessId());
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = CountCloseRequestsLate;
  windowClass.lpszClassName = name.c_str();
  ASSERT_NE(RegisterClassW(&windowClass), 0);
  std::promise<HWND> made;
  std::thread program([&] {
    made.set_value(CreateWindowW(name.c_str(), L"title", WS_OVERLAPPEDWINDOW, 0, 0, 9, 9, nullptr,
                                 nullptr, nullptr, nullptr));
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  });
  const HWND window = made.get_future().get();
  closeRequests = 0;
  mayAnswer = Own(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const OwnerWindow owner;
  WindowsPrograms programs(owner);
  WindowsClock clock;
  EXPECT_TRUE(programs.SendClose(reinterpret_cast<WindowId>(window)));
  EXPECT_TRUE(programs.AwaitsAnswer()) << "nobody waited for it here";
  PostQuitMessage(0);
  EXPECT_FALSE(programs.AwaitsAnswer()) << "this program is to end";
  MSG quit{};
  ASSERT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_TRUE(programs.AwaitsAnswer());
  SetEvent(mayAnswer.get());
  while (programs.AwaitsAnswer()) {
    clock.DoEvents();
    clock.Sleep(5);
  }
  EXPECT_EQ(closeRequests, 1);
  PostMessageW(window, WM_APP, 0, 0);
  program.join();
}

TEST(WindowsPrograms, WindowThatIsGoneIsNotAwaited) {
  const OwnerWindow owner;
  WindowsPrograms programs(owner);
  EXPECT_FALSE(programs.AwaitsAnswer()) << "nobody was asked";
  EXPECT_TRUE(programs.SendClose(0x7FFFFFF0));
  EXPECT_FALSE(programs.AwaitsAnswer());
}

TEST(WindowsPrograms, MissingProgramsAndDocumentsAreReported) {
  const OwnerWindow owner;
  WindowsPrograms programs(owner);
  EXPECT_FALSE(programs.Start(L""));
  EXPECT_FALSE(programs.Start(L"C:\\no such folder\\none.exe /i=\"x\""));
  EXPECT_FALSE(programs.OpenDocument(L"C:\\no such folder\\none.chm"));
}

TEST(WindowsPrograms, UnquotedPathWithBlanksStartsThatProgramAndNoOther) {
  std::wstring folder(MAX_PATH + 1, L'\0');
  folder.resize(GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
  folder += L"tessera" + std::to_wstring(GetCurrentProcessId());
  std::wstring shell(MAX_PATH + 1, L'\0');
  shell.resize(GetSystemDirectoryW(shell.data(), static_cast<UINT>(shell.size())));
  shell += L"\\cmd.exe";
  const std::wstring decoy = folder + L"\\a.exe";
  const std::wstring program = folder + L"\\a b\\c d.exe";
  const std::wstring made = folder + L"\\a b\\made here";  // in the folder of its own
  ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
  ASSERT_TRUE(CreateDirectoryW((folder + L"\\a b").c_str(), nullptr));
  ASSERT_TRUE(CreateDirectoryW((folder + L"\\a b\\c").c_str(), nullptr));
  ASSERT_TRUE(CopyFileW(shell.c_str(), program.c_str(), TRUE));
  WindowsFiles files;
  ASSERT_EQ(files.Write(decoy, "not a program"), FileError::None);

  EXPECT_TRUE(WindowsPrograms(OwnerWindow()).Start(program + L" /c mkdir \"made here\""));
  bool isMade = false;
  for (int tries = 0; tries < 200 && !isMade; ++tries) {
    Sleep(50);
    isMade = GetFileAttributesW(made.c_str()) != INVALID_FILE_ATTRIBUTES;
  }
  EXPECT_TRUE(isMade);

  RemoveDirectoryW(made.c_str());
  files.Remove(decoy);
  for (int tries = 0; tries < 100 && files.Remove(program) == FileError::AccessDenied; ++tries) {
    Sleep(50);  // until the program has ended
  }
  RemoveDirectoryW((folder + L"\\a b\\c").c_str());
  RemoveDirectoryW((folder + L"\\a b").c_str());
  RemoveDirectoryW(folder.c_str());
}

}  // namespace
}  // namespace tessera::windows_programs_test
