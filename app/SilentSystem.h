// The system for a run without a window: everything is read as ever, and nothing is asked, shown or
// written.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/Pinned.h"
#include "platform/System.h"

namespace tessera {

/// Forwards what reads a file, and refuses the rest.
class ReadOnlyFiles final : public Files {
 public:
  explicit ReadOnlyFiles(const Files& files);

  /// The path of a file that is there and could not be read, at the last try.
  [[nodiscard]] std::optional<std::wstring> Unread() const;

  /// True for a file that was read, or would have been if it were there.
  [[nodiscard]] bool IsInput(const std::wstring& path) const;

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

 private:
  const Files& files_;
  mutable std::map<std::wstring, FileError> reads_;  ///< how the last one of each path went
};

/// Answers as somebody who wants nothing done, and remembers what would have been said first.
class UnshownBoxes final : public MessageBoxes {
 public:
  /// Empty when nothing would have been said.
  [[nodiscard]] const std::wstring& FirstText() const;

  BoxAnswer Show(const std::wstring& text, BoxButtons buttons, BoxIcon icon,
                 BoxDefault defaultButton) override;
  void Beep() override;

 private:
  std::wstring firstText_;
};

/// All of them are cancelled.
class UnshownDialogs final : public Dialogs {
 public:
  std::optional<std::wstring> Open(const FileDialogRequest& request) override;
  std::optional<std::wstring> Save(const FileDialogRequest& request) override;
  std::optional<std::uint32_t> Color() override;
  bool Font(FontRecord& font) override;
};

class SilentSystem : Pinned {
 public:
  explicit SilentSystem(const System& system);

  /// The seams; they live as long as this object.
  [[nodiscard]] System Seams();

  [[nodiscard]] const ReadOnlyFiles& Files() const;
  [[nodiscard]] const UnshownBoxes& Boxes() const;

 private:
  System system_;
  ReadOnlyFiles files_;
  UnshownBoxes boxes_;
  UnshownDialogs dialogs_;
};

}  // namespace tessera
