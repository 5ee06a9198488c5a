// What sorting, editing, saving and changing the language cost, by the number of commands.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>

#include "benchmarks/Tables.h"
#include "export/ClipboardTable.h"
#include "localisation/Texts.h"
#include "tests/support/Kept.h"
#include "tests/support/LargeProgram.h"
#include "text/Text.h"

namespace tessera {
namespace {

void Assign(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  const std::size_t rows = program.Editor.Document().Rows().Count();
  std::size_t row = 0;
  int key = 0;
  for (auto _ : state) {
    row = (row + 7919) % rows;
    key = (key + 1) % 67;
    program.Editor.Work(&CommandList::SelectRow, row);
    program.Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, key % 2 == 0);
    program.Editor.Work(&HotkeyPanel::ChooseKey, key);
    program.Editor.Work(&HotkeyPanel::Assign);
  }
}

void Delete(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  const std::size_t rows = program.Editor.Document().Rows().Count();
  std::size_t row = 0;
  int key = 0;
  for (auto _ : state) {
    state.PauseTiming();
    row = (row + 7919) % rows;
    program.Editor.Work(&CommandList::SelectRow, row);
    program.Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, ++key % 2 == 0);
    program.Editor.Work(&HotkeyPanel::ChooseKey, key % 67);
    program.Editor.Work(&HotkeyPanel::Assign);
    state.ResumeTiming();
    program.Editor.Work(&HotkeyPanel::Delete);
  }
}

void DeleteAll(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<LargeProgram>(static_cast<int>(state.range(0)));
    program->Start();
    state.ResumeTiming();
    program->Editor.Work(&HotkeyPanel::DeleteAll);
    state.PauseTiming();
    program.reset();
    state.ResumeTiming();
  }
}

/// Takes back that all keys were deleted.
void UndoDeleteAll(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  program.MessageBoxes.Answers = {BoxAnswer::Yes};
  program.Editor.Work(&HotkeyPanel::DeleteAll);
  for (auto _ : state) {
    program.Editor.Work(&CommandList::Undo);
    state.PauseTiming();
    program.Editor.Work(&CommandList::Redo);
    state.ResumeTiming();
  }
}

/// Takes an edit back and makes it again.
void UndoAssign(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  program.Editor.Work(&CommandList::SelectRow, 1);
  program.Editor.Work(&HotkeyPanel::ChooseKey, 1);
  program.Editor.Work(&HotkeyPanel::Assign);
  for (auto _ : state) {
    program.Editor.Work(&CommandList::Undo);
    program.Editor.Work(&CommandList::Redo);
  }
}

/// From file order into the sorted view.
void SortView(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  for (auto _ : state) {
    program.Editor.Work(&CommandList::ToggleSortedList);
    state.PauseTiming();
    program.Editor.Work(&CommandList::ToggleSortedList);
    state.ResumeTiming();
  }
}

/// Back from the sorted view.
void UnsortView(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  for (auto _ : state) {
    state.PauseTiming();
    program.Editor.Work(&CommandList::ToggleSortedList);
    state.ResumeTiming();
    program.Editor.Work(&CommandList::ToggleSortedList);
  }
}

/// One of few commands, of all of them, and of none.
constexpr std::array<const wchar_t*, 3> SearchedWords{L"k1230", L"command", L"nowhere"};

const wchar_t* WordOf(const benchmark::State& state) {
  return SearchedWords.at(static_cast<std::size_t>(state.range(1)));
}

/// A letter is typed into the find box, which then holds the word.
void TypeInFindBox(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  const std::wstring word = WordOf(state);
  program.Editor.Work(&CommandList::Search, word);
  for (auto _ : state) program.Editor.Work(&CommandList::Search, word);
}

