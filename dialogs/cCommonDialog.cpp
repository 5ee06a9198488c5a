// The filters and default folders of the file dialogs.
#include "dialogs/cCommonDialog.h"

#include <utility>

#include "settings/ini/MissingMarker.h"
#include "settings/Paths.h"

namespace tessera {
namespace {

constexpr std::wstring_view AllFilesPair = L"All Files (*.*)|*.*";

enum class WithAllFiles { No, Before, After };

struct FilterEntry {
  std::wstring_view Pair;
  WithAllFiles AllFiles;
};

// The misspelt word and the missing blanks before "(" are deliberate.
constexpr std::array<FilterEntry, 10> Filters{{
    {AllFilesPair, WithAllFiles::No},
    {L"Wincmd.ini (*.ini)|*.ini", WithAllFiles::After},
    {L"TC Main Menu File (*.mnu)|*.mnu", WithAllFiles::After},
    {L"TC Intenal Command File (*.inc)|*.inc", WithAllFiles::After},
    {L"Picture File (*.ico;*.bmp)|*.ico;*.bmp", WithAllFiles::No},
    {L"Language File (*.lng)|*.lng", WithAllFiles::After},
    {L"Programs (*.EXE;*.COM;*.BAT;*.PIF)|*.EXE;*.COM;*.BAT;*.PIF", WithAllFiles::Before},
    {L"TC Configuration Data File(*.cedf)|*.cedf", WithAllFiles::After},
    {L"TC Default Hotkeys Data File(*.hky)|*.hky", WithAllFiles::After},
    {L"Wcx_ftp.ini (*.ini)|*.ini", WithAllFiles::After},
}};

std::wstring OrMissing(std::optional<std::wstring> path) {
  return path ? std::move(*path) : std::wstring(MissingMarker);
}

}  // namespace

std::wstring FilterText(FileFilter filter) {
  const FilterEntry& entry = Filters.at(static_cast<std::size_t>(filter));
  const std::wstring pair(entry.Pair);
  const std::wstring all(AllFilesPair);
  switch (entry.AllFiles) {
    case WithAllFiles::Before:
      return all + L'|' + pair;
    case WithAllFiles::After:
      return pair + L'|' + all;
    default:
      return pair;
  }
}

cCommonDialog::cCommonDialog(Dialogs& dialogs) : dialogs_(dialogs) {}

void cCommonDialog::Setup(std::wstring defaultFolder) { defaultFolder_ = std::move(defaultFolder); }

std::wstring cCommonDialog::BrowseForOpen(const std::wstring& folder, const std::wstring& fileName,
                                          FileFilter filter, const std::wstring& title) {
  FileDialogRequest request;
  request.Folder = folder.empty() ? defaultFolder_ : folder;
  request.FileName = fileName;
  request.Filter = FilterText(filter);
  request.Title = title.empty() ? L"Open" : title;
  return OrMissing(dialogs_.Open(request));
}

std::wstring cCommonDialog::BrowseForSave(const std::wstring& folder, const std::wstring& fileName,
                                          FileFilter filter, const std::wstring& title,
                                          bool askBeforeOverwrite) {
  FileDialogRequest request;
  request.Folder = folder.empty() ? lastSaveFolder_ : folder;
  request.FileName = fileName;
  request.Filter = FilterText(filter);
  request.Title = title.empty() ? L"Save" : title;
  request.AskBeforeOverwrite = askBeforeOverwrite;
  auto path = dialogs_.Save(request);
  if (path) lastSaveFolder_ = DirectoryOf(*path);
  return OrMissing(std::move(path));
}

std::wstring cCommonDialog::ColorSelect() {
  const auto color = dialogs_.Color();
  return color ? std::to_wstring(*color) : std::wstring(MissingMarker);
}

}  // namespace tessera
