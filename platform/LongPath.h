// The prefix by which the system takes paths of any length.
#pragma once

#include <string>

namespace tessera {

[[nodiscard]] bool HasLongPrefix(const std::wstring& path);

/// The path must be a full one, of a drive or of a share (\\server\share).
[[nodiscard]] std::wstring WithLongPrefix(const std::wstring& path);

/// The path as users write it; one without the prefix stays as it is.
[[nodiscard]] std::wstring WithoutLongPrefix(const std::wstring& path);

}  // namespace tessera
