// Only the screen's own device context shows what other programs have drawn.
#include "tests/e2e/Screen.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "tests/e2e/Folder.h"

namespace tessera::e2e {
namespace {

struct ObjectDeleter {
  void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};
struct ContextDeleter {
  void operator()(HDC context) const noexcept { DeleteDC(context); }
};
struct ScreenReleaser {
  void operator()(HDC context) const noexcept { ReleaseDC(nullptr, context); }
};
template <typename Handle, typename Deleter>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, Deleter>;

/// Of 32-bit pixels, the top line first.
BITMAPINFOHEADER FormatOf(int width, int height) {
  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = width;
  info.biHeight = -height;
  info.biPlanes = 1;
  info.biBitCount = 32;
  return info;
}

/// Something to draw on.
class Canvas {
 public:
  Canvas(int width, int height)
      : width_(width),
        height_(height),
        screen_(GetDC(nullptr)),
        context_(CreateCompatibleDC(screen_.get())),
        bitmap_(CreateCompatibleBitmap(screen_.get(), width, height)),
        former_(SelectObject(context_.get(), bitmap_.get())) {
    if (!context_ || !bitmap_) throw std::runtime_error("No picture of the screen can be had");
  }
  ~Canvas() { SelectObject(context_.get(), former_); }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  [[nodiscard]] HDC Context() const { return context_.get(); }
  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }

  [[nodiscard]] Picture Copy() const {
    Picture picture{
        width_, height_,
        std::vector<DWORD>(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_))};
    BITMAPINFO format{};
    format.bmiHeader = FormatOf(width_, height_);
    // A bitmap must not be in use while its pixels are asked for.
    SelectObject(context_.get(), former_);
    GetDIBits(screen_.get(), bitmap_.get(), 0, static_cast<UINT>(height_), picture.Pixels.data(),
              &format, DIB_RGB_COLORS);
    SelectObject(context_.get(), bitmap_.get());
    for (DWORD& pixel : picture.Pixels) pixel &= 0xFFFFFF;
    return picture;
  }

 private:
  int width_;
  int height_;
  Unique<HDC, ScreenReleaser> screen_;
  Unique<HDC, ContextDeleter> context_;
  Unique<HBITMAP, ObjectDeleter> bitmap_;
  HGDIOBJ former_;
};

/// Whoever blends translucent colours may round each of their parts otherwise.
bool Alike(DWORD one, DWORD other) {
  return std::ranges::all_of(std::array{0, 8, 16}, [&](int bits) {
    const auto partOf = [bits](DWORD color) { return static_cast<int>(color >> bits & 0xFF); };
    return std::abs(partOf(one) - partOf(other)) <= 1;
  });
}

std::string BytesOf(const void* data, std::size_t size) {
  return {static_cast<const char*>(data), size};
}

}  // namespace

DWORD Picture::At(int x, int y) const {
  return Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
                static_cast<std::size_t>(x)];
}

bool Picture::Holds(const Picture& part, int left, int top) const {
  for (int y = 0; y < part.Height; ++y) {
    for (int x = 0; x < part.Width; ++x) {
      if (At(left + x, top + y) != part.At(x, y)) return false;
    }
  }
  return true;
}

bool Picture::HoldsSomewhere(const Picture& icon) const {
  const auto holdsAt = [&](int left, int top) {
    for (int y = 0; y < icon.Height; ++y) {
      for (int x = 0; x < icon.Width; ++x) {
        if (!Alike(At(left + x, top + y), icon.At(x, y))) return false;
      }
    }
    return true;
  };
  for (int top = 0; top + icon.Height <= Height; ++top) {
    for (int left = 0; left + icon.Width <= Width; ++left) {
      if (holdsAt(left, top)) return true;
    }
  }
  return false;
}

Picture TakePicture(const RECT& rectangle) {
  const Canvas canvas(rectangle.right - rectangle.left, rectangle.bottom - rectangle.top);
  const Unique<HDC, ScreenReleaser> screen(GetDC(nullptr));
  BitBlt(canvas.Context(), 0, 0, canvas.Width(), canvas.Height(), screen.get(), rectangle.left,
         rectangle.top, SRCCOPY);
  return canvas.Copy();
}

