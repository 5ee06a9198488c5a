// INI content in UTF-16.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "settings/ini/IniDocument.h"

namespace tessera::ini_document_utf16_test {
namespace {

using namespace std::literals;

/// The ASCII text as UTF-16 with its mark.
std::string Utf16(std::string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char character : text) bytes.append({character, '\0'});
  return bytes;
}

TEST(IniDocument, Utf16StaysUtf16) {
  IniDocument document(Utf16("[s]\r\nk=v\r\n"));
  EXPECT_EQ(document.FileEncoding(), IniDocument::Encoding::Utf16Le);
  document.Set("s", "k", "new");
  document.Set("s", "j", "w");
  EXPECT_EQ(document.Bytes(), Utf16("[s]\r\nk=new\r\nj=w\r\n"));
}

TEST(IniDocument, Utf16KeepsUnpairedSurrogatesAndAnOddByte) {
  const std::string odd = "x=\0\xD8y\0\0\xDC\0\xDC\0\xD8\0\xDC\r\0\n\0"s;
  const std::string before = Utf16("[s]\r\nk=v\r\n") + "x\0=\0"s + odd.substr(2) + "Z";
  IniDocument document(before);
  EXPECT_EQ(document.Bytes(), before);
  document.Set("s", "k", "n");
  EXPECT_EQ(document.Bytes(), Utf16("[s]\r\nk=n\r\n") + "x\0=\0"s + odd.substr(2) + "Z");
}

TEST(IniDocument, Utf16ValuesAreUtf8AtTheInterface) {
  IniDocument document("\xFF\xFE");
  document.Set("s", "k", "\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(document.Bytes(),
            Utf16("\r\n[s]\r\nk=") + "\xAC\x20\x3D\xD8\x00\xDE"s + Utf16("\r\n").substr(2));
  EXPECT_EQ(document.Find("s", "k"), "\xE2\x82\xAC\xF0\x9F\x98\x80");
}

}  // namespace
}  // namespace tessera::ini_document_utf16_test
