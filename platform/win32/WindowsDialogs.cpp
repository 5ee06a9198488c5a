// Fills the system's dialog structures from plain values, and plain values from them.
#include "platform/win32/WindowsDialogs.h"

#include <commdlg.h>

#include <algorithm>

#include "platform/win32/Components.h"
#include "platform/win32/Controls.h"
#include "platform/win32/SystemFunction.h"
#include "platform/win32/SystemText.h"

namespace tessera {
namespace {

constexpr std::size_t FileBufferLength = 32768;  // characters with the terminator
constexpr int SmallestPointSize = 8;
constexpr int LargestPointSize = 72;
constexpr int TenthsOfPointPerInch = 720;
constexpr DWORD FileFlags =
    OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;

/// Shows a dialog of the system; false when it is cancelled or there is none.
template <typename Dialog>
bool Show(const char* function, Dialog& dialog) {
  StartComponents();
  auto* const show = SystemFunction<BOOL WINAPI(Dialog*)>(L"comdlg32.dll", function);
  return show != nullptr && show(&dialog) != FALSE;
}

/// Sets the current folder back at its end: a file dialog makes that of the chosen file the current
/// one, which then cannot be removed, as a stick cannot that is to be ejected.
class KeptFolder {
 public:
  KeptFolder() = default;
  ~KeptFolder() { SetCurrentDirectoryW(folder_.c_str()); }
  KeptFolder(const KeptFolder&) = delete;
  KeptFolder& operator=(const KeptFolder&) = delete;

 private:
  std::wstring folder_ =
      SystemText([](wchar_t* buffer, DWORD size) { return GetCurrentDirectoryW(size, buffer); });
};

const wchar_t* TextOrNull(const std::wstring& text) {
  return text.empty() ? nullptr : text.c_str();
}

/// Shows one of the two file dialogs, which share everything but their function.
std::optional<std::wstring> ChooseFile(const char* function, DWORD flags, HWND owner,
                                       const FileDialogRequest& request) {
  std::wstring filter = request.Filter + L'|';  // the list ends with an empty description
  std::ranges::replace(filter, L'|', L'\0');
  std::wstring file = request.FileName;
  file.resize(FileBufferLength);
  file.back() = L'\0';

  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = filter.c_str();
  dialog.lpstrFile = file.data();
  dialog.nMaxFile = static_cast<DWORD>(file.size());
  dialog.lpstrInitialDir = TextOrNull(request.Folder);
  dialog.lpstrTitle = TextOrNull(request.Title);
  dialog.Flags = flags;
  const KeptFolder kept;
  if (!Show(function, dialog)) return std::nullopt;
  // The system ends the path within the buffer.
  return file.substr(0, file.find(L'\0'));
}

/// The device context of the default printer; empty when there is no printer.
Unique<HDC> DefaultPrinter() {
  PRINTDLGW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.Flags = PD_RETURNDEFAULT | PD_RETURNDC | PD_NOWARNING;
  if (!Show("PrintDlgW", dialog)) return {};
  GlobalFree(dialog.hDevMode);
  GlobalFree(dialog.hDevNames);
  return Unique<HDC>(dialog.hDC);
}

LOGFONTW ToLogicalFont(const FontRecord& font) {
  LOGFONTW logical{};
  logical.lfHeight =
      -MulDiv(font.PointSizeInTenths, static_cast<int>(GetDpiForSystem()), TenthsOfPointPerInch);
  logical.lfWeight = font.Weight;
  logical.lfItalic = font.Italic ? TRUE : FALSE;
  logical.lfStrikeOut = font.StrikeOut ? TRUE : FALSE;
  logical.lfUnderline = font.Underline ? TRUE : FALSE;
  logical.lfCharSet = font.CharSet;
  logical.lfPitchAndFamily = font.PitchAndFamily;
  font.FaceName.copy(logical.lfFaceName, LF_FACESIZE - 1);
  return logical;
}

FontRecord FromLogicalFont(const LOGFONTW& logical, int pointSizeInTenths) {
  FontRecord font;
  font.FaceName = logical.lfFaceName;
  font.Weight = logical.lfWeight;
  font.Italic = logical.lfItalic != FALSE;
  font.StrikeOut = logical.lfStrikeOut != FALSE;
  font.Underline = logical.lfUnderline != FALSE;
  font.CharSet = logical.lfCharSet;
  font.PitchAndFamily = logical.lfPitchAndFamily;
  font.PointSizeInTenths = pointSizeInTenths;
  return font;
}

}  // namespace

WindowsDialogs::WindowsDialogs(const OwnerWindow& owner) : owner_(owner) {}

std::optional<std::wstring> WindowsDialogs::Open(const FileDialogRequest& request) {
  return ChooseFile("GetOpenFileNameW", FileFlags, owner_.ForModal(), request);
}

std::optional<std::wstring> WindowsDialogs::Save(const FileDialogRequest& request) {
  const DWORD overwrite = request.AskBeforeOverwrite ? DWORD{OFN_OVERWRITEPROMPT} : DWORD{0};
  return ChooseFile("GetSaveFileNameW", FileFlags | overwrite, owner_.ForModal(), request);
}

std::optional<std::uint32_t> WindowsDialogs::Color() {
  CHOOSECOLORW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner_.ForModal();
  dialog.lpCustColors = customColors_.data();
  if (!Show("ChooseColorW", dialog)) return std::nullopt;
  return dialog.rgbResult;
}

bool WindowsDialogs::Font(FontRecord& font) {
  LOGFONTW logical = ToLogicalFont(font);
  const Unique<HDC> printer = DefaultPrinter();
  CHOOSEFONTW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner_.ForModal();
  dialog.hDC = printer.get();
  dialog.lpLogFont = &logical;
  // Without a printer only the screen's fonts can be listed.
  dialog.Flags = (printer ? DWORD{CF_BOTH} : DWORD{CF_SCREENFONTS}) | CF_INITTOLOGFONTSTRUCT |
                 CF_EFFECTS | CF_FORCEFONTEXIST | CF_LIMITSIZE;
  dialog.nSizeMin = SmallestPointSize;
  dialog.nSizeMax = LargestPointSize;
  if (!Show("ChooseFontW", dialog)) return false;
  font = FromLogicalFont(logical, dialog.iPointSize);
  return true;
}

}  // namespace tessera
