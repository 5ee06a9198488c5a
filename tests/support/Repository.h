// The files of the repository, for tests that read what is shipped or stored there.
#pragma once

#include <filesystem>
#include <string>

namespace tessera {

/// A file or folder by its path from the repository's root.
[[nodiscard]] std::filesystem::path InRepository(const std::string& path);

}  // namespace tessera