Picture DrawLine(const std::wstring& text, const LOGFONTW& font, COLORREF color, COLORREF back,
                 bool lightEdge) {
  const Unique<HFONT, ObjectDeleter> made(CreateFontIndirectW(&font));
  const auto draw = [&](const Canvas& canvas, RECT& place, UINT flags) {
    const HGDIOBJ former = SelectObject(canvas.Context(), made.get());
    DrawTextW(canvas.Context(), text.c_str(), -1, &place, DT_SINGLELINE | flags);
    SelectObject(canvas.Context(), former);
  };
  RECT size{};
  draw(Canvas(1, 1), size, DT_CALCRECT);
  const Canvas canvas(size.right, size.bottom);
  SetBkColor(canvas.Context(), back);
  ExtTextOutW(canvas.Context(), 0, 0, ETO_OPAQUE, &size, L"", 0, nullptr);
  SetBkMode(canvas.Context(), TRANSPARENT);
  if (lightEdge) {
    RECT shifted{size.left + 1, size.top + 1, size.right + 1, size.bottom + 1};
    SetTextColor(canvas.Context(), RGB(0xFF, 0xFF, 0xFF));
    draw(canvas, shifted, 0);
  }
  SetTextColor(canvas.Context(), color);
  draw(canvas, size, 0);
  return canvas.Copy();
}

NONCLIENTMETRICSW SystemMetrics() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return metrics;
}

Picture DrawControlText(const std::wstring& text, COLORREF back) {
  return DrawLine(text, SystemMetrics().lfMessageFont, GetSysColor(COLOR_WINDOWTEXT), back, false);
}

Picture DrawProgramIcon(const std::wstring& program, int id, int size, COLORREF back) {
  const HMODULE file = LoadLibraryExW(program.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  const auto icon = static_cast<HICON>(
      LoadImageW(file, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
  if (icon == nullptr) throw std::runtime_error("No icon " + std::to_string(id));
  const Canvas canvas(size, size);
  const RECT whole{0, 0, size, size};
  SetBkColor(canvas.Context(), back);
  ExtTextOutW(canvas.Context(), 0, 0, ETO_OPAQUE, &whole, L"", 0, nullptr);
  DrawIconEx(canvas.Context(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
  DestroyIcon(icon);
  FreeLibrary(file);
  return canvas.Copy();
}

std::wstring SaveScreenshot(const std::wstring& name) {
  const Picture picture =
      TakePicture({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
  const BITMAPINFOHEADER info = FormatOf(picture.Width, picture.Height);
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;  // "BM"
  file.bfOffBits = sizeof file + sizeof info;
  file.bfSize = file.bfOffBits + static_cast<DWORD>(picture.Pixels.size() * sizeof(DWORD));
  const std::wstring path = std::filesystem::temp_directory_path().wstring() + name + L"-" +
                            std::to_wstring(GetCurrentProcessId()) + L".bmp";
  WriteBytes(path, BytesOf(&file, sizeof file) + BytesOf(&info, sizeof info) +
                       BytesOf(picture.Pixels.data(), picture.Pixels.size() * sizeof(DWORD)));
  return path;
}

COLORREF ColorAt(POINT place) {
  const Unique<HDC, ScreenReleaser> screen(GetDC(nullptr));
  return GetPixel(screen.get(), place.x, place.y);
}

RECT PartOnScreen(const RECT& rectangle) {
  const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  RECT part{};
  IntersectRect(&part, &rectangle, &screen);
  return part;
}

int CountPixels(const RECT& rectangle, COLORREF color) {
  const RECT visible = PartOnScreen(rectangle);
  if (IsRectEmpty(&visible) != FALSE) return 0;
  // A pixel of a picture has red and blue the other way round.
  const DWORD wanted = RGB(GetBValue(color), GetGValue(color), GetRValue(color));
  return static_cast<int>(std::ranges::count(TakePicture(visible).Pixels, wanted));
}

}  // namespace tessera::e2e
