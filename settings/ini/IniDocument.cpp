// Looking up and editing the content of one INI file.
#include "settings/ini/IniDocument.h"

#include <algorithm>
#include <utility>

#include "text/Text.h"
#include "text/Trim.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

constexpr std::string_view Utf16Mark = "\xFF\xFE";

bool HasLineEnd(std::string_view text) { return text.ends_with('\n') || text.ends_with('\r'); }

/// Where the line begins whose first visible character stands at `position`; nothing when another
/// one stands before it. Looks no further back than `begin`.
std::optional<std::size_t> LineBegin(std::string_view text, std::size_t begin,
                                     std::size_t position) {
  while (position > begin && !HasLineEnd(text.substr(0, position))) {
    if (!IsIniBlank(text[position - 1])) return std::nullopt;
    --position;
  }
  return position;
}

std::string KeyLine(std::string_view key, std::string_view value) {
  std::string line;
  line.reserve(key.size() + value.size() + 3);
  line.append(key).append("=").append(value).append(IniLineEnd);
  return line;
}

std::string HeaderLine(std::string_view section) {
  return std::string("[").append(section).append("]").append(IniLineEnd);
}

std::string_view WithoutLineEnd(std::string_view line) {
  return line.substr(0, line.find_last_not_of(IniLineEnd) + 1);
}

/// The line with another value. Everything up to the "=" stays, and so does the line's end.
std::string WithValue(std::string_view line, std::string_view value) {
  const std::size_t end = line.find_last_not_of(IniLineEnd) + 1;
  std::string result(line.substr(0, line.find('=') + 1));
  result.append(value).append(end < line.size() ? line.substr(end) : IniLineEnd);
  return result;
}

/// The lines for `entries`, each key once.
std::string KeyLines(const std::vector<std::pair<std::string, std::string>>& entries,
                     unsigned codePage) {
  std::vector<IniEntry> distinct;
  std::unordered_map<std::string_view, std::size_t, IniNameHash, IniNameEqual> places(
      entries.size(), IniNameHash{codePage}, IniNameEqual{codePage});
  for (const auto& [name, value] : entries) {
    const std::string_view key = TrimSpaces(name);
    if (IsComment(key) || IsHeader(key) || HasLineBreak(key)) continue;
    const auto [place, isNew] = places.emplace(key, distinct.size());
    if (isNew) {
      distinct.push_back({key, value});
    } else {
      distinct[place->second].Value = value;
    }
  }
  std::string lines;
  for (const auto& [key, value] : distinct) lines += KeyLine(key, value);
  return lines;
}

}  // namespace

IniDocument::IniDocument() : IniDocument(std::string_view()) {}

IniDocument::IniDocument(std::string_view bytes)
    : IniDocument(std::make_shared<const std::string>(bytes)) {}

IniDocument::IniDocument(std::shared_ptr<const std::string> bytes) : content_(std::move(bytes)) {
  if (!content_->starts_with(Utf16Mark)) {
    Divide();
    return;
  }
  encoding_ = Encoding::Utf16Le;
  oddByte_ = content_->substr(content_->size() - content_->size() % 2);
  // The mark stays in the text, before its first line.
  Reset(Utf8FromUtf16Le(*content_));
}

IniDocument::Encoding IniDocument::FileEncoding() const { return encoding_; }

const IniSection* IniDocument::Section(std::string_view name) const {
  const SectionIndex& index = SectionsByName();
  const auto found = index.find(TrimSpaces(name));
  return found == index.end() ? nullptr : &sections_[found->second];
}

std::optional<std::string_view> IniDocument::Find(std::string_view section,
                                                  std::string_view key) const {
  const IniSection* const found = Section(section);
  return found == nullptr ? std::nullopt : found->Find(key);
}

std::vector<std::string_view> IniDocument::SectionNames() const {
  std::vector<std::string_view> names;
  names.reserve(sections_.size());
  for (std::size_t i = 1; i < sections_.size(); ++i) names.push_back(sections_[i].Name());
  return names;
}

