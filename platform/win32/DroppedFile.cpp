// The library of the functions for drops is loaded at the first drop.
#include "platform/win32/DroppedFile.h"

#include "platform/win32/SystemFunction.h"

namespace tessera {
namespace {

constexpr wchar_t Library[] = L"shell32.dll";

}  // namespace

std::wstring TakeDroppedFile(HDROP drop) {
  auto* const query = SystemFunction<decltype(DragQueryFileW)>(Library, "DragQueryFileW");
  auto* const finish = SystemFunction<decltype(DragFinish)>(Library, "DragFinish");
  if (query == nullptr || finish == nullptr) return {};
  std::wstring path(query(drop, 0, nullptr, 0) + std::size_t{1}, L'\0');
  path.resize(query(drop, 0, path.data(), static_cast<UINT>(path.size())));
  finish(drop);
  return path;
}

}  // namespace tessera
