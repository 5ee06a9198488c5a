// What opening costs: as a whole, by the number of commands, and each of its steps.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>

#include "benchmarks/Tables.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/DefaultHotkeys.h"
#include "shortcuts/InternalCommands.h"
#include "shortcuts/WincmdIni.h"
#include "tests/support/LargeProgram.h"

namespace tessera {
namespace {

void Open(benchmark::State& state) {
  bool readOnce = true;
  for (auto _ : state) {
    state.PauseTiming();
    auto program = std::make_unique<LargeProgram>(static_cast<int>(state.range(0)));
    program->Editor.Load();
    program->Files.Reads = 0;
    state.ResumeTiming();
    program->Editor.Activate();
    state.PauseTiming();
    // The three files, and the settings, in which the opened path is remembered.
    readOnce = readOnce && program->Files.Reads == 4;
    program.reset();
    state.ResumeTiming();
  }
  if (!readOnce) state.SkipWithError("an open must read each of its files once");
}

/// Opening without its meaning: the same bytes, split into lines.
void SplitLines(benchmark::State& state) {
  const LargeProgram program(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (const auto& [path, bytes] : program.Files.Contents) {
      std::vector<std::string> lines;
      for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
        lines.emplace_back(bytes, begin, end - begin);
        begin = end + 1;
      }
      benchmark::DoNotOptimize(lines.data());
    }
  }
}

/// What the steps of opening hand to each other.
struct Opening {
  explicit Opening(int commands) : Program(commands) {}

  LargeProgram Program;
  FakeEnvironment Environment;
  FakeClock Clock;
  HotkeyNotation Notation;
  Catalogue Commands;
  ProgressStep Step = [] {};
};

struct OpeningStep {
  const char* Name;
  void (*Run)(Opening& opening);
};

constexpr std::array Steps = {
    OpeningStep{"read the commands",
                [](Opening& o) {
                  std::string bytes;
                  static_cast<void>(o.Program.Files.Read(IncFile, bytes));
                  o.Commands.Text =
                      std::make_shared<const std::wstring>(DecodeInternalCommands(bytes));
                  o.Commands.lvwHidden =
                      ReadInternalCommands(*o.Commands.Text, o.Notation.UndefinedHotkey, o.Step);
                }},
    OpeningStep{"fill in the default keys",
                [](Opening& o) {
                  const ProfileFile file(o.Program.Files, DataFile);
                  FillDefaultKeys(o.Commands.lvwHidden, file, o.Notation, o.Step);
                }},
    OpeningStep{"read the current keys",
                [](Opening& o) {
                  const WincmdIni file(o.Program.Files, o.Clock, o.Environment, IniFile);
                  ReadShortcuts(o.Commands.lvwHidden, file.Shortcuts(), o.Notation, o.Step);
                }},
    OpeningStep{"make the displayed rows",
                [](Opening& o) { BuildDisplayTable(o.Commands, o.Notation, o.Step); }},
    OpeningStep{"index the keys", [](Opening& o) { BuildKeyIndexes(o.Commands, o.Notation); }},
    OpeningStep{"mark the overridden keys", [](Opening& o) { MarkOverriddenDefaults(o.Commands); }},
};

/// One step, after those before it.
void OpenStep(benchmark::State& state) {
  const auto number = static_cast<std::size_t>(state.range(1));
  for (auto _ : state) {
    state.PauseTiming();
    auto opening = std::make_unique<Opening>(static_cast<int>(state.range(0)));
    for (std::size_t before = 0; before < number; ++before) Steps[before].Run(*opening);
    state.ResumeTiming();
    Steps[number].Run(*opening);
    state.PauseTiming();
    opening.reset();
    state.ResumeTiming();
  }
}

void ForSteps(benchmark::internal::Benchmark* benchmark) {
  for (std::size_t step = 0; step < Steps.size(); ++step) {
    benchmark->Args({ManyCommands, static_cast<int64_t>(step)});
  }
}

BENCHMARK(Open)->Apply(ForSizes);
BENCHMARK(SplitLines)->Apply(ForSizes);
BENCHMARK(OpenStep)->Apply(ForSteps);

}  // namespace

std::vector<Ratio> OpeningRatios() {
  std::vector<Ratio> ratios{
      {"open at 600 commands, against splitting the files into lines", "Open/600", "SplitLines/600",
       1, 10},
      {"open at 100,000 commands, against splitting the files into lines", "Open/100000",
       "SplitLines/100000", 1, 15},
      {"open: a command among 100,000, against one among 600", "Open/100000", "Open/600",
       static_cast<double>(ManyCommands) / FewCommands, 2},
  };
  for (std::size_t step = 0; step < Steps.size(); ++step) {
    ratios.push_back({std::string("  of it: ") + Steps[step].Name + ", against the whole open",
                      "OpenStep/100000/" + std::to_string(step), "Open/100000"});
  }
  return ratios;
}

}  // namespace tessera
