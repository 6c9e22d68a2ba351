# Helpers that make the targets: libraries, programs, tests.

# What the targets are made of, noted by this run.
file(REMOVE_RECURSE ${CMAKE_BINARY_DIR}/layers ${CMAKE_BINARY_DIR}/include)

# The layers hold by the build: a target finds the headers of what its LINKS name, of what those link publicly, and no
# others. So each library offers its headers in a folder of its own, as links to the sources:
#   build/include/TARGET/src/documents/pair/editor.h
# The folders are set up anew by each configure run, so a header that is gone leaves nothing behind. The few headers of
# the tests are found by all tests.
function(tarvex_offer_headers name)
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_SOURCE_DIR} OUTPUT_VARIABLE folder)
    if(folder MATCHES "^tests")
        target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/tests)
        return()
    endif()
    set(offered ${CMAKE_BINARY_DIR}/include/${name})
    file(MAKE_DIRECTORY ${offered}/${folder})
    foreach(header ${ARGN})
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${offered}/${folder}/${header} COPY_ON_ERROR SYMBOLIC)
    endforeach()
    target_include_directories(${name} PUBLIC ${offered}/src)
endfunction()

# Writes down what a target is made of and what it links, for scripts/check-layers.
function(tarvex_note_layers name)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;LINKS" ${ARGN})
    set(lines "")
    foreach(kind SOURCES HEADERS)
        foreach(file ${arg_${kind}})
            cmake_path(ABSOLUTE_PATH file NORMALIZE)
            cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
            string(APPEND lines "${kind} ${file}\n")
        endforeach()
    endforeach()
    foreach(link ${arg_LINKS})
        string(APPEND lines "LINKS ${link}\n")
    endforeach()
    file(WRITE ${CMAKE_BINARY_DIR}/layers/${name} "${lines}")
endfunction()

# Reading the headers of libraries takes longer than compiling most sources: they are read once, for all targets with the
# same options. Each source includes what it needs all the same.
#   tarvex_precompile(NAME HEADERS <a.h> ... LINKS gtest ... [OPTIONS -O0 ...])
function(tarvex_precompile name)
    cmake_parse_arguments(arg "" "" "HEADERS;LINKS;OPTIONS" ${ARGN})
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE tarvex_compile_options ${arg_LINKS})
    target_compile_options(${name} PRIVATE ${arg_OPTIONS})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# One library per folder of the sources; its LINKS are what it includes. All headers of the folder are its own, unless
# HEADERS names some of them.
#   tarvex_library(NAME SOURCES a.cpp ... [HEADERS a.h ...] LINKS tarvex_platform ...)
function(tarvex_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;LINKS" ${ARGN})
    if(NOT arg_HEADERS)
        file(GLOB arg_HEADERS CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.h)
    endif()
    add_library(${name} STATIC ${arg_SOURCES})
    tarvex_offer_headers(${name} ${arg_HEADERS})
    target_link_libraries(${name} PUBLIC tarvex_compile_options ${arg_LINKS})
    if(TARVEX_FUZZ)
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    # Only here, so that the other build finds a missing include.
    if(TARVEX_SANITIZE)
        target_precompile_headers(${name} REUSE_FROM tarvex_standard_headers)
    endif()
    tarvex_note_layers(${name} SOURCES ${arg_SOURCES} HEADERS ${arg_HEADERS} LINKS ${arg_LINKS})
endfunction()

# A program; the headers of its folder are for its own sources only.
#   tarvex_executable(NAME SOURCES main.cpp ... [HEADERS a.h ...] LINKS tarvex_shell ...)
function(tarvex_executable name)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;LINKS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    if(arg_HEADERS)
        tarvex_offer_headers(${name} ${arg_HEADERS})
    endif()
    target_link_libraries(${name} PRIVATE tarvex_compile_options ${arg_LINKS})
    tarvex_note_layers(${name} SOURCES ${arg_SOURCES} HEADERS ${arg_HEADERS} LINKS ${arg_LINKS})
endfunction()

# What the tests do themselves is little, and compiling it without optimisation takes half the time.
set(TARVEX_TEST_OPTIONS -O0)

# One test program per folder of the tests, every TEST in it a test of its own for ctest. It links the folder that it
# tests and what else its sources include. OWN_MAIN: main() is among the sources.
#   tarvex_test(NAME [OWN_MAIN] SOURCES a_test.cpp ... LINKS tarvex_shell ...)
function(tarvex_test name)
    cmake_parse_arguments(arg "OWN_MAIN" "" "SOURCES;LINKS" ${ARGN})
    tarvex_executable(${name} SOURCES ${arg_SOURCES} LINKS ${arg_LINKS})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_options(${name} PRIVATE ${TARVEX_TEST_OPTIONS})
    target_compile_definitions(${name} PRIVATE TARVEX_SOURCE_DIRECTORY="${CMAKE_SOURCE_DIR}")
    if(arg_OWN_MAIN)
        target_link_libraries(${name} PRIVATE GTest::gmock GTest::gtest)
    else()
        target_link_libraries(${name} PRIVATE GTest::gmock GTest::gtest_main)
        if(tarvex_test_program IN_LIST arg_LINKS)
            target_precompile_headers(${name} REUSE_FROM tarvex_program_test_headers)
        else()
            target_precompile_headers(${name} REUSE_FROM tarvex_test_headers)
        endif()
    endif()
    gtest_discover_tests(${name} TEST_PREFIX "${TARVEX_TEST_PREFIX}" DISCOVERY_TIMEOUT 60)
endfunction()

# A program that libFuzzer feeds with bytes, and its short run as a test: from the files in corpus/NAME, the same way each
# time. A long run:  build-sanitize/bin/NAME -max_total_time=600 FOLDER-FOR-FINDS fuzz/corpus/NAME
#   tarvex_fuzz(NAME SOURCES a_fuzz.cpp LINKS tarvex_language ...)
function(tarvex_fuzz name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    tarvex_executable(${name} SOURCES ${arg_SOURCES} LINKS ${arg_LINKS})
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    # Seeds by name: libFuzzer would add what it finds to a folder.
    file(GLOB seeds CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name}/*)
    list(JOIN seeds "," seeds)
    add_test(NAME ${TARVEX_TEST_PREFIX}Fuzz.${name}
        COMMAND ${name} -seed=1 -runs=20000 -max_total_time=20 -max_len=4096 -timeout=10 -rss_limit_mb=1024 -seed_inputs=${seeds})
endfunction()
