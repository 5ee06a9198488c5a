// Single reads and writes of INI values, and the three lists.
#include "settings/cProfile.h"

#include <algorithm>

namespace tessera {
namespace {

/// What is left of texts in a buffer of `length` characters, each text ending in a NUL and all of
/// them in one more. A full buffer keeps its last two characters for NULs, even when the texts
/// would just fit.
std::wstring Buffered(const std::vector<std::wstring>& texts, std::size_t length) {
  std::wstring buffer;
  for (const std::wstring& text : texts) {
    if (!text.empty()) buffer.append(text).push_back(L'\0');
  }
  if (buffer.size() + 1 >= length) buffer.resize(length > 2 ? length - 2 : 0);
  return buffer;
}

/// The texts between the NULs; an empty one behind the last NUL stays.
std::vector<std::wstring> SplitAtNuls(std::wstring_view buffer) {
  std::vector<std::wstring> texts;
  for (std::size_t end = buffer.find(L'\0'); end != std::wstring_view::npos;
       end = buffer.find(L'\0')) {
    texts.emplace_back(buffer.substr(0, end));
    buffer.remove_prefix(end + 1);
  }
  texts.emplace_back(buffer);
  return texts;
}

int UpperIndex(const std::vector<std::wstring>& texts) {
  const auto filled =
      std::ranges::count_if(texts, [](const std::wstring& text) { return !text.empty(); });
  return static_cast<int>(filled) - 1;
}

const std::wstring& EntryAt(const std::vector<std::wstring>& texts, int index) {
  return texts.at(static_cast<std::size_t>(index));  // a negative index is beyond any size
}

}  // namespace

cProfile::cProfile(Files& files, Clock& clock) : files_(files), clock_(clock) {}

std::wstring cProfile::ReadStringValue(std::wstring_view section, std::wstring_view key,
                                       std::wstring_view defaultValue, const std::wstring& file,
                                       std::size_t bufferLength) const {
  return ProfileFile(files_, file).ReadString(section, key, defaultValue, bufferLength);
}

double cProfile::ReadIntegerValue(std::wstring_view section, std::wstring_view key,
                                  std::wstring_view defaultText, const std::wstring& file,
                                  std::size_t bufferLength) const {
  return ProfileFile(files_, file).ReadInteger(section, key, defaultText, bufferLength);
}

void cProfile::WriteStringValue(std::wstring_view section, std::wstring_view key,
                                std::wstring_view value, const std::wstring& file, bool quoted) {
  Change(file, [&](ProfileFile& profile) { profile.WriteString(section, key, value, quoted); });
}

void cProfile::WriteIntegerValue(std::wstring_view section, std::wstring_view key, double number,
                                 const std::wstring& file) {
  Change(file, [&](ProfileFile& profile) { profile.WriteInteger(section, key, number); });
}

void cProfile::DeleteValue(std::wstring_view section, std::wstring_view key,
                           const std::wstring& file) {
  Change(file, [&](ProfileFile& profile) { profile.DeleteValue(section, key); });
}

void cProfile::DeleteSection(std::wstring_view section, const std::wstring& file) {
  Change(file, [&](ProfileFile& profile) { profile.DeleteSection(section); });
}

void cProfile::ReadFileSectionsName(const std::wstring& file, std::size_t bufferLength) {
  sectionNames_ = SplitAtNuls(Buffered(ProfileFile(files_, file).SectionNames(), bufferLength));
}

void cProfile::ReadSectionKeysNameAndValue(std::wstring_view section, const std::wstring& file,
                                           std::size_t bufferLength) {
  keyNamesAndValues_ =
      SplitAtNuls(Buffered(ProfileFile(files_, file).Lines(section), bufferLength));
}

void cProfile::ReadSectionKeysNameOnly(std::wstring_view section, const std::wstring& file,
                                       std::size_t bufferLength) {
  List names;
  for (auto& [name, value] : ProfileFile(files_, file).Entries(section)) {
    names.push_back(std::move(name));
  }
  keyNames_ = SplitAtNuls(Buffered(names, bufferLength));
}

const std::wstring& cProfile::FileSectionsNameList(int index) const {
  return EntryAt(sectionNames_, index);
}

const std::wstring& cProfile::SectionKeysNameAndValueList(int index) const {
  return EntryAt(keyNamesAndValues_, index);
}

const std::wstring& cProfile::SectionKeysNameOnlyList(int index) const {
  return EntryAt(keyNames_, index);
}

int cProfile::FileSectionsNameUpperIndex() const { return UpperIndex(sectionNames_); }

int cProfile::SectionKeysNameAndValueUpperIndex() const { return UpperIndex(keyNamesAndValues_); }

int cProfile::SectionKeysNameOnlyUpperIndex() const { return UpperIndex(keyNames_); }

void cProfile::SortKeysNameOnlyList() {
  std::sort(keyNames_.begin(), keyNames_.begin() + SectionKeysNameOnlyUpperIndex() + 1);
}

void cProfile::Change(const std::wstring& file, const std::function<void(ProfileFile&)>& change) {
  // As with the Windows functions, a caller of a single write is not told of a failure; a file that
  // could not be written is as it was.
  static_cast<void>(SaveFromTheStart([&] {
    ProfileFile profile(files_, clock_, file);
    change(profile);
    return profile.Save(files_, clock_, KeepCopies::No);
  }));
}

}  // namespace tessera
