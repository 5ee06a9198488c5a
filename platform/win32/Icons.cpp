// Image lists are filled with all their pictures at once where the resources hold these as bitmaps:
// to go through icons takes ten times as long.
#include "platform/win32/Icons.h"

#include <algorithm>
#include <cstddef>

namespace tessera {
namespace {

/// One that this program has.
void* Resource(int id, const wchar_t* type) {
  const HMODULE module = GetModuleHandleW(nullptr);
  return LockResource(LoadResource(module, FindResourceW(module, MAKEINTRESOURCEW(id), type)));
}

/// The pixels of the picture of exactly that size, line by line from the bottom; null when an icon
/// has none, or has it compressed.
const DWORD* PixelsOf(int iconId, int size) {
  void* const directory = Resource(iconId, RT_GROUP_ICON);
  const int picture =
      LookupIconIdFromDirectoryEx(static_cast<BYTE*>(directory), TRUE, size, size, LR_DEFAULTCOLOR);
  const auto* const header = static_cast<const BITMAPINFOHEADER*>(Resource(picture, RT_ICON));
  const bool suits =
      header->biSize == sizeof *header && header->biWidth == size && header->biBitCount == 32;
  return suits ? reinterpret_cast<const DWORD*>(header + 1) : nullptr;
}

/// The pictures side by side; null when one of them has no pixels of that size.
Unique<HBITMAP> StripOf(std::span<const int> iconIds, int size) {
  const int width = size * static_cast<int>(iconIds.size());
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = size;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  void* pixels = nullptr;
  Unique<HBITMAP> strip(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &pixels, nullptr, 0));
  if (strip == nullptr) return nullptr;
  for (auto* place = static_cast<DWORD*>(pixels); const int id : iconIds) {
    const DWORD* const picture = PixelsOf(id, size);
    if (picture == nullptr) return nullptr;
    for (std::ptrdiff_t line = 0; line < size; ++line) {
      std::copy_n(picture + line * size, size, place + line * width);
    }
    place += size;
  }
  return strip;
}

}  // namespace

Unique<HICON> LoadIconOfSize(int id, int size) {
  return Unique<HICON>(static_cast<HICON>(LoadImageW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

Unique<HIMAGELIST> LoadImages(std::span<const int> iconIds, int size) {
  Unique<HIMAGELIST> images(
      ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(iconIds.size()), 1));
  if (const Unique<HBITMAP> strip = StripOf(iconIds, size)) {
    ImageList_Add(images.get(), strip.get(), nullptr);
    return images;
  }
  for (const int id : iconIds) ImageList_AddIcon(images.get(), LoadIconOfSize(id, size).get());
  return images;
}

}  // namespace tessera
