// Their library is loaded when they are started.
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
    started_ = start != nullptr && SUCCEEDED(start(nullptr, COINIT_APARTMENTTHREADED));
  }
  ~ComponentsOfThread() {
    auto* const end = ComponentFunction<decltype(CoUninitialize)>("CoUninitialize");
    if (started_ && end != nullptr) end();
  }
  ComponentsOfThread(const ComponentsOfThread&) = delete;
  ComponentsOfThread& operator=(const ComponentsOfThread&) = delete;

 private:
  bool started_ = false;
};

}  // namespace

void StartComponents() { static const ComponentsOfThread components; }

void* CreateComponent(const GUID& classId, const GUID& interfaceId) {
  StartComponents();
  auto* const create = ComponentFunction<decltype(CoCreateInstance)>("CoCreateInstance");
  void* component = nullptr;
  if (create == nullptr ||
      FAILED(create(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &component))) {
    return nullptr;
  }
  return component;
}

}  // namespace tessera
