// The INI engine against two libraries that are at hand for such files, on the same bytes.
#include <benchmark/benchmark.h>
#include <INIReader.h>
#include <SimpleIni.h>

#include <memory>

#include "benchmarks/IniSample.h"
#include "benchmarks/Tables.h"
#include "settings/ini/IniDocument.h"

namespace tessera {
namespace {

constexpr int Small = 12'000;
constexpr int Medium = 1'000'000;
constexpr int Large = 50'000'000;

const IniSample& SampleOf(const benchmark::State& state) {
  static std::unique_ptr<IniSample> sample;
  static int64_t size = 0;
  if (size != state.range(0)) {
    size = state.range(0);
    sample = std::make_unique<IniSample>(static_cast<std::size_t>(size));
  }
  return *sample;
}

/// The three engines under one face. Each is constructed from the bytes of a file.
class Ours {
 public:
  explicit Ours(const std::string& bytes) : document_(bytes) {}
  [[nodiscard]] std::size_t LengthOf(const IniKey& key) const {
    const auto value = document_.Find(key.Section, key.Name);
    return value ? value->size() : 0;
  }
  void Set(const IniKey& key, const char* value) { document_.Set(key.Section, key.Name, value); }
  [[nodiscard]] std::string Bytes() const { return document_.Bytes(); }

 private:
  IniDocument document_;
};

class SimpleIni {
 public:
  explicit SimpleIni(const std::string& bytes) { ini_.LoadData(bytes); }
  [[nodiscard]] std::size_t LengthOf(const IniKey& key) const {
    const char* const value = ini_.GetValue(key.Section.c_str(), key.Name.c_str());
    return value == nullptr ? 0 : std::char_traits<char>::length(value);
  }
  void Set(const IniKey& key, const char* value) {
    ini_.SetValue(key.Section.c_str(), key.Name.c_str(), value);
  }
  [[nodiscard]] std::string Bytes() const {
    std::string bytes;
    ini_.Save(bytes);
    return bytes;
  }

 private:
  CSimpleIniA ini_;
};

/// It only reads.
class Inih {
 public:
  explicit Inih(const std::string& bytes) : reader_(bytes.data(), bytes.size()) {}
  [[nodiscard]] std::size_t LengthOf(const IniKey& key) const {
    return reader_.Get(key.Section, key.Name, "").size();
  }

 private:
  INIReader reader_;
};

template <typename Engine>
void LookUpAll(benchmark::State& state) {
  const IniSample& sample = SampleOf(state);
  for (auto _ : state) {
    const Engine engine(sample.Bytes);
    for (const IniKey& key : sample.Keys) {
      if (engine.LengthOf(key) == 0) {
        state.SkipWithError("a key was not found");
        return;
      }
    }
  }
}

/// Loads, gives `count` keys that are spread over the file another value, and makes the bytes.
template <typename Engine>
void Change(benchmark::State& state, std::size_t count) {
  const IniSample& sample = SampleOf(state);
  for (auto _ : state) {
    Engine engine(sample.Bytes);
    for (std::size_t i = 0; i < count; ++i) {
      engine.Set(sample.Keys[sample.Keys.size() * i / count], "changed");
    }
    benchmark::DoNotOptimize(engine.Bytes().data());
  }
}

template <typename Engine>
void ChangeOne(benchmark::State& state) {
  Change<Engine>(state, 1);
}

template <typename Engine>
void Change60(benchmark::State& state) {
  Change<Engine>(state, 60);
}

/// The bytes are shared, as those of a file that was read. Its sections are found only when they
/// are asked for, so they are.
void LoadIni(benchmark::State& state) {
  const IniSample& sample = SampleOf(state);
  const auto bytes = std::make_shared<const std::string>(sample.Bytes);
  for (auto _ : state) {
    const IniDocument document(bytes);
    benchmark::DoNotOptimize(document.SectionNames().data());
  }
}

void CopyBytes(benchmark::State& state) {
  const IniSample& sample = SampleOf(state);
  for (auto _ : state) {
    const std::string copy = sample.Bytes;
    benchmark::DoNotOptimize(copy.data());
  }
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(Small)->Arg(Medium)->Arg(Large);
}

BENCHMARK(LookUpAll<Ours>)->Name("LookUpAll.Ours")->Apply(Sizes);
BENCHMARK(LookUpAll<SimpleIni>)->Name("LookUpAll.SimpleIni")->Apply(Sizes);
BENCHMARK(LookUpAll<Inih>)->Name("LookUpAll.inih")->Apply(Sizes);
BENCHMARK(ChangeOne<Ours>)->Name("ChangeOne.Ours")->Apply(Sizes);
BENCHMARK(ChangeOne<SimpleIni>)->Name("ChangeOne.SimpleIni")->Apply(Sizes);
BENCHMARK(Change60<Ours>)->Name("Change60.Ours")->Apply(Sizes);
BENCHMARK(Change60<SimpleIni>)->Name("Change60.SimpleIni")->Apply(Sizes);
BENCHMARK(LoadIni)->Apply(Sizes);
BENCHMARK(CopyBytes)->Apply(Sizes);

}  // namespace

std::vector<Ratio> IniRatios() {
  std::vector<Ratio> ratios;
  for (const auto& [size, length] :
       {std::pair{Small, "12 kB"}, {Medium, "1 MB"}, {Large, "50 MB"}}) {
    const std::string at = std::string("/").append(std::to_string(size));
    const auto compare = [&](const std::string& what, const std::string& name,
                             const std::string& library) {
      ratios.push_back({"INI file of " + std::string(length) + ": " + what + ", against " + library,
                        name + ".Ours" + at, name + "." + library + at, 1, 0.5});
    };
    compare("look up all keys", "LookUpAll", "SimpleIni");
    compare("look up all keys", "LookUpAll", "inih");
    compare("change 1 key", "ChangeOne", "SimpleIni");
    compare("change 60 keys", "Change60", "SimpleIni");
    ratios.push_back(
        {"INI file of " + std::string(length) + ": load, find its sections, against a copy",
         "LoadIni" + at, "CopyBytes" + at, 1, 3});
  }
  return ratios;
}

}  // namespace tessera