/// The word alone is looked for in the same texts, which are in one letter case already.
void FindInTexts(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  std::vector<std::wstring> texts;
  program.Editor.Document().Rows().ForEachRow([&texts](const CommandEntry& row) {
    if (row.IsHeading()) return;
    std::wstring text;
    for (const std::wstring_view part :
         {row.Description, row.CommandName, row.Tag, std::wstring_view(row.DefaultKeys),
          std::wstring_view(row.CurrentKeys)}) {
      text.append(part).append(1, L' ');
    }
    texts.push_back(ToUpper(text));
  });
  const std::wstring word = ToUpper(WordOf(state));
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::ranges::count_if(texts, [&word](const std::wstring& text) {
      return text.find(word) != std::wstring::npos;
    }));
  }
}

Column ColumnOf(const benchmark::State& state) { return static_cast<Column>(state.range(1)); }

/// From file order into the order of a column, as the list does it.
void SortRows(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  DisplayTable table = program.Editor.Document().Rows();
  for (auto _ : state) {
    table.RestoreFileOrder();
    table.RemoveHeadings();
    table.Sort(ColumnOf(state), SortDirection::Ascending);
  }
}

/// The texts of a column alone, sorted in the same order with the same comparison.
void StableSort(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  std::vector<std::wstring> texts;
  for (std::size_t position = 0; position < program.Editor.Document().Rows().Count(); ++position) {
    const CommandEntry& row = program.Editor.Document().Rows().At(position);
    if (!row.IsHeading()) texts.emplace_back(CellText(row, ColumnOf(state)));
  }
  for (auto _ : state) {
    std::vector<std::wstring> sorted = texts;
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto& left, const auto& right) {
      return CompareTexts(left, right) < 0;
    });
    benchmark::DoNotOptimize(sorted.data());
  }
}

void Save(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  int key = 0;
  bool once = true;
  for (auto _ : state) {
    state.PauseTiming();
    key = (key + 1) % 67;  // another key each time, as there is nothing to save otherwise
    program.Editor.Work(&CommandList::SelectRow, 1);
    program.Editor.Work(&HotkeyPanel::ChooseKey, key);
    program.Editor.Work(&HotkeyPanel::Assign);
    program.Files.Reads = program.Files.Writes = 0;
    state.ResumeTiming();
    program.Editor.FileSave();
    once = once && program.Files.Reads == 1 && program.Files.Writes == 1;
  }
  if (!once) state.SkipWithError("a save must read and write its file once");
}

constexpr ExportColumns AllColumns = {true, true, true, true};

/// Every row exported has a key: the table leaves the others out.
DisplayTable RowsWithKeys(int count) {
  std::vector<CommandEntry> rows(static_cast<std::size_t>(count));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const std::wstring number = std::to_wstring(row);
    rows[row].Key = row + 1;
    rows[row].Description = Kept(L"Does what command " + number + L" is for");
    rows[row].CommandName = Kept(L"cm_Command" + number);
    rows[row].DefaultKeys = L"---";
    rows[row].CurrentKeys = L"Ctrl + Shift + K" + number;
  }
  DisplayTable table;
  table.Fill(std::move(rows));
  return table;
}

void Export(benchmark::State& state) {
  const MemoryFiles files;
  const Texts texts(files);
  const DisplayTable rows = RowsWithKeys(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(BuildExportText(rows, AllColumns, texts, L"---").data());
  }
}

/// The exported cells, one behind the other.
void ConcatenateCells(benchmark::State& state) {
  const DisplayTable rows = RowsWithKeys(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    std::wstring text;
    for (std::size_t position = 0; position < rows.Count(); ++position) {
      for (const Column column :
           {Column::Description, Column::Command, Column::Defaults, Column::Current}) {
        text += CellText(rows.At(position), column);
      }
    }
    benchmark::DoNotOptimize(text.data());
  }
}

/// A language file read, and `range` texts of it asked for, as each window does when it is shown.
void ApplyTexts(benchmark::State& state) {
  MemoryFiles files;
  std::string& bytes = files.Contents[L"other.lng"] = "[UserLanguage]\r\n";
  for (int id = 0; id < state.range(0); ++id) {
    bytes += std::to_string(id) + "=Text number " + std::to_string(id) + "\r\n";
  }
  for (auto _ : state) {
    Texts texts(files);
    if (!texts.UseLanguageFile(L"other.lng")) state.SkipWithError("no language file");
    for (int id = 0; id < state.range(0); ++id) {
      benchmark::DoNotOptimize(texts.GetLangText(TextId{id}).size());
    }
  }
}

