// Variables, the program's folder and the screen of the real system.
#include <windows.h>
#include <gtest/gtest.h>

#include "platform/win32/WindowsEnvironment.h"

namespace tessera::windows_environment_test {
namespace {

TEST(WindowsEnvironment, VariableHasItsWholeValue) {
  const WindowsEnvironment environment;
  for (const std::size_t length : {1U, 255U, 256U, 5000U}) {
    const std::wstring value(length, L'x');
    ASSERT_TRUE(SetEnvironmentVariableW(L"TESSERA_TEST", value.c_str()));
    EXPECT_EQ(environment.Variable(L"TESSERA_TEST"), value);
  }
  ASSERT_TRUE(SetEnvironmentVariableW(L"TESSERA_TEST", nullptr));
  EXPECT_EQ(environment.Variable(L"TESSERA_TEST"), L"");
}

TEST(WindowsEnvironment, ProgramDirectoryHoldsThisProgram) {
  const std::wstring directory = WindowsEnvironment().ProgramDirectory();
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  EXPECT_FALSE(directory.ends_with(L'\\'));
  EXPECT_TRUE(path.starts_with(directory + L'\\'));
  EXPECT_EQ(path.find(L'\\', directory.size() + 1), std::wstring::npos);
}

TEST(WindowsEnvironment, TemporaryDirectoryIsAFolder) {
  const std::wstring directory = WindowsEnvironment().TemporaryDirectory();
  const DWORD attributes = GetFileAttributesW(directory.c_str());
  ASSERT_NE(attributes, INVALID_FILE_ATTRIBUTES);
  EXPECT_NE(attributes & FILE_ATTRIBUTE_DIRECTORY, 0U);
}

TEST(WindowsEnvironment, ScreenIsMeasuredInTwips) {
  const TwipsSize size = WindowsEnvironment().ScreenSize();
  const auto dotsPerInch = static_cast<double>(GetDpiForSystem());
  EXPECT_NEAR(size.Width, GetSystemMetrics(SM_CXSCREEN) * 1440 / dotsPerInch, 1);
  EXPECT_NEAR(size.Height, GetSystemMetrics(SM_CYSCREEN) * 1440 / dotsPerInch, 1);
}

}  // namespace
}  // namespace tessera::windows_environment_test
