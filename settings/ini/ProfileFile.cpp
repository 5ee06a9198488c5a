// Reading, changing and saving one INI file.
#include "settings/ini/ProfileFile.h"

#include <algorithm>

#include "settings/ini/IniText.h"
#include "settings/ini/MissingMarker.h"
#include "text/Numbers.h"
#include "text/Trim.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

/// The length of a value that is read alone wraps at 16 bits, a quirk of Windows that is kept.
template <typename Text>
Text Wrapped(const Text& value) {
  return value.substr(0, value.size() % 65536);
}

}  // namespace

std::optional<std::wstring> ProfileSection::Find(std::wstring_view key,
                                                 std::size_t bufferLength) const {
  if (section_ == nullptr) return std::nullopt;
  const auto found = section_->Find(file_->EncodeName(key));
  if (!found) return std::nullopt;
  const std::string_view value = WithoutQuotes(*found);
  if (file_->IsUtf16()) return Wrapped(file_->DecodeValue(value)).substr(0, bufferLength - 1);
  const std::string_view wrapped = Wrapped(value);
  return file_->DecodeValue(file_->IsUtf8(wrapped) ? CutUtf8(wrapped, bufferLength - 1)
                                                   : wrapped.substr(0, bufferLength - 1));
}

ProfileFile::ProfileFile(const Files& files, std::wstring path)
    : path_(std::move(path)), former_{{}, files.Stamp(path_)} {
  std::string bytes;
  readError_ = files.Read(path_, bytes);
  Take(std::make_shared<const std::string>(std::move(bytes)));
}

ProfileFile::ProfileFile(const Files& files, Clock& clock, std::wstring path)
    : path_(std::move(path)), former_{{}, files.Stamp(path_)} {
  std::string bytes;
  readError_ = ReadWhenFree(files, clock, path_, bytes);
  Take(std::make_shared<const std::string>(std::move(bytes)));
}

ProfileFile::ProfileFile(std::shared_ptr<const std::string> content) { Take(std::move(content)); }

const std::wstring& ProfileFile::Path() const { return path_; }

FileError ProfileFile::ReadError() const { return readError_; }

bool ProfileFile::Unread() const {
  return readError_ != FileError::None && readError_ != FileError::NotFound;
}

const std::shared_ptr<const std::string>& ProfileFile::Content() const { return former_.Bytes; }

std::wstring ProfileFile::ReadString(std::wstring_view section, std::wstring_view key,
                                     std::wstring_view defaultValue,
                                     std::size_t bufferLength) const {
  if (bufferLength == 0) return {};
  if (auto value = Section(section).Find(key, bufferLength)) return *std::move(value);
  const std::size_t length = defaultValue.find_last_not_of(L' ') + 1;
  return std::wstring(defaultValue.substr(0, std::min(length, bufferLength - 1)));
}

ProfileSection ProfileFile::Section(std::wstring_view name) const {
  return {*this, document_.Section(EncodeName(name))};
}

double ProfileFile::ReadInteger(std::wstring_view section, std::wstring_view key,
                                std::wstring_view defaultText, std::size_t bufferLength) const {
  return LeadingNumber(ReadString(section, key, defaultText, bufferLength));
}

std::vector<std::pair<std::wstring, std::wstring>> ProfileFile::Entries(
    std::wstring_view section) const {
  std::vector<std::pair<std::wstring, std::wstring>> entries;
  for (const auto& [name, value] : document_.Entries(EncodeName(section))) {
    entries.emplace_back(DecodeName(name), DecodeValue(WithoutQuotes(value)));
  }
  return entries;
}

std::vector<std::wstring> ProfileFile::SectionNames() const {
  std::vector<std::wstring> names;
  for (const std::string_view name : document_.SectionNames()) names.push_back(DecodeName(name));
  return names;
}

std::vector<std::wstring> ProfileFile::Lines(std::wstring_view section) const {
  std::vector<std::wstring> lines;
  for (const std::string& line : document_.Lines(EncodeName(section))) {
    // A mark behind the "=" tells how the value is written.
    const std::size_t value = std::min(line.find('='), line.size() - 1) + 1;
    lines.push_back(DecodeName(line.substr(0, value)) + DecodeValue(line.substr(value)));
  }
  return lines;
}

std::string ProfileFile::CommentedLines(std::wstring_view comment,
                                        const std::vector<std::string>& lines,
                                        bool beginsFile) const {
  std::string text;
  if (beginsFile && IsUtf16()) text += Utf8Mark;
  text.append("; ").append(EncodeValue(comment)).append(IniLineEnd);
  for (const std::string& line : lines) text.append(line).append(IniLineEnd);
  return document_.Encoded(std::move(text));
}

