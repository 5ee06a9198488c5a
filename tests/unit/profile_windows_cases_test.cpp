// Replays what was measured on Windows against the INI engine.
#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <stdexcept>

#include "settings/cProfile.h"
#include "settings/ini/IniDocument.h"
#include "tests/support/FakeClock.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/Repository.h"
#include "text/Text.h"

namespace tessera::profile_windows_cases_test {
namespace {

const std::wstring path = L"C:\\case.ini";

struct Call {
  std::string Function;
  std::optional<std::string> Section;
  std::optional<std::string> Key;
  std::optional<std::string> Value;  ///< the default of a read, the value of a write
  std::size_t Size = 0;
  int Result = 0;
  std::optional<std::string> Buffer;
  std::string After;  ///< as it stands in the data file
};

struct Case {
  std::string Name;
  std::optional<std::string> File;
  std::vector<Call> Calls;
};

/// Takes the quoted bytes that `text` begins with; nothing for NULL and MISSING.
std::optional<std::string> TakeBytes(std::string_view& text) {
  if (!text.starts_with('"')) {
    text.remove_prefix(std::min(text.find(' '), text.size()));
    return std::nullopt;
  }
  const auto hex = [](std::string_view digits) {
    return static_cast<char>(std::stoi(std::string(digits), nullptr, 16));
  };
  std::string bytes;
  std::size_t i = 1;
  for (; text.at(i) != '"'; ++i) {
    if (text[i] != '\\') {
      bytes += text[i];
      continue;
    }
    switch (text.at(++i)) {
      case 'r':
        bytes += '\r';
        break;
      case 'n':
        bytes += '\n';
        break;
      case 't':
        bytes += '\t';
        break;
      case 'x':
        bytes += hex(text.substr(i + 1, 2));
        i += 2;
        break;
      case '{': {
        const std::size_t end = text.find('}', i);
        bytes.append(std::stoul(std::string(text.substr(i + 4, end - i - 4))),
                     hex(text.substr(i + 1, 2)));
        i = end;
        break;
      }
      default:
        bytes += text[i];
    }
  }
  text.remove_prefix(i + 1);
  return bytes;
}

Call ParseCall(std::string_view text) {
  Call call;
  call.Function = text.substr(0, text.find(' '));
  text.remove_prefix(call.Function.size());
  while (!text.empty()) {
    text.remove_prefix(1);
    const std::string name(text.substr(0, text.find('=')));
    text.remove_prefix(name.size() + 1);
    if (name == "size") {
      call.Size = std::stoul(std::string(text));
      text = {};
    } else if (name == "sec") {
      call.Section = TakeBytes(text);
    } else if (name == "key") {
      call.Key = TakeBytes(text);
    } else {
      call.Value = TakeBytes(text);
    }
  }
  return call;
}

std::vector<Case> ReadCases() {
  std::ifstream file(InRepository("tests/data/profile-windows-cases.txt"), std::ios::binary);
  std::vector<Case> cases;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    std::string_view rest = line;
    const std::string word(rest.substr(0, rest.find(' ')));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    if (word == "CASE") cases.push_back({std::string(rest), {}, {}});
    if (word == "FILE") cases.back().File = TakeBytes(rest);
    if (word == "CALL") cases.back().Calls.push_back(ParseCall(rest));
    if (word == "AFTER") cases.back().Calls.back().After = rest;
    if (word == "RET") {
      Call& call = cases.back().Calls.back();
      call.Result = std::stoi(std::string(rest));
      const std::size_t buffer = rest.find("BUF ");
      if (buffer != std::string_view::npos) {
        rest.remove_prefix(buffer + 4);
        call.Buffer = TakeBytes(rest);
      }
    }
    // ERR is left out: no caller of this program is told the system's last error.
  }
  return cases;
}

/// What a call gave: its return value, and the buffer with the NULs that Windows puts there.
struct Outcome {
  int Result = 0;
  std::string Buffer;
};

/// The texts of a list, counted and terminated as the Windows function does it.
template <typename At>
Outcome OutcomeOfList(int upperIndex, At at) {
  std::wstring joined;
  bool isCut = true;
  for (int i = 0; i <= upperIndex; ++i) joined += (i == 0 ? L"" : std::wstring(1, L'\0')) + at(i);
  try {
    if (at(upperIndex + 1).empty()) isCut = false;
  } catch (const std::out_of_range&) {
    isCut = true;
  }
  if (upperIndex < 0) return {0, std::string(1, '\0')};
  if (!isCut) joined += L'\0';
  return {static_cast<int>(joined.size()), Encode(joined) + std::string(isCut ? 2 : 1, '\0')};
}

class Machine {
 public:
  explicit Machine(const std::optional<std::string>& file) {
    if (file) files_.Contents[path] = *file;
  }

