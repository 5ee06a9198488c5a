// How long the tests on random input run: shortly among the other tests, longer on request.
#pragma once

#include <cstdlib>
#include <string>

namespace tessera {

/// `usual`, times the number in the environment variable TESSERA_TEST_ROUNDS.
[[nodiscard]] inline int Rounds(int usual) {
  const char* const times = std::getenv("TESSERA_TEST_ROUNDS");
  return times == nullptr ? usual : usual * std::stoi(times);
}

}  // namespace tessera