void ProfileFile::PassOverMark() {
  const std::string_view bytes = *former_.Bytes;
  if (bytes.starts_with(Utf8Mark)) document_ = IniDocument(bytes.substr(Utf8Mark.size()));
}

void ProfileFile::Assume(std::shared_ptr<const std::string> content) {
  Take(std::move(content));
  isAssumed_ = true;
}

void ProfileFile::UseCodePage(unsigned codePage) { codePage_ = codePage; }

void ProfileFile::WriteString(std::wstring_view section, std::wstring_view key,
                              std::wstring_view value, bool quoted) {
  const std::wstring_view trimmed = TrimSpaces(value);
  if (IsMissing(trimmed)) return;
  const std::string bytes = EncodeValue(trimmed);
  document_.Set(EncodeName(section), EncodeName(key), quoted ? '"' + bytes + '"' : bytes);
  isChanged_ = true;
}

void ProfileFile::WriteInteger(std::wstring_view section, std::wstring_view key, double number) {
  document_.Set(EncodeName(section), EncodeName(key), DecimalText(number));
  isChanged_ = true;
}

void ProfileFile::DeleteValue(std::wstring_view section, std::wstring_view key) {
  document_.Remove(EncodeName(section), EncodeName(key));
  isChanged_ = true;
}

void ProfileFile::DeleteSection(std::wstring_view section) {
  document_.RemoveSection(EncodeName(section));
  isChanged_ = true;
}

std::vector<std::string> ProfileFile::ReplaceEntries(
    std::wstring_view section, const std::vector<std::pair<std::wstring, std::wstring>>& entries,
    const std::function<FormerLine(const std::wstring& key, const std::wstring& value)>& becomes) {
  std::vector<std::pair<std::string, std::string>> encoded;
  encoded.reserve(entries.size());
  for (const auto& [name, value] : entries) {
    encoded.emplace_back(EncodeName(name), EncodeValue(TrimSpaces(value)));
  }
  isChanged_ = true;
  return document_.ReplaceEntries(
      EncodeName(section), encoded, [&](const IniDocument::Entry& line) {
        return becomes(DecodeName(line.Name), DecodeValue(WithoutQuotes(line.Value)));
      });
}

FileError ProfileFile::Save(Files& files, Clock& clock, KeepCopies copies) {
  // What could not be read must not be overwritten by the little that is known of it.
  if (Unread()) {
    if (copies == KeepCopies::Yes) KeepUnsaved(files);
    return readError_;
  }
  if (!isChanged_) return FileError::None;
  std::string bytes = document_.Bytes();
  if (bytes == *former_.Bytes && readError_ == FileError::None) return FileError::None;
  const FileError error = ReplaceContent(files, clock, path_, bytes, copies, &former_);
  if (error != FileError::None) return error;
  former_ = {std::make_shared<const std::string>(std::move(bytes)), files.Stamp(path_)};
  readError_ = FileError::None;
  return FileError::None;
}

void ProfileFile::KeepUnsaved(Files& files) const {
  if (!isChanged_ || (Unread() && !isAssumed_)) return;
  const std::string bytes = document_.Bytes();
  if (bytes != *former_.Bytes) LeaveUnsaved(files, path_, bytes);
}

void ProfileFile::Take(std::shared_ptr<const std::string> content) {
  former_.Bytes = std::move(content);
  document_ = IniDocument(former_.Bytes);
}

bool ProfileFile::IsUtf16() const {
  return document_.FileEncoding() == IniDocument::Encoding::Utf16Le;
}

unsigned ProfileFile::CodePage() const { return IsUtf16() ? Utf8CodePage : codePage_; }

bool ProfileFile::IsUtf8(std::string_view value) const {
  return CodePage() == Utf8CodePage || value.starts_with(Utf8Mark);
}

std::wstring ProfileFile::DecodeName(std::string_view bytes) const {
  return Decode(bytes, CodePage());
}

std::string ProfileFile::EncodeName(std::wstring_view name) const {
  return Encode(name, CodePage());
}

std::wstring ProfileFile::DecodeValue(std::string_view bytes) const {
  if (IsUtf16() || !bytes.starts_with(Utf8Mark)) return Decode(bytes, CodePage());
  return WideFromUtf8(bytes.substr(Utf8Mark.size()));
}

std::string ProfileFile::EncodeValue(std::wstring_view value) const {
  std::string bytes = Encode(value, CodePage());
  if (IsUtf16() || DecodeValue(bytes) == value) return bytes;
  // Quotes around a value stand around its mark too, or a read would not take them away.
  const std::string utf8 = Utf8FromWide(value);
  const std::string_view inner = WithoutQuotes(utf8);
  const std::string quote = inner.size() < utf8.size() ? utf8.substr(0, 1) : std::string();
  return std::string(quote).append(Utf8Mark).append(inner).append(quote);
}

}  // namespace tessera
