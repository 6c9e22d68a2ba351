# Choices of the build and the compiler settings that every target shares.

option(TARVEX_DESKTOP "Build the desktop program (needs Qt 6)" ON)
option(TARVEX_CLI "Build tarvexctl (needs CLI11 and JSON for Modern C++)" ON)
option(TARVEX_TESTS "Build the tests" OFF)
option(TARVEX_BENCHMARKS "Build the benchmarks" OFF)
option(TARVEX_FUZZ "Build the fuzz targets (needs clang and its libFuzzer)" OFF)
option(TARVEX_SANITIZE "Check memory use and undefined behaviour at run time" OFF)
option(TARVEX_WERROR "Treat warnings as errors" ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# Start-up is reading pages: small code in sections of their own, and what nothing calls is left out.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG -ffunction-sections -fdata-sections")
add_link_options($<$<CONFIG:Release>:-Wl,--gc-sections>)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# Libraries that the program loads when it first wants them. Not beside those of the system, or in a folder of theirs,
# where packagers and ldconfig look for libraries to link.
include(GNUInstallDirs)
set(TARVEX_MODULES ${CMAKE_INSTALL_LIBDIR}/tarvex/modules)
file(RELATIVE_PATH TARVEX_MODULES_FROM_PROGRAM /${CMAKE_INSTALL_BINDIR} /${TARVEX_MODULES})

add_library(tarvex_compile_options INTERFACE)
target_compile_options(tarvex_compile_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> # g++ 12 sees overlaps where a literal and a string are joined
    $<$<BOOL:${TARVEX_WERROR}>:-Werror>)

if(TARVEX_SANITIZE)
    # Checked containers too; line numbers are all of the debug information that a report needs.
    set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
    target_compile_definitions(tarvex_compile_options INTERFACE _GLIBCXX_ASSERTIONS)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(tarvex_compile_options INTERFACE ${sanitizers})
    target_link_options(tarvex_compile_options INTERFACE ${sanitizers})
endif()
