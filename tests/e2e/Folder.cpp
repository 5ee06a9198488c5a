// Plain copies: a test that breaks its folder harms no other.
#include "tests/e2e/Folder.h"

#include <windows.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace tessera::e2e {
namespace {

constexpr wchar_t TotalCommanderKey[] = L"Software\\Ghisler\\Total Commander";

std::wstring Variable(const wchar_t* name) {
  std::array<wchar_t, MAX_PATH> text{};
  const DWORD length = GetEnvironmentVariableW(name, text.data(), text.size());
  if (length == 0 || length >= text.size()) {
    throw std::runtime_error("The environment variable " + Utf8(name) + " names no folder");
  }
  return text.data();
}

std::wstring NewTemporaryFolder() {
  static int number = 0;
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() /
      (L"tessera-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number));
  std::filesystem::create_directories(path);
  return path.wstring() + L"\\";
}

void CopyFolder(const std::wstring& from, const std::wstring& to) {
  std::filesystem::create_directories(to);
  for (const auto& entry : std::filesystem::directory_iterator(from)) {
    const std::wstring name = entry.path().filename().wstring();
    if (entry.is_directory()) {
      CopyFolder(entry.path().wstring(), to + name + L"\\");
    } else {
      std::filesystem::copy_file(entry.path(), to + name);
    }
  }
}

}  // namespace

std::string ReadBytes(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  if (!file) throw std::runtime_error("Cannot read " + Utf8(path));
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteBytes(const std::wstring& path, std::string_view bytes) {
  std::ofstream file(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("Cannot write " + Utf8(path));
}

bool Exists(const std::wstring& path) { return std::filesystem::exists(path); }

void Delete(const std::wstring& path) { std::filesystem::remove_all(path); }

std::string Utf8(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

std::wstring OwnFolder() {
  std::array<wchar_t, MAX_PATH> path{};
  GetModuleFileNameW(nullptr, path.data(), path.size());
  return std::filesystem::path(path.data()).parent_path().wstring() + L"\\";
}

RegistryValue::RegistryValue(std::wstring key, std::wstring name)
    : key_(std::move(key)), name_(std::move(name)), former_(Read()) {}

RegistryValue::~RegistryValue() { former_ ? Set(*former_) : Remove(); }

void RegistryValue::Set(const std::wstring& text) {
  RegSetKeyValueW(HKEY_CURRENT_USER, key_.c_str(), name_.c_str(), REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void RegistryValue::Remove() { RegDeleteKeyValueW(HKEY_CURRENT_USER, key_.c_str(), name_.c_str()); }

std::optional<std::wstring> RegistryValue::Read() const {
  std::array<wchar_t, 1024> text{};
  DWORD bytes = sizeof text;
  if (RegGetValueW(HKEY_CURRENT_USER, key_.c_str(), name_.c_str(), RRF_RT_REG_SZ, nullptr,
                   text.data(), &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  return text.data();
}

Folder::Folder()
    : InstallDir(TotalCommanderKey, L"InstallDir"),
      IniFileName(TotalCommanderKey, L"IniFileName"),
      root_(NewTemporaryFolder()) {
  CopyFolder(Variable(L"TESSERA_DIST"), Program());
  CopyFolder(Variable(L"TESSERA_DEMO"), Commander());
  InstallDir.Remove();
  IniFileName.Set(L".\\Wincmd.ini");
}

Folder::~Folder() {
  std::error_code ignored;  // what cannot be deleted lies in the temporary directory
  std::filesystem::remove_all(root_, ignored);
}

std::wstring Folder::Root() const { return root_; }
std::wstring Folder::Program() const { return root_ + L"program\\"; }
std::wstring Folder::Commander() const { return root_ + L"commander\\"; }
std::wstring Folder::Executable() const { return Program() + L"tessera.exe"; }
std::wstring Folder::SettingsFile() const { return Program() + L"vantor.ini"; }
std::wstring Folder::WincmdIni() const { return Commander() + L"Wincmd.ini"; }
std::wstring Folder::TotalcmdInc() const { return Commander() + L"Totalcmd.inc"; }
std::wstring Folder::DefaultKeysFile() const {
  return Program() + L"Data Files\\tc default hotkeys.hky";
}
std::wstring Folder::ShippedLanguage(const std::wstring& name) const {
  return Program() + L"Languages\\" + name;
}

void Folder::UseLanguageFile(const std::wstring& path) const {
  WriteBytes(SettingsFile(), "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=" +
                                 Utf8(path) + "\r\n");
}

}  // namespace tessera::e2e
