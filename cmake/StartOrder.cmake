# The start of the program reads few pages: the functions that it runs stand side by side in the file, and relocations are
# packed. A linker that can't do the one or the other leaves it out.
include(CheckLinkerFlag)

set(TARVEX_START_ORDER ${CMAKE_CURRENT_LIST_DIR}/start_order.ld)
check_linker_flag(CXX -Wl,-T,${TARVEX_START_ORDER} TARVEX_LINKER_ORDERS)
check_linker_flag(CXX -Wl,-z,pack-relative-relocs TARVEX_LINKER_PACKS)

# NAME_unordered is the same program with its functions where they come to stand. scripts/order-start runs it: valgrind
# knows the names of functions only in .text.
#   tarvex_order_start(NAME)
function(tarvex_order_start name)
    foreach(property SOURCES LINK_LIBRARIES COMPILE_DEFINITIONS)
        get_target_property(${property} ${name} ${property})
    endforeach()
    add_executable(${name}_unordered EXCLUDE_FROM_ALL ${SOURCES})
    target_link_libraries(${name}_unordered PRIVATE ${LINK_LIBRARIES})
    target_compile_definitions(${name}_unordered PRIVATE ${COMPILE_DEFINITIONS})

    if(TARVEX_LINKER_ORDERS)
        target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-Wl,-T,${TARVEX_START_ORDER}>)
        set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${TARVEX_START_ORDER})
    endif()
    if(TARVEX_LINKER_PACKS)
        target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-Wl,-z,pack-relative-relocs>)
    endif()
endfunction()
