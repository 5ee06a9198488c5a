// The lines of a section, split and indexed only when they are asked for.
#include "settings/ini/IniSection.h"

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
  const Index& index = FirstLines();
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
  if (contents.FirstLines) AddToIndex(number);
}

void IniSection::RemoveLine(std::size_t number) {
  Contents& contents = Opened();
  const std::string_view key = EntryOf(contents.Lines[number])->Name;
  contents.Lines[number] = {};
  if (!contents.FirstLines) return;
  contents.FirstLines->erase(key);
  if (!contents.HasRepeatedKeys) return;
  if (const auto next = Search(key, number + 1)) AddToIndex(*next);
}

IniSection::Contents& IniSection::Opened() const {
  if (!contents_) {
    contents_ = std::make_unique<Contents>();
    contents_->Lines = SplitIntoLines(text_);
  }
  return *contents_;
}

std::optional<std::size_t> IniSection::Search(std::string_view key, std::size_t from) const {
  const IniNameEqual equal{codePage_};
  for (std::size_t number = from; number < Lines().size(); ++number) {
    const auto entry = EntryOf(Lines()[number]);
    if (entry && equal(entry->Name, key)) return number;
  }
  return std::nullopt;
}

const IniSection::Index& IniSection::FirstLines() const {
  Contents& contents = Opened();
  if (!contents.FirstLines) {
    contents.FirstLines.emplace(contents.Lines.size(), IniNameHash{codePage_},
                                IniNameEqual{codePage_});
    for (std::size_t number = 1; number < contents.Lines.size(); ++number) AddToIndex(number);
  }
  return *contents.FirstLines;
}

void IniSection::AddToIndex(std::size_t number) const {
  const auto entry = EntryOf(contents_->Lines[number]);
  if (!entry) return;
  const bool isFirst = contents_->FirstLines->emplace(entry->Name, number).second;
  if (!isFirst) contents_->HasRepeatedKeys = true;
}

}  // namespace tessera
