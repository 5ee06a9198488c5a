// How the work of each operation grows with the number of commands. What is counted are the blocks
// of code that are run: the same on every machine, however busy it is.
#include <gtest/gtest.h>

#include <cstdint>

#include "export/ClipboardTable.h"
#include "export/KeysPage.h"
#include "localisation/Texts.h"
#include "settings/ini/IniDocument.h"
#include "tests/support/LargeProgram.h"

namespace {

std::uint64_t blocksRun = 0;

}  // namespace

/// The compiler puts a call of this at the beginning of every block.
extern "C" __attribute__((no_sanitize("address", "undefined", "coverage"))) void
__sanitizer_cov_trace_pc();

void __sanitizer_cov_trace_pc() { ++blocksRun; }

namespace tessera::growth_test {
namespace {

constexpr int Few = 500;
constexpr int Many = 8 * Few;

/// Growth with the number of commands; costs that do not grow at all make it smaller.
constexpr double Linear = 8 * 1.2;
/// log(4000) is 1.33 times log(500).
constexpr double LinearTimesLogarithm = 8 * 1.33 * 1.2;
constexpr double Constant = 1.2;

template <typename Work>
double BlocksOf(Work work) {
  const std::uint64_t before = blocksRun;
  work();
  return static_cast<double>(blocksRun - before);
}

/// How many times as many blocks `work` runs on many commands as on few, once they are opened.
template <typename Work>
double GrowthOf(Work work) {
  const auto blocksFor = [&](int commands) {
    LargeProgram program(commands);
    program.Start();
    // The first edit makes the indexes that edits need.
    program.Editor.Work(&CommandList::SelectRow, 1);
    program.Editor.Work(&HotkeyPanel::ChooseKey, 1);
    program.Editor.Work(&HotkeyPanel::Assign);
    return BlocksOf([&] { work(program); });
  };
  const double few = blocksFor(Few);
  EXPECT_GT(few, 0);
  return blocksFor(Many) / few;
}

TEST(Growth, OpeningGrowsAsTheCommands) {
  const auto blocksFor = [](int commands) {
    LargeProgram program(commands);
    program.Editor.Load();
    return BlocksOf([&] { program.Editor.Activate(); });
  };
  const double few = blocksFor(Few);
  EXPECT_GT(few, Few);
  EXPECT_LT(blocksFor(Many) / few, Linear);
}

TEST(Growth, SavingGrowsAsTheCommands) {
  EXPECT_LT(GrowthOf([](LargeProgram& program) { program.Editor.FileSave(); }), Linear);
}

TEST(Growth, SortingGrowsAsTheRowsTimesTheirLogarithm) {
  for (const Column column :
       {Column::Description, Column::Command, Column::Defaults, Column::Current}) {
    const auto sort = [&](LargeProgram& program) {
      DisplayTable rows = program.Editor.Document().Rows();
      rows.RemoveHeadings();
      rows.Sort(column, SortDirection::Descending);
    };
    EXPECT_LT(GrowthOf(sort), LinearTimesLogarithm) << static_cast<int>(column);
  }
}

TEST(Growth, GoingBackToFileOrderGrowsAsTheRows) {
  const auto back = [](LargeProgram& program) {
    DisplayTable rows = program.Editor.Document().Rows();
    rows.RestoreFileOrder();
  };
  EXPECT_LT(GrowthOf(back), Linear);
}

TEST(Growth, ThePageOfKeysGrowsAsTheRows) {
  const auto build = [](LargeProgram& program) {
    const tessera::Document& document = program.Editor.Document();
    static_cast<void>(BuildKeysPage(document.Commands(), document.Notation(),
                                    program.Editor.Language(), {IniFile, false}));
  };
  EXPECT_LT(GrowthOf(build), Linear);
}

TEST(Growth, AssigningAKeyCostsTheSameAmongManyCommands) {
  const auto assign = [](LargeProgram& program) {
    for (int key = 0; key < 60; ++key) {
      program.Editor.Work(&CommandList::SelectRow, static_cast<std::size_t>(2 + key));
      program.Editor.Work(&HotkeyPanel::ChooseKey, key);
      program.Editor.Work(&HotkeyPanel::Assign);
    }
  };
  EXPECT_LT(GrowthOf(assign), Constant);
}

TEST(Growth, DeletingAKeyCostsTheSameAmongManyCommands) {
  const auto remove = [](LargeProgram& program) {
    for (std::size_t row = 1; row < 200; ++row) {
      program.Editor.Work(&CommandList::SelectRow, row);
      program.Editor.Work(&HotkeyPanel::Delete);
    }
  };
  EXPECT_LT(GrowthOf(remove), Constant);
}

TEST(Growth, TellingWhoHoldsAKeyCostsTheSameAmongManyCommands) {
  const auto growthAfter = [](auto edit) {
    const auto blocksFor = [&](int commands) {
      LargeProgram program(commands);
      program.Start();
      const tessera::Document& document = program.Editor.Document();
      const auto ask = [&](const std::wstring& key) {
        return document.Rows().HoldersOf(key, document.Notation());
      };
      EXPECT_EQ(ask(L"Ctrl + D100").Defaults.size(), 1U);  // lists the rows
      edit(program);
      EXPECT_EQ(ask(L"F1").Defaults.size(), 0U);  // sees to those that have changed
      return BlocksOf([&] {
        for (int key = 0; key < 400; ++key) {
          static_cast<void>(ask(L"Ctrl + D" + std::to_wstring(key)));
          static_cast<void>(ask(L"Ctrl + Shift + K" + std::to_wstring(key)));
        }
      });
    };
    return blocksFor(Many) / blocksFor(Few);
  };
  EXPECT_LT(growthAfter([](LargeProgram&) {}), Constant);
  EXPECT_LT(
      growthAfter([](LargeProgram& program) { program.Editor.Work(&HotkeyPanel::DeleteAll); }),
      Constant);
}

TEST(Growth, TellingWhoHoldsAKeyAfterEachEditCostsTheSameAmongManyCommands) {
  const auto editAndAsk = [](LargeProgram& program) {
    const tessera::Document& document = program.Editor.Document();
    for (int key = 0; key < 60; ++key) {
      program.Editor.Work(&CommandList::SelectRow, static_cast<std::size_t>(2 + key));
      program.Editor.Work(&HotkeyPanel::ChooseKey, key);
      program.Editor.Work(&HotkeyPanel::Assign);
      const std::wstring composed = program.Editor.Panel().ComposeKey();
      static_cast<void>(document.Rows().HoldersOf(composed, document.Notation()));
    }
  };
  const auto growth = [&](int commands) {
    LargeProgram program(commands);
    program.Start();
    editAndAsk(program);  // makes the indexes
    return BlocksOf([&] { editAndAsk(program); });
  };
  EXPECT_LT(growth(Many) / growth(Few), Constant);
}

TEST(Growth, DeletingAllKeysGrowsAsTheCommands) {
  EXPECT_LT(GrowthOf([](LargeProgram& program) { program.Editor.Work(&HotkeyPanel::DeleteAll); }),
            Linear);
}

TEST(Growth, TakingAnEditBackCostsTheSameAmongManyCommands) {
  const auto undo = [](LargeProgram& program) {
    for (int key = 0; key < 60; ++key) {
      program.Editor.Work(&CommandList::SelectRow, static_cast<std::size_t>(2 + key));
      program.Editor.Work(&HotkeyPanel::ChooseKey, key);
      program.Editor.Work(&HotkeyPanel::Assign);
    }
    for (int key = 0; key < 60; ++key) program.Editor.Work(&CommandList::Undo);
    for (int key = 0; key < 60; ++key) program.Editor.Work(&CommandList::Redo);
  };
  EXPECT_LT(GrowthOf(undo), Constant);
}

TEST(Growth, TakingTheDeletionOfAllKeysBackGrowsAsTheCommands) {
  const auto undo = [](LargeProgram& program) {
    program.Editor.Work(&HotkeyPanel::DeleteAll);
    program.Editor.Work(&CommandList::Undo);
  };
  EXPECT_LT(GrowthOf(undo), Linear);
}

TEST(Growth, ExportingGrowsAsTheRows) {
  const MemoryFiles files;
  const Texts texts(files);
  const auto write = [&](LargeProgram& program) {
    static_cast<void>(
        BuildExportText(program.Editor.Document().Rows(), {true, true, true, true}, texts, L"---"));
  };
  EXPECT_LT(GrowthOf(write), Linear);
}

TEST(Growth, LookingUpEveryKeyOfAnIniFileGrowsAsTheKeys) {
  const auto blocksFor = [](int keys) {
    std::string bytes = "[S]\r\n";
    for (int key = 0; key < keys; ++key) bytes += std::to_string(key) + "=value\r\n";
    return BlocksOf([&] {
      const IniDocument document(bytes);
      for (int key = 0; key < keys; ++key) EXPECT_TRUE(document.Find("S", std::to_string(key)));
    });
  };
  EXPECT_LT(blocksFor(Many) / blocksFor(Few), Linear);
}

TEST(Growth, ApplyingALanguageGrowsAsTheLinesOfItsFile) {
  const auto blocksFor = [](int lines) {
    MemoryFiles files;
    std::string& bytes = files.Contents[L"C:\\own.lng"] = "[UserLanguage]\r\n";
    for (int id = 0; id < lines; ++id) bytes += std::to_string(id) + "=Text\r\n";
    return BlocksOf([&] {
      Texts texts(files);
      EXPECT_TRUE(texts.UseLanguageFile(L"C:\\own.lng"));
      for (int id = 0; id < lines; ++id) EXPECT_EQ(texts.GetLangText(TextId{id}), L"Text");
    });
  };
  EXPECT_LT(blocksFor(Many) / blocksFor(Few), Linear);
}

}  // namespace
}  // namespace tessera::growth_test
