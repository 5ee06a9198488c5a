// Functions of libraries that are loaded when they are needed.
#include <windows.h>  // must come first
#include <gtest/gtest.h>
#include <shellapi.h>

#include "platform/win32/SystemFunction.h"

namespace tessera::system_function_test {
namespace {

TEST(SystemFunction, CanBeCalled) {
  auto* const split =
      SystemFunction<decltype(CommandLineToArgvW)>(L"shell32.dll", "CommandLineToArgvW");
  ASSERT_NE(split, nullptr);
  int count = 0;
  wchar_t** const arguments = split(L"a \"b c\"", &count);
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(arguments[1], L"b c");
  LocalFree(arguments);
}

TEST(SystemFunction, NullWithoutSuchAFunctionOrLibrary) {
  EXPECT_EQ(SystemFunction<void()>(L"shell32.dll", "NoSuchFunction"), nullptr);
  EXPECT_EQ(SystemFunction<void()>(L"no-such-library.dll", "DragFinish"), nullptr);
}

}  // namespace
}  // namespace tessera::system_function_test
