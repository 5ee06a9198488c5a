// Starts COM and makes components; ole32 is loaded at the first of either.
#include "platform/win32/Components.h"

#include <objbase.h>

#include "platform/win32/SystemFunction.h"

namespace tessera {
namespace {

template <typename Function>
Function* ComponentFunction(const char* name) {
  return SystemFunction<Function>(L"ole32.dll", name);
}

class ComponentsOfThread {
 public:
  ComponentsOfThread() {
    auto* const start = ComponentFunction<decltype(CoInitializeEx)>("CoInitializeEx");
    if (start != nullptr && SUCCEEDED(start(nullptr, COINIT_APARTMENTTHREADED))) {
      end_ = ComponentFunction<decltype(CoUninitialize)>("CoUninitialize");
    }
  }
  ~ComponentsOfThread() {
    if (end_ != nullptr) end_();
  }
  ComponentsOfThread(const ComponentsOfThread&) = delete;
  ComponentsOfThread& operator=(const ComponentsOfThread&) = delete;

 private:
  decltype(CoUninitialize)* end_ = nullptr;
};

}  // namespace

void StartComponents() { static const ComponentsOfThread components; }

UniqueComponent CreateComponent(const GUID& classId, const GUID& interfaceId) {
  StartComponents();
  auto* const create = ComponentFunction<decltype(CoCreateInstance)>("CoCreateInstance");
  void* component = nullptr;
  if (create == nullptr ||
      FAILED(create(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &component))) {
    return nullptr;
  }
  return UniqueComponent(static_cast<IUnknown*>(component));
}

}  // namespace tessera
