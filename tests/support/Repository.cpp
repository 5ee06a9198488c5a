// By itself, so that a compiler cache serves all other tests in every clone.
#include "tests/support/Repository.h"

namespace tessera {

std::filesystem::path InRepository(const std::string& path) {
  return std::filesystem::path(TESSERA_SOURCE_DIRECTORY) / path;
}

}  // namespace tessera
