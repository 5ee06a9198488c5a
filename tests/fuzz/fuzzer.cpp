// The fuzzer's two entries; the environment variable TESSERA_FUZZ_TARGET names the target.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/fuzz/Targets.h"

namespace {

const tessera::fuzz::Target& ChosenTarget() {
  static const tessera::fuzz::Target& target = []() -> const tessera::fuzz::Target& {
    const char* const name = std::getenv("TESSERA_FUZZ_TARGET");
    for (const tessera::fuzz::Target& candidate : tessera::fuzz::Targets()) {
      if (name != nullptr && candidate.Name == name) return candidate;
    }
    std::fputs("TESSERA_FUZZ_TARGET names no target\n", stderr);
    std::exit(2);
  }();
  return target;
}

}  // namespace

/// Where code counts what it runs for the tests too: the fuzzer's library refuses that. The linker
/// lets the calls end here.
extern "C" __attribute__((no_sanitize("coverage"))) void __wrap___sanitizer_cov_trace_pc() {}

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  static_cast<void>(ChosenTarget());
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ChosenTarget().Run({reinterpret_cast<const char*>(data), size});
  return 0;
}
