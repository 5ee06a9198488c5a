// A save that changes nothing yet: what it would put in place lies beside each file.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/Files.h"

namespace tessera {

/// Other files, where a replace leaves its target alone and puts the new content beside it, as
/// ".unsaved". To be given to a save in place of those.
class UnsavedFiles final : public Files {
 public:
  /// `files` must outlive this object.
  explicit UnsavedFiles(Files& files);

  /// Takes the new content away again; what lay there before is put back.
  void TakeAway();

  [[nodiscard]] bool Exists(const std::wstring& path) const override;
  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override;
  [[nodiscard]] FileStamp Stamp(const std::wstring& path) const override;
  [[nodiscard]] std::wstring Resolve(const std::wstring& path) const override;
  [[nodiscard]] FileError Write(const std::wstring& path, std::string_view bytes) override;
  [[nodiscard]] FileError Replace(const std::wstring& target, const std::wstring& replacement,
                                  const std::wstring& backup) override;
  [[nodiscard]] FileError Move(const std::wstring& from, const std::wstring& to) override;
  FileError Remove(const std::wstring& path) override;

 private:
  Files& files_;

  /// By path, what lay there before; nothing where there was no file.
  std::map<std::wstring, std::optional<std::string>> former_;
};

}  // namespace tessera
