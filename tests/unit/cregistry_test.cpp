// Registry values as texts, addressed by one path.
#include "settings/cRegistry.h"

#include <gtest/gtest.h>

#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeRegistry.h"

namespace tessera::cregistry_test {
namespace {

const std::wstring Subkey = L"Software\\Test";
const std::wstring KeyPath = L"HKEY_CURRENT_USER\\Software\\Test";

class cRegistryTest : public testing::Test {
 protected:
  [[nodiscard]] RegistryValue& Stored(const std::wstring& name) {
    return registry_.Values[{RootKey::CurrentUser, Subkey, name}];
  }

  FakeRegistry registry_;
  cRegistry values_{registry_};
};

TEST_F(cRegistryTest, TextIsReadWithoutItsTerminator) {
  Stored(L"t") = {1, {}, std::wstring(L"C:\\TC\0", 6)};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"t"), L"C:\\TC");
}

TEST_F(cRegistryTest, TextWithoutTerminatorLosesItsLastCharacter) {
  Stored(L"t") = {2, {}, L"abc"};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"t"), L"ab");
}

TEST_F(cRegistryTest, CharactersOutsideTheCodePageStay) {
  for (const std::uint32_t type : {1U, 2U}) {
    Stored(L"t") = {type, {}, std::wstring(L"C:\\\u0141\u00F3d\u017A\0", 8)};
    EXPECT_EQ(values_.ReadValue(KeyPath, L"t"), L"C:\\\u0141\u00F3d\u017A");
  }
}

TEST_F(cRegistryTest, ListOfTextsIsReadInTheCodePage) {
  Stored(L"l") = {7, std::string("a\0b\0\0", 5)};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"l"), std::wstring(L"a\0b\0", 4));
}

TEST_F(cRegistryTest, ValueOfNoBytesIsEmpty) {
  Stored(L"t") = {1, {}};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"t"), L"");
}

TEST_F(cRegistryTest, BinaryIsReadAsUpperCaseHexadecimal) {
  Stored(L"b") = {3, std::string("\x00\x0A\xFF\x5c", 4)};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"b"), L"000AFF5C");
}

TEST_F(cRegistryTest, NumberIsReadAsItsFirstThreeBytes) {
  Stored(L"n") = {4, "abcd"};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"n"), L"abc");
}

TEST_F(cRegistryTest, AbsentValueIsTheMissingMarker) {
  Stored(L"t") = {1, {}, std::wstring(L"x\0", 2)};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"other"), MissingMarker);
}

TEST_F(cRegistryTest, AbsentKeyIsTheMissingMarker) {
  EXPECT_EQ(values_.ReadValue(L"HKEY_CURRENT_USER\\Software\\None", L"t"), MissingMarker);
}

TEST_F(cRegistryTest, UnknownRootIsTheMissingMarker) {
  EXPECT_EQ(values_.ReadValue(L"HKCU\\Software\\Test", L"t"), MissingMarker);
}

TEST_F(cRegistryTest, ValueAboveTheBufferIsTheMissingMarker) {
  Stored(L"fits") = {1, {}, std::wstring(2048, L'\u017B')};
  Stored(L"long") = {2, {}, std::wstring(2049, L'x')};
  Stored(L"binary") = {3, std::string(2049, 'x')};
  EXPECT_EQ(values_.ReadValue(KeyPath, L"fits").size(), 2047U);
  EXPECT_EQ(values_.ReadValue(KeyPath, L"long"), MissingMarker);
  EXPECT_EQ(values_.ReadValue(KeyPath, L"binary"), MissingMarker);
}

TEST_F(cRegistryTest, RootNameInLowerCaseIsAccepted) {
  registry_.SetText(RootKey::CurrentUser, Subkey, L"t", L"x");
  EXPECT_EQ(values_.ReadValue(L"hkey_current_user\\Software\\Test", L"t"), L"x");
}

TEST_F(cRegistryTest, EveryRootNameNamesItsKey) {
  const std::pair<const wchar_t*, std::uint32_t> roots[] = {
      {L"HKEY_CLASSES_ROOT", 0x80000000},   {L"HKEY_CURRENT_USER", 0x80000001},
      {L"HKEY_LOCAL_MACHINE", 0x80000002},  {L"HKEY_USERS", 0x80000003},
      {L"HKEY_CURRENT_CONFIG", 0x80000005}, {L"HKEY_DYN_DATA", 0x80000006}};
  for (const auto& [name, number] : roots) {
    registry_.SetText(static_cast<RootKey>(number), L"a\\b", L"t", name);
    EXPECT_EQ(values_.ReadValue(std::wstring(name) + L"\\a\\b", L"t"), name);
  }
}

TEST_F(cRegistryTest, RootWithoutSubkeyIsItsOwnKey) {
  registry_.SetText(RootKey::Users, L"", L"t", L"x");
  EXPECT_EQ(values_.ReadValue(L"HKEY_USERS", L"t"), L"x");
}

TEST_F(cRegistryTest, TextIsWrittenWithItsTerminator) {
  values_.WriteValue(KeyPath, L"t", L"ab", 1);
  EXPECT_EQ(Stored(L"t").Type, 1U);
  EXPECT_EQ(Stored(L"t").Text, std::wstring(L"ab\0", 3));
}

TEST_F(cRegistryTest, NumberIsWrittenAsFourBytes) {
  values_.WriteValue(KeyPath, L"n", L"258", 4);
  EXPECT_EQ(Stored(L"n").Type, 4U);
  EXPECT_EQ(Stored(L"n").Bytes, std::string("\x02\x01\x00\x00", 4));
  values_.WriteValue(KeyPath, L"n", L"-1", 4);
  EXPECT_EQ(Stored(L"n").Bytes, "\xFF\xFF\xFF\xFF");
}

TEST_F(cRegistryTest, OtherTypesAndUnknownRootsWriteNothing) {
  values_.WriteValue(KeyPath, L"b", L"00", 3);
  values_.WriteValue(L"NO_ROOT\\a", L"t", L"x", 1);
  EXPECT_TRUE(registry_.Values.empty());
}

TEST_F(cRegistryTest, DeletekeyDeletesTheKeyBelowThePath) {
  registry_.SetText(RootKey::CurrentUser, L"Software\\Test\\Sub", L"t", L"x");
  registry_.SetText(RootKey::CurrentUser, Subkey, L"t", L"x");
  values_.Deletekey(KeyPath, L"Sub");
  EXPECT_EQ(values_.ReadValue(KeyPath + L"\\Sub", L"t"), MissingMarker);
  EXPECT_EQ(values_.ReadValue(KeyPath, L"t"), L"x");
}

}  // namespace
}  // namespace tessera::cregistry_test
