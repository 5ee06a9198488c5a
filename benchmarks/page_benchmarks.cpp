// The page of keys, against what it costs to put its bytes one behind the other.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "benchmarks/Tables.h"
#include "export/KeysPage.h"
#include "tests/support/LargeProgram.h"

namespace tessera {
namespace {

std::string PageOf(const LargeProgram& program) {
  const Document& document = program.Editor.Document();
  return BuildKeysPage(document.Commands(), document.Notation(), program.Editor.Language(),
                       {IniFile, false});
}

void BuildPage(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  for (auto _ : state) benchmark::DoNotOptimize(PageOf(program).data());
}

/// The page as its tags and the texts between them.
std::vector<std::string> PiecesOf(const std::string& page) {
  std::vector<std::string> pieces;
  for (std::size_t begin = 0; begin < page.size();) {
    const std::size_t end = page.find(page[begin] == '<' ? '>' : '<', begin + 1);
    const std::size_t next = std::min(page[begin] == '<' ? end + 1 : end, page.size());
    pieces.push_back(page.substr(begin, next - begin));
    begin = next;
  }
  return pieces;
}

void ConcatenatePage(benchmark::State& state) {
  LargeProgram program(static_cast<int>(state.range(0)));
  program.Start();
  const std::vector<std::string> pieces = PiecesOf(PageOf(program));
  for (auto _ : state) {
    std::string page;
    for (const std::string& piece : pieces) page += piece;
    benchmark::DoNotOptimize(page.data());
  }
}

BENCHMARK(BuildPage)->Apply(ForSizes);
BENCHMARK(ConcatenatePage)->Apply(ForSizes);

}  // namespace

std::vector<Ratio> PageRatios() {
  return {
      {"page of keys of 600 rows, against writing its bytes from ready texts", "BuildPage/600",
       "ConcatenatePage/600", 1, 3},
      {"page of keys of 100,000 rows, against writing its bytes from ready texts",
       "BuildPage/100000", "ConcatenatePage/100000", 1, 3},
      {"page of keys: a row among 100,000, against one among 600", "BuildPage/100000",
       "BuildPage/600", static_cast<double>(ManyCommands) / FewCommands, 2},
  };
}

}  // namespace tessera
