# The settings that every target of this project shares.

add_library(tessera_options INTERFACE)
target_compile_features(tessera_options INTERFACE cxx_std_20)
target_include_directories(tessera_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/generated)
# The resource compiler knows none of these.
target_compile_options(tessera_options INTERFACE
  "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow>")

# The presets turn it on; a compiler that they do not know may warn of more.
option(TESSERA_WERROR "Warnings are errors" OFF)
if(TESSERA_WERROR)
  target_compile_options(tessera_options INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-Werror>")
endif()

if(WIN32)
  # Windows 10 and later; wide functions unless a name says otherwise.
  target_compile_definitions(tessera_options INTERFACE
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
  target_compile_options(tessera_options INTERFACE
    "$<$<COMPILE_LANGUAGE:CXX>:-fstack-protector-strong>")
  # The program imports functions of Windows 10, version 1607: older versions are to say so at once,
  # and newer ones are not to take it for a program of their predecessors.
  target_link_options(tessera_options INTERFACE -static -fstack-protector-strong
    LINKER:--major-os-version=10,--minor-os-version=0
    LINKER:--major-subsystem-version=10,--minor-subsystem-version=0)
  target_link_libraries(tessera_options INTERFACE comctl32 advapi32)
endif()

option(TESSERA_SANITIZE "Address and undefined-behaviour sanitizers" OFF)
if(TESSERA_SANITIZE)
  target_compile_options(tessera_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tessera_options INTERFACE -fsanitize=address,undefined)
endif()

# Half of what a small file takes to compile is reading the headers of others. What a file forgot to
# include is then seen by tests/checks/check_headers.py.
option(TESSERA_PRECOMPILE "Precompile headers of the standard library" OFF)
function(tessera_precompile target)
  if(TESSERA_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <cstdint> <functional> <map> <memory>
      <optional> <ranges> <span> <stdexcept> <string> <string_view> <unordered_map> <utility> <vector> ${ARGN})
    # The time of day would keep compiler caches from finding the result again.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>)
    # GCC 12 forgets which precompiled headers are the system's, and finds fault with mingw's.
    target_compile_options(${target} PRIVATE "$<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-array-bounds;-Wno-stringop-overread>")
  endif()
endfunction()

function(tessera_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC tessera_options)
endfunction()

function(tessera_executable name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE tessera_options)
endfunction()
