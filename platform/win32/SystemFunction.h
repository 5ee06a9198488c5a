// Functions of system libraries that the start of the program does not need.
#pragma once

#include <windows.h>

namespace tessera {

/// A function that a library of the system exports under that name; null when there is none. The
/// library is loaded for it now, and stays: with all of them imported, a start takes 1.34 times
/// that of the smallest program, and 1.3 is the goal.
template <typename Function>
[[nodiscard]] Function* SystemFunction(const wchar_t* library, const char* name) {
  const HMODULE loaded = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (loaded == nullptr) return nullptr;
  // Not cast directly: the compiler warns of that between types of functions.
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(loaded, name)));
}

}  // namespace tessera