std::vector<IniDocument::Entry> IniDocument::Entries(std::string_view section) const {
  std::vector<Entry> entries;
  const IniSection* const found = Section(section);
  if (found == nullptr) return entries;
  for (std::size_t i = 1; i < found->Lines().size(); ++i) {
    if (const auto entry = EntryOf(found->Lines()[i])) entries.push_back(*entry);
  }
  return entries;
}

std::vector<std::string> IniDocument::Lines(std::string_view section) const {
  std::vector<std::string> lines;
  const IniSection* const found = Section(section);
  if (found == nullptr) return lines;
  for (std::size_t i = 1; i < found->Lines().size(); ++i) {
    const std::string_view line = TrimIniBlanks(found->Lines()[i]);
    if (const auto entry = EntryOf(line)) {
      lines.push_back(std::string(entry->Name).append("=").append(entry->Value));
    } else if (!line.empty() && !IsComment(line)) {
      lines.emplace_back(line);
    }
  }
  return lines;
}

std::string IniDocument::Bytes() const { return Encoded(Text()) + oddByte_; }

std::string IniDocument::Encoded(std::string text) const {
  return encoding_ == Encoding::Ansi ? std::move(text) : Utf16LeFromUtf8(text);
}

void IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
  section = TrimSpaces(section);
  key = TrimSpaces(key);
  IniSection* const found = SectionNamed(section);
  if (found == nullptr) {
    AppendSection(HeaderLine(section) + KeyLine(key, value));
  } else if (const auto number = found->LineOf(key)) {
    const std::string_view line = found->Lines()[*number];
    if (EntryOf(line)->Value == value) return;
    found->ReplaceLine(*number, Store(WithValue(line, value)));
  } else {
    const std::size_t place = found->AfterLastKey();
    EndLine(*found, place - 1);
    found->InsertBehindKeys(place, Store(KeyLine(key, value)));
  }
  // Names and values are written as given, even when they then are lines of their own.
  if (HasLineBreak(section) || HasLineBreak(key) || HasLineBreak(value) || IsHeader(key)) {
    Reset(Text());
  }
}

void IniDocument::Remove(std::string_view section, std::string_view key) {
  IniSection* const found = SectionNamed(section);
  if (found == nullptr) return;
  if (const auto number = found->LineOf(TrimSpaces(key))) found->RemoveLine(*number);
}

void IniDocument::RemoveSection(std::string_view section) {
  const IniSection* const found = Section(section);
  if (found == nullptr) return;
  LineList lines = found->Lines();
  std::fill_n(lines.begin(), found->AfterLastKey(), std::string_view());
  PutLines(*found, lines);
}

std::vector<std::string> IniDocument::ReplaceEntries(
    std::string_view section, const std::vector<std::pair<std::string, std::string>>& entries,
    const std::function<FormerLine(const Entry& line)>& becomes) {
  std::vector<std::string> dropped;
  std::string added = KeyLines(entries, NameCodePage());
  const IniSection* const found = Section(section);
  if (found == nullptr) {
    if (added.empty()) return dropped;
    AppendSection(HeaderLine(TrimSpaces(section)) + added);
    Reset(Text());  // a name or value with a line break has made lines of its own
    return dropped;
  }
  LineList lines = found->Lines();
  std::optional<std::size_t> firstReplaced;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto entry = EntryOf(lines[i]);
    if (!entry) continue;
    const FormerLine fate = becomes(*entry);
    if (fate == FormerLine::Stays) continue;
    if (fate == FormerLine::Follows) added += lines[i];
    if (fate == FormerLine::Dropped) dropped.emplace_back(WithoutLineEnd(lines[i]));
    lines[i] = {};
    if (!firstReplaced) firstReplaced = i;
  }
  PutLines(*found, WithAdded(*found, std::move(lines), firstReplaced, added));
  return dropped;
}

