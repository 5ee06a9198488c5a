// An INI file of a wanted size, and the names of all its keys.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessera {

struct IniKey {
  std::string Section;
  std::string Name;
};

struct IniSample {
  /// Sections of 40 keys with values of some 30 bytes, in which nothing stands twice.
  explicit IniSample(std::size_t size);

  std::string Bytes;
  std::vector<IniKey> Keys;
};

}  // namespace tessera
