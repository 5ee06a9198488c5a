// The system's standard dialogs for files, colours and fonts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

struct FileDialogRequest {
  std::wstring Folder;    ///< initial folder; empty leaves the choice to the system
  std::wstring FileName;  ///< proposed name
  std::wstring Filter;    ///< description|pattern pairs joined by "|"
  std::wstring Title;
  bool AskBeforeOverwrite = false;  ///< save dialogs only
};

/// The record of the font dialog; texts and numbers as the system's logical font has them.
struct FontRecord {
  std::wstring FaceName;  ///< at most 31 characters
  int Weight = 400;
  bool Italic = false;
  bool StrikeOut = false;
  bool Underline = false;
  std::uint8_t CharSet = 1;
  std::uint8_t PitchAndFamily = 16;
  int PointSizeInTenths = 100;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// The chosen path; nothing when the dialog was cancelled or could not be shown.
  virtual std::optional<std::wstring> Open(const FileDialogRequest& request) = 0;
  virtual std::optional<std::wstring> Save(const FileDialogRequest& request) = 0;

  /// The chosen colour as 0x00BBGGRR; nothing when cancelled.
  virtual std::optional<std::uint32_t> Color() = 0;

  /// True when the user chose a font; `font` then holds it, and is unchanged otherwise.
  virtual bool Font(FontRecord& font) = 0;
};

}  // namespace tessera
