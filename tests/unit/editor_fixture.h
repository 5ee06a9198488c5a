// The program on the small installation, with some keys in its Wincmd.ini.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/SampleProgram.h"

namespace tessera {

const std::wstring OtherIniFile = L"C:\\TC\\Other.ini";

inline constexpr const char* IniContent =
    "[Configuration]\r\nkey=value\r\n"
    "[Shortcuts]\r\nC+F3=cm_View\r\nF3=cm_Copy\r\n"
    "[user]\r\nmenu1=Paint\r\nkey1=1\r\n"
    "[Colors]\r\nred=1\r\n";

class EditorTest : public testing::Test, public SampleProgram<> {
 protected:
  EditorTest() { Ini() = IniContent; }

  std::string& Ini() { return Files.Contents[IniFile]; }
  std::string& StoredSettings() { return Files.Contents[VantorFile]; }
};

}  // namespace tessera
