// The readers of foreign files, and what must hold of them whatever they are given.
#include "tests/fuzz/Targets.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "editing/CommandList.h"
#include "localisation/Texts.h"
#include "settings/ini/IniDocument.h"
#include "settings/Settings.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/DefaultHotkeys.h"
#include "shortcuts/HotkeyNotation.h"
#include "shortcuts/InternalCommands.h"
#include "shortcuts/ReadKeys.h"
#include "shortcuts/SaveShortcuts.h"
#include "shortcuts/UserCommands.h"
#include "shortcuts/WincmdIni.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/MemoryFiles.h"
#include "text/Text.h"
#include "text/Trim.h"

namespace tessera::fuzz {
namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
}

/// The next bytes of the input up to a NUL, which goes too.
std::string_view Take(std::string_view& bytes) {
  const std::string_view piece = bytes.substr(0, bytes.find('\0'));
  bytes.remove_prefix(std::min(piece.size() + 1, bytes.size()));
  return piece;
}

std::string Everything(const IniDocument& document) {
  std::string all;
  for (const std::string_view section : document.SectionNames()) {
    all.append("[").append(section).append("]\n");
    for (const std::string& line : document.Lines(section)) all.append(line).append("\n");
    for (const auto& entry : document.Entries(section)) {
      all.append(document.Find(section, entry.Name).value_or("nothing")).append("\n");
    }
  }
  return all;
}

/// The input: section, key and value of an edit, then the file.
void RunIni(std::string_view bytes) {
  const std::string_view section = Take(bytes);
  const std::string_view key = Take(bytes);
  const std::string_view value = Take(bytes);
  const IniDocument read(bytes);
  static_cast<void>(Everything(read));
  Require(read.Bytes() == bytes, "reading changed the file");

  const bool isUtf16 = read.FileEncoding() == IniDocument::Encoding::Utf16Le;
  const auto check = [&](const IniDocument& edited) {
    // Behind half a character nothing can be read again; names are UTF-8 where the file is UTF-16.
    // What an edit leaves may begin with that mark.
    if (isUtf16 || edited.Bytes().starts_with("\xFF\xFE")) return;
    Require(Everything(edited) == Everything(IniDocument(edited.Bytes())),
            "an edited file reads differently when it is read anew");
  };
  IniDocument document(bytes);
  document.Set(section, key, value);
  check(document);
  document.Remove(section, key);
  check(document);
  document.ReplaceEntries(section, {{std::string(key), std::string(value)}, {"F5", "cm_Copy"}},
                          [](const IniEntry& line) {
                            if (line.Name == "RedirectSection") return FormerLine::Stays;
                            return line.Value.empty() ? FormerLine::Follows : FormerLine::Goes;
                          });
  check(document);
  document.RemoveSection(section);
  check(document);
}

std::vector<CommandEntry> Commands(std::wstring_view text) {
  std::vector<CommandEntry> rows = ReadInternalCommands(text, L"---", [] {});
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Require(rows[i].Key == i + 1, "the rows are not numbered");
    Require(!rows[i].IsHeading() || rows[i].CommandName.empty(), "a heading has a name");
  }
  return rows;
}

/// Saves twice: the second time nothing is left to change or to drop.
void CheckSaves(Catalogue& catalogue, const SaveRequest& request, MemoryFiles& files) {
  FakeClock clock;
  const FakeEnvironment environment;
  const SaveOutcome first = SaveShortcuts(catalogue, {}, request, files, clock, environment);
  Require(first.Error == FileError::None, "a save failed");
  const std::string saved = files.Contents[first.Path];
  const std::string dropped = files.Contents[first.Dropped.Path];
  Require(first.Dropped.Error == FileError::None, "dropped lines were lost");
  Require(first.Dropped.Lines.empty() == dropped.empty(), "a file of dropped lines without any");
  const SaveOutcome second = SaveShortcuts(catalogue, {}, request, files, clock, environment);
  Require(second.Error == FileError::None, "a second save failed");
  Require(second.Dropped.Lines.empty(), "a second save dropped lines");
  Require(files.Contents[first.Path] == saved, "a second save changed the file");
  Require(files.Contents[first.Dropped.Path] == dropped, "dropped lines were touched");
}

