// Reads drops; shell32 is loaded at the first.
#include "platform/win32/DroppedFile.h"

#include <memory>
#include <type_traits>

#include "platform/win32/SystemFunction.h"

namespace tessera {
namespace {

template <typename Function>
Function* DropFunction(const char* name) {
  return SystemFunction<Function>(L"shell32.dll", name);
}

}  // namespace

std::wstring TakeDroppedFile(HDROP drop) {
  auto* const query = DropFunction<decltype(DragQueryFileW)>("DragQueryFileW");
  auto* const finish = DropFunction<decltype(DragFinish)>("DragFinish");
  if (query == nullptr || finish == nullptr) return {};
  const std::unique_ptr<std::remove_pointer_t<HDROP>, decltype(finish)> owned(drop, finish);
  std::wstring path(query(drop, 0, nullptr, 0) + std::size_t{1}, L'\0');
  path.resize(query(drop, 0, path.data(), static_cast<UINT>(path.size())));
  return path;
}

}  // namespace tessera