/// The lines of a section with `added` in the place of the first that it replaces. The views are of
/// `added` too.
IniDocument::LineList IniDocument::WithAdded(const IniSection& section, LineList lines,
                                             std::optional<std::size_t> firstReplaced,
                                             std::string& added) const {
  const auto isBlank = [](std::string_view line) { return TrimIniBlanks(line).empty(); };
  if (!added.empty()) {
    const std::size_t place = firstReplaced.value_or(section.AfterLastKey());
    if (!HasLineEnd(lines[place - 1]) && !lines[place - 1].empty()) added.insert(0, IniLineEnd);
    // The last line of a file may have moved before others.
    const auto isNothing = [](std::string_view line) { return line.empty(); };
    const auto behind = lines.begin() + static_cast<std::ptrdiff_t>(place);
    if (!HasLineEnd(added) && !std::all_of(behind, lines.end(), isNothing)) added += IniLineEnd;
    lines.insert(behind, added);
  } else if (IsOnlyOne(section) && std::all_of(lines.begin() + 1, lines.end(), isBlank)) {
    lines.front() = {};
  }
  return lines;
}

/// False while another section of that name follows, which the first one hides.
bool IniDocument::IsOnlyOne(const IniSection& section) const {
  const IniNameEqual equal{NameCodePage()};
  return std::count_if(sections_.begin() + 1, sections_.end(), [&](const IniSection& other) {
           return equal(other.Name(), section.Name());
         }) == 1;
}

unsigned IniDocument::NameCodePage() const {
  return encoding_ == Encoding::Ansi ? AnsiCodePage : Utf8CodePage;
}

IniSection* IniDocument::SectionNamed(std::string_view name) {
  const IniSection* const found = Section(name);
  return found != nullptr ? &sections_[static_cast<std::size_t>(found - sections_.data())]
                          : nullptr;
}

void IniDocument::Divide() {
  const std::string_view text = *content_;
  const std::size_t firstLine = encoding_ == Encoding::Ansi ? 0 : Utf8Mark.size();
  sections_.clear();
  sectionsByName_.reset();
  sections_.reserve(32);  // about as many as the files of a file manager have
  std::size_t begin = 0;
  for (std::size_t bracket = text.find('['); bracket != std::string_view::npos;
       bracket = text.find('[', bracket + 1)) {
    const auto header = LineBegin(text, firstLine, bracket);
    if (!header) continue;
    AddSection(text.substr(begin, *header - begin));
    begin = *header;
  }
  AddSection(text.substr(begin));
}

void IniDocument::AddSection(std::string_view text) {
  const IniSection& added = sections_.emplace_back(text, NameCodePage());
  if (sectionsByName_) sectionsByName_->emplace(added.Name(), sections_.size() - 1);
}

const IniDocument::SectionIndex& IniDocument::SectionsByName() const {
  if (sectionsByName_) return *sectionsByName_;
  sectionsByName_.emplace(sections_.size(), IniNameHash{NameCodePage()},
                          IniNameEqual{NameCodePage()});
  // What stands before the first header has no name.
  for (std::size_t i = 1; i < sections_.size(); ++i) {
    sectionsByName_->emplace(sections_[i].Name(), i);
  }
  return *sectionsByName_;
}

std::string IniDocument::Text() const {
  std::string text;
  text.reserve(content_->size());
  for (const IniSection& section : sections_) section.AppendTo(text);
  return text;
}

void IniDocument::Reset(std::string text) {
  content_ = std::make_shared<const std::string>(std::move(text));
  Divide();
}

std::string_view IniDocument::Store(std::string text) {
  return written_.emplace_back(std::move(text));
}

void IniDocument::AppendSection(std::string text) {
  IniSection& last = sections_.back();
  const auto& lines = last.Lines();
  const auto end = std::find_if(lines.rbegin(), lines.rend(),
                                [](std::string_view line) { return !line.empty(); });
  if (end != lines.rend()) EndLine(last, static_cast<std::size_t>(lines.rend() - end - 1));
  AddSection(Store(std::move(text)));
}

void IniDocument::EndLine(IniSection& section, std::size_t number) {
  const std::string_view line = section.Lines()[number];
  if (!HasLineEnd(line)) section.ReplaceLine(number, Store(std::string(line).append(IniLineEnd)));
}

void IniDocument::PutLines(const IniSection& section, const LineList& lines) {
  std::string text;
  text.reserve(content_->size());
  for (const IniSection& other : sections_) {
    if (&other != &section) {
      other.AppendTo(text);
    } else {
      for (const std::string_view line : lines) text += line;
    }
  }
  Reset(std::move(text));
}

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace tessera
