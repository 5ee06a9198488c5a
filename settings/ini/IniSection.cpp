// The lines of a section, split and indexed only when they are asked for.
#include "settings/ini/IniSection.h"

#include <utility>

#include "settings/ini/IniText.h"
#include "text/Lines.h"
#include "text/Trim.h"

namespace tessera {

std::string_view IniSection::Name() const { return HeaderName(text_); }

const std::vector<std::string_view>& IniSection::Lines() const { return Opened().Lines; }

std::optional<std::string_view> IniSection::Find(std::string_view key) const {
  const auto line = LineOf(TrimSpaces(key));
  if (!line) return std::nullopt;
  return EntryOf(Lines()[*line])->Value;
}

std::optional<std::size_t> IniSection::LineOf(std::string_view key) const {
  const Index& index = Opened().FirstLines;
  const auto found = index.find(key);
  if (found == index.end()) return std::nullopt;
  return found->second;
}

std::size_t IniSection::AfterLastKey() const {
  std::size_t number = Lines().size();
  while (number > 1 && !EntryOf(Lines()[number - 1])) --number;
  return number;
}

void IniSection::AppendTo(std::string& text) const {
  if (!contents_) {
    text += text_;
    return;
  }
  for (const std::string_view line : contents_->Lines) text += line;
}

void IniSection::ReplaceLine(std::size_t number, std::string_view line) {
  Opened().Lines[number] = line;
}

void IniSection::InsertBehindKeys(std::size_t number, std::string_view line) {
  Contents& contents = Opened();
  contents.Lines.insert(contents.Lines.begin() + static_cast<std::ptrdiff_t>(number), line);
  contents.AddToIndex(number);
}

void IniSection::RemoveLine(std::size_t number) {
  Contents& contents = Opened();
  const std::string_view key = EntryOf(contents.Lines[number])->Name;
  contents.Lines[number] = {};
  contents.FirstLines.erase(key);
  if (!contents.HasRepeatedKeys) return;
  const IniNameEqual equal{codePage_};
  for (std::size_t next = number + 1; next < contents.Lines.size(); ++next) {
    const auto entry = EntryOf(contents.Lines[next]);
    if (entry && equal(entry->Name, key)) return contents.AddToIndex(next);
  }
}

IniSection::Contents& IniSection::Opened() const {
  if (contents_) return *contents_;
  std::vector<std::string_view> lines = SplitIntoLines(text_);
  Index index(lines.size(), IniNameHash{codePage_}, IniNameEqual{codePage_});
  contents_ = std::make_unique<Contents>(Contents{std::move(lines), std::move(index)});
  for (std::size_t number = 1; number < contents_->Lines.size(); ++number) {
    contents_->AddToIndex(number);
  }
  return *contents_;
}

void IniSection::Contents::AddToIndex(std::size_t number) {
  const auto entry = EntryOf(Lines[number]);
  if (entry && !FirstLines.emplace(entry->Name, number).second) HasRepeatedKeys = true;
}

}  // namespace tessera
