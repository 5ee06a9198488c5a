# The settings that every target of this project shares.

add_library(tessera_options INTERFACE)
target_compile_features(tessera_options INTERFACE cxx_std_20)
target_include_directories(tessera_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/generated)
# The resource compiler knows none of these.
target_compile_options(tessera_options INTERFACE
  "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-Werror>")

if(WIN32)
  # Windows 10 and later; wide functions unless a name says otherwise.
  target_compile_definitions(tessera_options INTERFACE
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
  target_link_options(tessera_options INTERFACE -static)
  target_link_libraries(tessera_options INTERFACE comctl32 advapi32 uxtheme)
endif()

option(TESSERA_SANITIZE "Address and undefined-behaviour sanitizers" OFF)
if(TESSERA_SANITIZE)
  target_compile_options(tessera_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tessera_options INTERFACE -fsanitize=address,undefined)
endif()

option(TESSERA_COUNT "Count the blocks of code that tests run; by GCC" OFF)
if(TESSERA_COUNT)
  target_compile_options(tessera_options INTERFACE -fsanitize-coverage=trace-pc)
endif()

function(tessera_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC tessera_options)
endfunction()

function(tessera_executable name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE tessera_options)
endfunction()
