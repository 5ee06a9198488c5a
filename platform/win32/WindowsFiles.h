// The file system through the wide Windows functions; paths of any length.
#pragma once

#include "platform/Files.h"

namespace tessera {

class WindowsFiles final : public Files {
 public:
  [[nodiscard]] bool Exists(const std::wstring& path) const override;
  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override;
  [[nodiscard]] bool IsReadOnly(const std::wstring& path) const override;
  [[nodiscard]] FileStamp Stamp(const std::wstring& path) const override;
  [[nodiscard]] std::wstring Resolve(const std::wstring& path) const override;
  [[nodiscard]] FileError Write(const std::wstring& path, std::string_view bytes) override;
  [[nodiscard]] FileError Append(const std::wstring& path, std::string_view bytes) override;
  [[nodiscard]] FileError Replace(const std::wstring& target, const std::wstring& replacement,
                                  const std::wstring& backup) override;
  [[nodiscard]] FileError Move(const std::wstring& from, const std::wstring& to) override;
  FileError Remove(const std::wstring& path) override;
};

}  // namespace tessera
