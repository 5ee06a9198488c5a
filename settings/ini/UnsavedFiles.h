// What a save leaves beside a file, and what lay there before it.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Files.h"

namespace tessera {

/// Other files, to be given to a save in place of those. What a save leaves beside a file, as
/// ".unsaved", can be taken away again; what lay there before, which may be all that an earlier run
/// of the program could keep, is then put back.
class UnsavedFiles final : public Files {
 public:
  enum class Targets {
    Replaced,  ///< and the ".unsaved" of a former save of this object goes, no other one
    LeftAlone  ///< a replace puts the new content beside its target, as ".unsaved"
  };

  /// `files` must outlive this object.
  UnsavedFiles(Files& files, Targets targets);

  /// To be called before each save: Left tells of that one.
  void Begin();

  /// Where the content of the save lies beside files; nothing when that is not all of what it could
  /// not put in place.
  [[nodiscard]] std::vector<std::wstring> Left() const;

  /// Takes the new content away again; what lay there before is put back.
  void TakeAway();

  [[nodiscard]] bool Exists(const std::wstring& path) const override;
  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override;
  [[nodiscard]] bool IsReadOnly(const std::wstring& path) const override;
  [[nodiscard]] FileStamp Stamp(const std::wstring& path) const override;
  [[nodiscard]] std::wstring Resolve(const std::wstring& path) const override;
  [[nodiscard]] FileError Write(const std::wstring& path, std::string_view bytes) override;
  /// Nothing is added where targets are left alone, and nothing is lost by that.
  [[nodiscard]] FileError Append(const std::wstring& path, std::string_view bytes) override;
  [[nodiscard]] FileError Replace(const std::wstring& target, const std::wstring& replacement,
                                  const std::wstring& backup) override;
  [[nodiscard]] FileError Move(const std::wstring& from, const std::wstring& to) override;
  FileError Remove(const std::wstring& path) override;

 private:
  FileError MoveBeside(const std::wstring& from, const std::wstring& to);
  FileError PutBack(const std::wstring& path);

  Files& files_;
  Targets targets_;

  /// By path, what lay there before; nothing where there was no file.
  std::map<std::wstring, std::optional<std::string>> former_;
  std::set<std::wstring> left_;  ///< by the save, beside files
  std::set<std::wstring>
      pending_;  ///< written, or to be, and neither in place nor beside its target
};

}  // namespace tessera