void ForColumns(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgsProduct({{FewCommands, ManyCommands}, {1, 2, 3, 4}});
}

void ForWords(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgsProduct({{FewCommands, ManyCommands}, {0, 1, 2}});
}

BENCHMARK(ApplyTexts)->Apply(ForSizes);
BENCHMARK(Assign)->Apply(ForSizes);
BENCHMARK(Delete)->Apply(ForSizes);
BENCHMARK(DeleteAll)->Apply(ForSizes);
BENCHMARK(UndoDeleteAll)->Apply(ForSizes);
BENCHMARK(UndoAssign)->Apply(ForSizes);
BENCHMARK(SortView)->Apply(ForSizes);
BENCHMARK(UnsortView)->Apply(ForSizes);
BENCHMARK(SortRows)->Apply(ForColumns);
BENCHMARK(StableSort)->Apply(ForColumns);
BENCHMARK(TypeInFindBox)->Apply(ForWords);
BENCHMARK(FindInTexts)->Apply(ForWords);
BENCHMARK(Save)->Apply(ForSizes);
BENCHMARK(Export)->Apply(ForSizes);
BENCHMARK(ConcatenateCells)->Apply(ForSizes);

}  // namespace

std::vector<Ratio> EditorRatios() {
  constexpr double Growth = static_cast<double>(ManyCommands) / FewCommands;
  std::vector<Ratio> ratios{
      {"assign a key at 100,000 commands, against at 600", "Assign/100000", "Assign/600", 1, 10},
      {"delete a key at 100,000 commands, against at 600", "Delete/100000", "Delete/600", 1, 10},
      {"delete all: a command among 100,000, against one among 600", "DeleteAll/100000",
       "DeleteAll/600", Growth, 2},
      {"undo of an edit at 100,000 commands, against at 600", "UndoAssign/100000", "UndoAssign/600",
       1, 10},
      {"undo of delete all, against the deletion, at 100,000 commands", "UndoDeleteAll/100000",
       "DeleteAll/100000", 1, 2},
      {"export of 600 rows, against concatenating their cells", "Export/600",
       "ConcatenateCells/600", 1, 5},
      {"export of 100,000 rows, against concatenating their cells", "Export/100000",
       "ConcatenateCells/100000", 1, 5},
      {"language: a text among 100,000, against one among 600", "ApplyTexts/100000",
       "ApplyTexts/600", Growth, 2},
      {"save: a command among 100,000, against one among 600", "Save/100000", "Save/600", Growth,
       1.5},
  };
  for (const auto& [size, count] : {std::pair{"600", "600"}, {"100000", "100,000"}}) {
    const std::string rows = std::string(count) + " rows";
    for (const auto& [word, name] : {std::pair{"0", "few"}, {"1", "all"}, {"2", "none"}}) {
      const std::string arguments = std::string("/") + size + "/" + word;
      ratios.push_back({"find a word of " + std::string(name) + " of " + rows +
                            ", against one search in their texts",
                        "TypeInFindBox" + arguments, "FindInTexts" + arguments, 1, 3});
    }
    for (const auto& [column, name] : {std::pair{"1", "description"},
                                       {"2", "command"},
                                       {"3", "default keys"},
                                       {"4", "current keys"}}) {
      const std::string arguments = std::string("/") + size + "/" + column;
      ratios.push_back({"sort " + rows + " by " + name + ", against a stable sort of the texts",
                        "SortRows" + arguments, "StableSort" + arguments, 1, 2});
    }
    for (const auto& [name, benchmark] :
         {std::pair{"into the sorted view", "SortView/"}, {"back to file order", "UnsortView/"}}) {
      ratios.push_back({name + (" at " + rows) + ", against a stable sort",
                        std::string(benchmark).append(size),
                        std::string("StableSort/").append(size) + "/3", 1, 3});
    }
  }
  return ratios;
}

}  // namespace tessera
