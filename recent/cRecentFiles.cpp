// The recent-files list.
#include "recent/cRecentFiles.h"

#include <algorithm>

#include "localisation/Mnemonic.h"
#include "settings/ini/MissingMarker.h"
#include "text/Text.h"

namespace tessera {
namespace {

constexpr std::size_t LongestWholePath = 48;
constexpr std::size_t HalfName = 16;

std::wstring KeyOf(std::wstring_view prefix, int index) {
  return std::wstring(prefix) + std::to_wstring(index);
}

std::wstring FirstHalf(const std::wstring& name) { return name.substr(0, HalfName); }

std::wstring LastHalf(const std::wstring& name) {
  return name.substr(name.size() - std::min(name.size(), HalfName));
}

std::vector<std::wstring> PartsOf(std::wstring_view path) {
  std::vector<std::wstring> parts(1);
  for (const wchar_t character : path) {
    if (character == L'\\') {
      parts.emplace_back();
    } else {
      parts.back() += character;
    }
  }
  return parts;
}

}  // namespace

std::wstring ShortenPath(std::wstring_view path) {
  const std::vector<std::wstring> parts = PartsOf(path);
  const std::size_t last = parts.size() - 1;
  if (path.size() <= LongestWholePath || last == 0) return std::wstring(path);
  const std::wstring drive = parts[0] + L"\\";
  switch (last) {
    case 1:
      return drive + FirstHalf(parts[1]) + L"......" + LastHalf(parts[1]);
    case 2:
      return drive + FirstHalf(parts[1]) + L"\\...\\" + LastHalf(parts[2]);
    case 3:
    case 4:
      return drive + parts[1] + L"\\...\\" + parts[last];
    default:
      return drive + parts[1] + L"\\...\\" + parts[last - 1] + L"\\" + parts[last];
  }
}

cRecentFiles::cRecentFiles(const Texts& texts, MessageBoxes& messageBoxes)
    : texts_(texts), messageBoxes_(messageBoxes) {}

int cRecentFiles::Max() const { return max_; }

std::wstring cRecentFiles::ListItems(int index) const {
  return Holds(index) ? paths_[static_cast<std::size_t>(index) - 1] : std::wstring(MissingMarker);
}

std::vector<RecentEntry> cRecentFiles::MenuEntries() const {
  if (paths_.empty()) return {{noFiles_, false}};
  std::vector<RecentEntry> entries;
  for (const std::wstring& path : paths_) {
    const std::wstring number = std::to_wstring(entries.size() + 1);
    entries.push_back({L"&" + number + L" " + DoubleAmpersands(ShortenPath(path))});
  }
  return entries;
}

RecentEntry cRecentFiles::ClearEntry() const { return {clearList_, !paths_.empty()}; }

void cRecentFiles::Setup(int max) {
  max_ = max;
  paths_.clear();
}

void cRecentFiles::ChangeLanguage() {
  noFiles_ = texts_.GetLangText(TextId::NoRecentFiles);
  clearList_ = texts_.GetLangText(TextId::ClearList);
  areYouSure_ = texts_.GetLangText(TextId::AreYouSure);
}

void cRecentFiles::AddFile(const std::wstring& path) {
  if (path.empty() || IsMissing(path)) return;
  RemoveFile(Find(path));
  paths_.insert(paths_.begin(), path);
  paths_.resize(std::min(paths_.size(), static_cast<std::size_t>(max_)));
}

void cRecentFiles::PutAsFirstItem(int index) {
  if (Holds(index)) AddFile(ListItems(index));
}

void cRecentFiles::RemoveFile(int index) {
  if (Holds(index)) paths_.erase(paths_.begin() + (index - 1));
}

bool cRecentFiles::Clear() {
  if (messageBoxes_.Show(areYouSure_, BoxButtons::YesNo, BoxIcon::Question, BoxDefault::Second) !=
      BoxAnswer::Yes) {
    return false;
  }
  paths_.clear();
  return true;
}

void cRecentFiles::ReadList(const ProfileFile& stored, std::wstring_view section,
                            std::wstring_view prefix) {
  paths_.clear();
  for (int index = 1; index <= max_; ++index) {
    std::wstring path = stored.ReadString(section, KeyOf(prefix, index), MissingMarker);
    // An empty value is a gap like an absent one.
    if (!IsMissing(path) && !path.empty()) paths_.push_back(std::move(path));
  }
}

void cRecentFiles::SaveList(SettingsFile& settingsFile, std::wstring_view section,
                            std::wstring_view prefix) const {
  settingsFile.Change([&](ProfileFile& stored) {
    for (int index = 1; index <= max_; ++index) {
      if (Holds(index)) {
        stored.WriteString(section, KeyOf(prefix, index), ListItems(index));
      } else {
        stored.DeleteValue(section, KeyOf(prefix, index));
      }
    }
  });
}

/// The index of a path in any letter case; 0 when it is not in the list.
int cRecentFiles::Find(std::wstring_view path) const {
  const auto found = std::ranges::find_if(
      paths_, [&](const std::wstring& stored) { return EqualIgnoringCase(stored, path); });
  return found == paths_.end() ? 0 : static_cast<int>(found - paths_.begin()) + 1;
}

bool cRecentFiles::Holds(int index) const {
  return index >= 1 && static_cast<std::size_t>(index) <= paths_.size();
}

}  // namespace tessera
