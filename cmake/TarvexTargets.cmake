# One library per folder of the sources; its LINKS are all it may include.
#   tarvex_library(NAME SOURCES a.cpp ... LINKS tarvex_platform ...)
function(tarvex_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC tarvex_compile_options ${arg_LINKS})
endfunction()

# One test program per folder of the tests, every TEST in it a test of its own for ctest.
#   tarvex_test(NAME SOURCES a_test.cpp ... LINKS tarvex_shell ...)
function(tarvex_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE tarvex_compile_options ${arg_LINKS} GTest::gmock GTest::gtest_main)
    target_compile_definitions(${name} PRIVATE TARVEX_SOURCE_DIRECTORY="${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(${name} TEST_PREFIX "${TARVEX_TEST_PREFIX}" DISCOVERY_TIMEOUT 60)
endfunction()
