// The resolution of the screen, as programs take it at their start.
#pragma once

#include <windows.h>

namespace tessera::e2e {

/// The resolution at which programs start; the usual one again at the end.
class StartResolution {
 public:
  explicit StartResolution(DWORD dpi) { Set(dpi); }
  ~StartResolution() { Set(96); }
  StartResolution(const StartResolution&) = delete;
  StartResolution& operator=(const StartResolution&) = delete;

 private:
  static void Set(DWORD dpi) {
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"LogPixels", REG_DWORD, &dpi,
                    sizeof dpi);
  }
};

}  // namespace tessera::e2e
