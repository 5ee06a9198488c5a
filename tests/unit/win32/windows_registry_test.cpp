// The real registry, below a key of the test's own.
#include <windows.h>
#include <gtest/gtest.h>

#include "platform/win32/WindowsRegistry.h"
#include "settings/cRegistry.h"
#include "settings/ini/MissingMarker.h"

namespace tessera::windows_registry_test {
namespace {

class WindowsRegistryTest : public testing::Test {
 protected:
  ~WindowsRegistryTest() override { registry_.DeleteKey(RootKey::CurrentUser, L"Software", name_); }

  WindowsRegistry registry_;
  cRegistry texts_{registry_};
  std::wstring name_ = L"Tessera test " + std::to_wstring(GetCurrentProcessId());
  std::wstring subkey_ = L"Software\\" + name_;
  std::wstring path_ = L"HKEY_CURRENT_USER\\" + subkey_;
};

TEST_F(WindowsRegistryTest, AbsentKeyAndValueGiveNothing) {
  EXPECT_FALSE(registry_.Query(RootKey::CurrentUser, subkey_, L"t", 2048));
  texts_.WriteValue(path_, L"t", L"x", 1);
  EXPECT_FALSE(registry_.Query(RootKey::CurrentUser, subkey_, L"other", 2048));
  EXPECT_EQ(texts_.ReadValue(path_, L"other"), MissingMarker);
}

TEST_F(WindowsRegistryTest, TextIsStoredWithItsTerminatorAndReadBack) {
  texts_.WriteValue(path_, L"t", L"C:\\Total Commander", 1);
  const auto value = registry_.Query(RootKey::CurrentUser, subkey_, L"t", 2048);
  ASSERT_TRUE(value);
  EXPECT_EQ(value->Type, 1U);
  EXPECT_EQ(value->Text, std::wstring(L"C:\\Total Commander\0", 19));
  EXPECT_EQ(texts_.ReadValue(path_, L"t"), L"C:\\Total Commander");
}

TEST_F(WindowsRegistryTest, CharactersOutsideTheCodePageStay) {
  const std::wstring folder = L"C:\\\u0141\u00F3d\u017A \u65E5\u672C";
  texts_.WriteValue(path_, L"t", folder, 1);
  EXPECT_EQ(texts_.ReadValue(path_, L"t"), folder);
}

TEST_F(WindowsRegistryTest, TextAboveTheCapacityGivesNothing) {
  texts_.WriteValue(path_, L"t", std::wstring(9, L'\u0141'), 1);
  EXPECT_TRUE(registry_.Query(RootKey::CurrentUser, subkey_, L"t", 10));
  EXPECT_FALSE(registry_.Query(RootKey::CurrentUser, subkey_, L"t", 9));
}

TEST_F(WindowsRegistryTest, NumberIsStoredAsFourBytes) {
  texts_.WriteValue(path_, L"n", L"258", 4);
  const auto value = registry_.Query(RootKey::CurrentUser, subkey_, L"n", 2048);
  ASSERT_TRUE(value);
  EXPECT_EQ(value->Type, 4U);
  EXPECT_EQ(value->Bytes, std::string("\x02\x01\x00\x00", 4));
}

TEST_F(WindowsRegistryTest, BinaryIsReadAsHexadecimal) {
  ASSERT_TRUE(registry_.Set(RootKey::CurrentUser, subkey_, L"b", {3, std::string("\x01\xAB", 2)}));
  EXPECT_EQ(texts_.ReadValue(path_, L"b"), L"01AB");
}

TEST_F(WindowsRegistryTest, TextWithVariablesIsReadAsItIs) {
  const std::wstring text = L"%ProgramFiles%\\\u0141";
  ASSERT_TRUE(registry_.Set(RootKey::CurrentUser, subkey_, L"t", {REG_EXPAND_SZ, {}, text}));
  const auto value = registry_.Query(RootKey::CurrentUser, subkey_, L"t", 2048);
  ASSERT_TRUE(value);
  EXPECT_EQ(value->Type, DWORD{REG_EXPAND_SZ});
  EXPECT_TRUE(value->Text.starts_with(text));
}

TEST_F(WindowsRegistryTest, ListOfTextsIsReadAsBytesOfTheCodePage) {
  const wchar_t list[] = L"one\0two\0";
  const std::string stored(reinterpret_cast<const char*>(list), sizeof list);
  ASSERT_TRUE(registry_.Set(RootKey::CurrentUser, subkey_, L"m", {REG_MULTI_SZ, stored}));
  const auto value = registry_.Query(RootKey::CurrentUser, subkey_, L"m", 2048);
  ASSERT_TRUE(value);
  EXPECT_EQ(value->Bytes, std::string("one\0two\0", 9));
}

TEST_F(WindowsRegistryTest, NothingIsStoredBelowAnUnknownRoot) {
  EXPECT_FALSE(registry_.Set(RootKey{1}, subkey_, L"t", {REG_SZ, {}, L"x"}));
}

TEST_F(WindowsRegistryTest, ValueAboveTheCapacityGivesNothing) {
  ASSERT_TRUE(registry_.Set(RootKey::CurrentUser, subkey_, L"b", {3, std::string(10, 'x')}));
  EXPECT_TRUE(registry_.Query(RootKey::CurrentUser, subkey_, L"b", 10));
  EXPECT_FALSE(registry_.Query(RootKey::CurrentUser, subkey_, L"b", 9));
}

TEST_F(WindowsRegistryTest, DeletedKeyIsGone) {
  texts_.WriteValue(path_ + L"\\Sub", L"t", L"x", 1);
  texts_.Deletekey(path_, L"Sub");
  EXPECT_EQ(texts_.ReadValue(path_ + L"\\Sub", L"t"), MissingMarker);
  EXPECT_FALSE(registry_.DeleteKey(RootKey::CurrentUser, subkey_, L"Sub"));
}

}  // namespace
}  // namespace tessera::windows_registry_test
