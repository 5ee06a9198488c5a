// Helpers for Windows paths, as texts.
#pragma once

#include <string>
#include <string_view>

#include "platform/Environment.h"
#include "platform/Files.h"

namespace tessera {

/// The path with "\" appended when its last character is another one; "" becomes "\".
[[nodiscard]] std::wstring AddBackslash(std::wstring_view path);

/// True when the file's length can be read. With `skipNetwork`, a path that begins with "\\" gives
/// false and is not probed.
[[nodiscard]] bool FileExists(const Files& files, const std::wstring& path, bool skipNetwork);

/// The path with each "\" segment that is wholly "%name%" replaced by that variable's value; a
/// segment whose variable is empty, and a reference within a segment, stay as they are.
[[nodiscard]] std::wstring ExpandPath(const Environment& environment, std::wstring_view path);

/// The path up to its last "\", without it; "" when it has none.
[[nodiscard]] std::wstring DirectoryOf(std::wstring_view path);

}  // namespace tessera