/// The input: "Totalcmd.inc", the default keys, then "Wincmd.ini".
void RunCommands(std::string_view bytes) {
  const HotkeyNotation notation;
  MemoryFiles files;
  FakeClock clock;
  const FakeEnvironment environment;
  const std::wstring path = L"C:\\Wincmd.ini";
  Catalogue catalogue;
  catalogue.Text = std::make_shared<const std::wstring>(DecodeInternalCommands(Take(bytes)));
  catalogue.lvwHidden = Commands(*catalogue.Text);
  files.Contents[L"C:\\keys.hky"] = Take(bytes);
  files.Contents[path] = bytes;
  FillDefaultKeys(catalogue.lvwHidden, ProfileFile(files, L"C:\\keys.hky"), notation, [] {});
  const WincmdIni wincmd(files, clock, environment, path);
  catalogue.StartMenuKeys = ReadStartMenuKeys(wincmd.StartMenu(), notation);
  ReadShortcuts(catalogue.lvwHidden, wincmd.Shortcuts(), notation, [] {});
  BuildDisplayTable(catalogue, notation, [] {});
  BuildKeyIndexes(catalogue, notation);
  MarkOverriddenDefaults(catalogue);
  CheckSaves(catalogue, {path, true}, files);
}

/// Opens "Wincmd.ini" with the commands of "usercmd.ini" beside it, as a further open does.
void OpenWithUserCommands(Catalogue& catalogue, const std::wstring& path, MemoryFiles& files) {
  const HotkeyNotation notation;
  FakeClock clock;
  const FakeEnvironment environment;
  const RowKey lastKey = catalogue.LastKey;
  ReplaceUserRows(catalogue, ReadUserCommands(files, clock, path).Commands, L"Own", notation);
  const WincmdIni wincmd(files, clock, environment, path);
  ReadShortcuts(catalogue.lvwHidden, wincmd.Shortcuts(), notation, [] {});
  BuildDisplayTable(catalogue, notation, [] {});
  const DisplayTable& table = catalogue.ListView1;
  for (std::size_t row = table.Count() - catalogue.UserRows; row < table.Count(); ++row) {
    Require(table.At(row).Key > lastKey, "a row has the key of an earlier one");
    Require(table.At(row).IsHeading() || IsUserCommand(table.At(row).CommandName), "no command");
    Require(table.PositionOf(table.At(row).Key) == row, "a row is not found");
  }
}

/// The input: "Wincmd.ini", then "usercmd.ini".
void RunUserCommands(std::string_view bytes) {
  const HotkeyNotation notation;
  MemoryFiles files;
  const std::wstring path = L"C:\\Wincmd.ini";
  files.Contents[path] = Take(bytes);
  files.Contents[L"C:\\usercmd.ini"] = bytes;
  Catalogue catalogue;
  catalogue.Text = std::make_shared<const std::wstring>(L"cm_Copy=1;Copy\r\n");
  catalogue.lvwHidden = Commands(*catalogue.Text);
  OpenWithUserCommands(catalogue, path, files);
  if (catalogue.UserRows != 0) {
    const CommandEntry& last = catalogue.ListView1.At(catalogue.ListView1.Count() - 1);
    const std::wstring name(last.CommandName);
    const std::wstring key = L"Alt + F12";
    AddComposedKey(catalogue.ListView1.Edit(last.Key), key, notation);
    catalogue.Given.Give(last.Key, L"A+F12");
    CheckSaves(catalogue, {path, false, true}, files);
    OpenWithUserCommands(catalogue, path, files);
    const CommandEntry& again = catalogue.ListView1.At(catalogue.ListView1.Count() - 1);
    Require(again.CommandName == name, "a command reads back differently");
    const auto keys = notation.KeysOf(again.CurrentKeys);
    Require(std::ranges::find(keys, key) != keys.end(), "a command has lost its key");
  } else {
    CheckSaves(catalogue, {path, false, false}, files);
  }
}

std::wstring WithoutNum(std::wstring text) {
  const std::size_t at = text.find(L"Num");
  return at == std::wstring::npos ? text : text.erase(at, 3);
}

/// A separator that is part of the key as it is shown, such as "+", takes the key apart.
bool IsTakenApart(const HotkeyNotation& notation, const std::wstring& native) {
  HotkeyNotation inOrder = notation;
  inOrder.ReverseOrderHotkey = false;
  return (inOrder.NativeToDisplay(native, L"---") + notation.NativeToDisplay(native, L"---"))
             .find(notation.MultiHotkeySeparator) != std::wstring::npos;
}

