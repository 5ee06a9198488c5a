// Wine answers 0 for every process. There the graphics objects are counted in the table that lies
// in each process, and the user objects by the handles that are given out next.
#include "tests/e2e/SystemObjects.h"

#include <winternl.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace tessera::e2e {
namespace {

struct GraphicsEntry {
  std::uint64_t Object;
  std::uint32_t Owner;
  std::uint16_t Unique;
  std::uint8_t Type;  ///< 0 when the entry is free
  std::uint8_t Flags;
  std::uint64_t UserPointer;
};
constexpr std::size_t GraphicsEntries = 0x4000;
constexpr std::size_t TableInProcessBlock = 0xF8;

template <typename Value>
void ReadFrom(HANDLE process, const void* address, Value* values, std::size_t count) {
  if (ReadProcessMemory(process, address, values, count * sizeof(Value), nullptr) == FALSE) {
    throw std::runtime_error("The program's memory could not be read");
  }
}

int CountInTable(HANDLE process) {
  const auto query = reinterpret_cast<decltype(&NtQueryInformationProcess)>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess")));
  PROCESS_BASIC_INFORMATION information{};
  if (query == nullptr ||
      query(process, ProcessBasicInformation, &information, sizeof information, nullptr) < 0) {
    throw std::runtime_error("The program's process block could not be found");
  }
  const void* table = nullptr;
  ReadFrom(process,
           reinterpret_cast<const std::byte*>(information.PebBaseAddress) + TableInProcessBlock,
           &table, 1);
  std::vector<GraphicsEntry> entries(GraphicsEntries);
  ReadFrom(process, table, entries.data(), entries.size());
  return static_cast<int>(
      std::ranges::count_if(entries, [](const GraphicsEntry& entry) { return entry.Type != 0; }));
}

/// Numbers that are free again are given out first, the last one first, then ever higher ones that
/// never were: once they only rise, all lower ones are in use, here or elsewhere.
int CountByHandles() {
  constexpr int AtOnce = 1000;
  constexpr std::ptrdiff_t Rising = 500;
  constexpr std::size_t Limit = 25000;
  std::vector<HMENU> menus;
  std::vector<int> numbers;
  const auto reachedNewOnes = [&] {
    return !numbers.empty() && std::is_sorted(numbers.end() - Rising, numbers.end()) &&
           std::ranges::max(numbers) == numbers.back();
  };
  while (!reachedNewOnes() && menus.size() < Limit) {
    for (int count = 0; count < AtOnce; ++count) {
      menus.push_back(CreateMenu());
      numbers.push_back(LOWORD(reinterpret_cast<ULONG_PTR>(menus.back())) / 2);
    }
  }
  const bool counted = reachedNewOnes();
  // From the last to the first, so that the next count gets them in the same order.
  for (; !menus.empty(); menus.pop_back()) DestroyMenu(menus.back());
  if (!counted) throw std::runtime_error("The system's objects could not be counted");
  return numbers.back() - static_cast<int>(numbers.size());
}

}  // namespace

SystemObjects CountSystemObjects(HANDLE process) {
  const auto graphics = static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS));
  const auto user = static_cast<int>(GetGuiResources(process, GR_USEROBJECTS));
  if (user > 0) return {graphics, user};
  return {CountInTable(process), CountByHandles()};
}

}  // namespace tessera::e2e
