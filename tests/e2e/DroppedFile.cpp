// The message carries memory of the program that gets it, which frees it: the program itself is
// made to allocate it, by a thread that calls nothing else.
#include "tests/e2e/DroppedFile.h"

#include <shellapi.h>
#include <shlobj.h>

#include <array>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "platform/win32/Handle.h"
#include "tests/e2e/RemoteMemory.h"

namespace tessera::e2e {
namespace {

/// What the thread works with, as the machine code below expects it.
struct Call {
  std::uint64_t Function;  ///< GlobalAlloc, which every process has at the same address
  std::uint64_t Flags;
  std::uint64_t Bytes;
  std::uint64_t Result;
};

/// Calls the function of the Call that the thread is given, and keeps its result there.
constexpr std::array<unsigned char, 29> Code{
    0x53,                    // push rbx
    0x48, 0x83, 0xEC, 0x20,  // sub rsp, 32
    0x48, 0x89, 0xCB,        // mov rbx, rcx
    0x48, 0x8B, 0x4B, 0x08,  // mov rcx, [rbx + 8]
    0x48, 0x8B, 0x53, 0x10,  // mov rdx, [rbx + 16]
    0xFF, 0x13,              // call [rbx]
    0x48, 0x89, 0x43, 0x18,  // mov [rbx + 24], rax
    0x48, 0x83, 0xC4, 0x20,  // add rsp, 32
    0x5B,                    // pop rbx
    0xC3,                    // ret
};
constexpr std::size_t CallAt = 64;

HGLOBAL AllocateIn(HANDLE process, std::size_t bytes) {
  RemoteMemory memory(process, 4096);
  memory.Put(Code);
  memory.Put(Call{reinterpret_cast<std::uint64_t>(&GlobalAlloc), GMEM_FIXED, bytes, 0}, CallAt);
  DWORD former = 0;
  VirtualProtectEx(process, memory.At(), Code.size(), PAGE_EXECUTE_READWRITE, &former);
  const auto start = reinterpret_cast<LPTHREAD_START_ROUTINE>(memory.At());
  const UniqueHandle thread =
      Own(CreateRemoteThread(process, nullptr, 0, start, memory.At(CallAt), 0, nullptr));
  constexpr DWORD Limit = 10000;  // milliseconds
  if (!thread || WaitForSingleObject(thread.get(), Limit) != WAIT_OBJECT_0) {
    throw std::runtime_error("The program could not be made to allocate memory");
  }
  const auto address = memory.Get<Call>(CallAt).Result;
  if (address == 0) throw std::runtime_error("The program has no memory for a dropped file");
  return reinterpret_cast<HGLOBAL>(address);
}

}  // namespace

void DropFile(HWND window, HANDLE process, const std::wstring& path) {
  DROPFILES head{};
  head.pFiles = sizeof head;
  head.fWide = TRUE;
  std::vector<std::byte> content(sizeof head + (path.size() + 2) * sizeof(wchar_t));
  std::memcpy(content.data(), &head, sizeof head);
  std::memcpy(content.data() + sizeof head, path.data(), path.size() * sizeof(wchar_t));

  const HGLOBAL dropped = AllocateIn(process, content.size());
  if (WriteProcessMemory(process, dropped, content.data(), content.size(), nullptr) == FALSE) {
    throw std::runtime_error("The program's memory could not be written");
  }
  PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(dropped), 0);
}

}  // namespace tessera::e2e