/// What is shown and saved reads back the same, for every key with every set of modifiers.
void CheckRoundTrip(const HotkeyNotation& notation) {
  for (const std::wstring_view key : KeyVocabulary()) {
    for (const wchar_t* modifiers : {L"", L"C+", L"A+", L"S+", L"CA+", L"CS+", L"AS+", L"CAS+"}) {
      const std::wstring native = modifiers + std::wstring(key);
      if (IsTakenApart(notation, native)) continue;
      const std::wstring shown = notation.NativeToDisplay(native, notation.UndefinedHotkey);
      Require(notation.DisplayToNative(WithoutNum(shown)) == native,
              "a key reads back differently");
      const std::wstring two = notation.NativeToDisplay(native, L"F1");
      Require(two == L"F1" + notation.MultiHotkeySeparator + shown, "a further key is not added");
    }
  }
}

/// The input: a byte of flags, the separator, then keys of any notation.
void RunNotation(std::string_view bytes) {
  HotkeyNotation notation;
  const char flags = bytes.empty() ? '\0' : bytes.front();
  notation.ReverseOrderHotkey = (flags & 1) != 0;
  const bool checksRoundTrip = (flags & 2) != 0;  // which takes long
  bytes.remove_prefix(std::min<std::size_t>(1, bytes.size()));
  const std::wstring separator(TrimSpaces(Decode(Take(bytes))));
  if (!separator.empty()) notation.MultiHotkeySeparator = L' ' + separator + L' ';
  if (checksRoundTrip) CheckRoundTrip(notation);
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::wstring text = Decode(Take(rest), Utf8CodePage);
    const std::wstring shown = notation.NativeToDisplay(text, notation.UndefinedHotkey);
    static_cast<void>(notation.DisplayToNative(shown));
    static_cast<void>(notation.DisplayToNative(text));
    static_cast<void>(notation.DataFileToDisplay(text));
    static_cast<void>(notation.KeysOf(text));
    const std::wstring reversed = notation.ApplyReverseOrder(text);
    Require(notation.ReverseOrderHotkey || reversed == text, "an order off changed a key");
    Require(KeyPart(text).size() <= text.size(), "a key's name grew");
  }
}

void RunLanguage(std::string_view bytes) {
  MemoryFiles files;
  files.Contents[L"C:\\x.lng"] = bytes;
  Texts texts(files);
  Require(texts.UseLanguageFile(L"C:\\x.lng"), "the file was not taken");
  for (const int id : {-1, 0, 1, 100, 108, 401, 404, 405, 406, 3003, 3020, 3203}) {
    Require(texts.GetLangText(TextId{id}).size() < ProfileBufferLength, "a text is too long");
  }
  static_cast<void>(texts.RightToLeft());
}

void RunSettings(std::string_view bytes) {
  MemoryFiles files;
  FakeClock clock;
  const FakeEnvironment environment;
  files.Contents[SettingsPath(environment)] = bytes;
  SettingsFile file(files, clock, environment);
  const Settings settings = LoadSettings(file.Read(), file, environment);
  Require(settings.NumberOfRecentFiles >= 2 && settings.NumberOfRecentFiles <= 16, "recent files");
  Require(settings.MultiHotkeySeparator.size() >= 3, "the separator is not padded");
  Require(!settings.UndefinedHotkey.empty(), "no marker");
  const ColumnLayout columns = ReadColumnLayout(settings);
  for (const int width : columns.Widths) Require(width >= 0, "a column of less than no width");
  Require(SaveSettings(settings, file) == FileError::None, "not saved");
  const Settings again = LoadSettings(file.Read(), file, environment);
  Require(again.FontSize == settings.FontSize &&
              again.ForegroundColor == settings.ForegroundColor &&
              again.MainWindowLeft == settings.MainWindowLeft &&
              again.SortedColumn == settings.SortedColumn,
          "a number reads back differently");
}

constexpr Target AllTargets[] = {
    {"ini", RunIni},           {"commands", RunCommands}, {"usercommands", RunUserCommands},
    {"notation", RunNotation}, {"language", RunLanguage}, {"settings", RunSettings}};

}  // namespace

std::span<const Target> Targets() { return AllTargets; }

}  // namespace tessera::fuzz
