// Fresh copies of the program's folder and of a Total Commander folder, and the registry values
// that lead the program to them. Nothing of the user's is touched.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessera::e2e {

[[nodiscard]] std::string ReadBytes(const std::wstring& path);
void WriteBytes(const std::wstring& path, std::string_view bytes);
[[nodiscard]] bool Exists(const std::wstring& path);
void Delete(const std::wstring& path);

/// UTF-8, for messages of tests.
[[nodiscard]] std::string Utf8(std::wstring_view text);

/// The folder in which this test program lies, with a trailing "\".
[[nodiscard]] std::wstring OwnFolder();

/// A registry value under HKEY_CURRENT_USER, put back to what it was at the end.
class RegistryValue {
 public:
  RegistryValue(std::wstring key, std::wstring name);
  ~RegistryValue();
  RegistryValue(const RegistryValue&) = delete;
  RegistryValue& operator=(const RegistryValue&) = delete;

  void Set(const std::wstring& text);
  void Remove();

 private:
  [[nodiscard]] std::optional<std::wstring> Read() const;

  std::wstring key_;
  std::wstring name_;
  std::optional<std::wstring> former_;
};

/// Copies what the environment variables TESSERA_DIST and TESSERA_DEMO name to a new folder in the
/// temporary directory; the destructor deletes it. Paths of folders end in "\".
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] std::wstring Root() const;
  [[nodiscard]] std::wstring Program() const;
  [[nodiscard]] std::wstring Commander() const;
  [[nodiscard]] std::wstring Executable() const;
  [[nodiscard]] std::wstring SettingsFile() const;
  [[nodiscard]] std::wstring WincmdIni() const;
  [[nodiscard]] std::wstring TotalcmdInc() const;
  [[nodiscard]] std::wstring DefaultKeysFile() const;
  [[nodiscard]] std::wstring ShippedLanguage(const std::wstring& name) const;

  /// Writes settings that have nothing but a language file.
  void UseLanguageFile(const std::wstring& path) const;

  /// Of Total Commander's registry key.
  RegistryValue InstallDir;
  RegistryValue IniFileName;

 private:
  std::wstring root_;
};

}  // namespace tessera::e2e
