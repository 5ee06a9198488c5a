// Makes INI files like the ones of file managers.
#include "benchmarks/IniSample.h"

namespace tessera {

IniSample::IniSample(std::size_t size) {
  constexpr int KeysOfSection = 40;
  for (int section = 0; Bytes.size() < size; ++section) {
    const std::string name = "Section " + std::to_string(section);
    Bytes += "[" + name + "]\r\n";
    for (int key = 0; key < KeysOfSection; ++key) {
      Keys.push_back({name, "Setting" + std::to_string(key)});
      Bytes += Keys.back().Name + "=C:\\Folder\\Value number " + std::to_string(section) + "\r\n";
    }
  }
}

}  // namespace tessera