  Outcome Run(const Call& call) {
    if (call.Function == "Write") return {Write(call) ? 1 : 0, {}};
    if (call.Function == "GetNames" || !call.Section) return Names(call.Size);
    if (call.Function == "GetSection") return Section(call);
    if (!call.Key) return Keys(call);
    const std::string text =
        Encode(profile_.ReadStringValue(Decode(*call.Section), Decode(*call.Key),
                                        Decode(call.Value.value_or("")), path, call.Size));
    return {static_cast<int>(text.size()), call.Size == 0 ? "" : text + '\0'};
  }

  [[nodiscard]] std::optional<std::string> File() const {
    const auto found = files_.Contents.find(path);
    return found == files_.Contents.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  bool Write(const Call& call) {
    if (!call.Section) return false;
    if (!call.Key) {
      profile_.DeleteSection(Decode(*call.Section), path);
    } else if (!call.Value) {
      profile_.DeleteValue(Decode(*call.Section), Decode(*call.Key), path);
    } else {
      // Past cProfile, which trims the value.
      IniDocument document(File().value_or(""));
      document.Set(*call.Section, *call.Key, *call.Value);
      files_.Contents[path] = document.Bytes();
    }
    return true;
  }

  Outcome Names(std::size_t size) {
    profile_.ReadFileSectionsName(path, size);
    return OutcomeOfList(profile_.FileSectionsNameUpperIndex(),
                         [&](int i) { return profile_.FileSectionsNameList(i); });
  }

  Outcome Section(const Call& call) {
    profile_.ReadSectionKeysNameAndValue(Decode(*call.Section), path, call.Size);
    return OutcomeOfList(profile_.SectionKeysNameAndValueUpperIndex(),
                         [&](int i) { return profile_.SectionKeysNameAndValueList(i); });
  }

  Outcome Keys(const Call& call) {
    profile_.ReadSectionKeysNameOnly(Decode(*call.Section), path, call.Size);
    return OutcomeOfList(profile_.SectionKeysNameOnlyUpperIndex(),
                         [&](int i) { return profile_.SectionKeysNameOnlyList(i); });
  }

  MemoryFiles files_;
  FakeClock clock_;
  cProfile profile_{files_, clock_};
};

TEST(ProfileWindowsCases, AllAreThere) { EXPECT_EQ(ReadCases().size(), 124u); }

TEST(ProfileWindowsCases, EngineDoesWhatWindowsDid) {
  for (const Case& test : ReadCases()) {
    SCOPED_TRACE(test.Name);
    Machine machine(test.File);
    for (const Call& call : test.Calls) {
      const std::optional<std::string> before = machine.File();
      const Outcome outcome = machine.Run(call);
      EXPECT_EQ(outcome.Result, call.Result);
      EXPECT_EQ(outcome.Buffer, call.Buffer.value_or(outcome.Buffer));
      std::string_view after = call.After;
      if (after == "=") {
        EXPECT_EQ(machine.File(), before);
      } else if (after != "?") {
        EXPECT_EQ(machine.File(), TakeBytes(after));
      }
    }
  }
}

}  // namespace
}  // namespace tessera::profile_windows_cases_test
