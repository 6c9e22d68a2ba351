# One library per folder of the sources; its LINKS are all it may include.
#   tarvex_library(NAME SOURCES a.cpp ... LINKS tarvex_platform ...)
function(tarvex_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC tarvex_compile_options ${arg_LINKS})
endfunction()

# What the tests do themselves is little, and compiling it without optimisation takes half the time.
set(TARVEX_TEST_OPTIONS -O0)

# Reading the test framework takes longer than compiling most tests: it is read once, for all test programs.
function(tarvex_test_headers)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/test_headers.cpp CONTENT "")
    add_library(tarvex_test_headers OBJECT ${CMAKE_BINARY_DIR}/test_headers.cpp)
    target_link_libraries(tarvex_test_headers PRIVATE tarvex_compile_options GTest::gmock)
    # Qt asks for -fPIC, and all users of the headers must have the same options.
    target_compile_options(tarvex_test_headers PRIVATE -fPIC ${TARVEX_TEST_OPTIONS})
    target_precompile_headers(tarvex_test_headers PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
endfunction()

# One test program per folder of the tests, every TEST in it a test of its own for ctest.
#   tarvex_test(NAME SOURCES a_test.cpp ... LINKS tarvex_shell ...)
function(tarvex_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    if(NOT TARGET tarvex_test_headers)
        tarvex_test_headers()
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tarvex_compile_options ${arg_LINKS} GTest::gmock GTest::gtest_main)
    target_compile_options(${name} PRIVATE -fPIC ${TARVEX_TEST_OPTIONS})
    target_precompile_headers(${name} REUSE_FROM tarvex_test_headers)
    target_compile_definitions(${name} PRIVATE TARVEX_SOURCE_DIRECTORY="${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(${name} TEST_PREFIX "${TARVEX_TEST_PREFIX}" DISCOVERY_TIMEOUT 60)
endfunction()

# A program that libFuzzer feeds with bytes, and its short run as a test: from the files in corpus/NAME, the same way each
# time. A long run:  build-sanitize/bin/NAME -max_total_time=600 FOLDER-FOR-FINDS fuzz/corpus/NAME
#   tarvex_fuzz(NAME SOURCES a_fuzz.cpp LINKS tarvex_pane ...)
function(tarvex_fuzz name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tarvex_compile_options ${arg_LINKS})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    # Seeds by name: libFuzzer would add what it finds to a folder.
    file(GLOB seeds CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name}/*)
    list(JOIN seeds "," seeds)
    add_test(NAME ${TARVEX_TEST_PREFIX}Fuzz.${name}
        COMMAND ${name} -seed=1 -runs=20000 -max_total_time=20 -max_len=4096 -timeout=10 -rss_limit_mb=1024 -seed_inputs=${seeds})
endfunction()
