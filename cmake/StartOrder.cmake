# The start of the program reads few pages: the functions that it runs stand side by side in the file, and relocations are
# packed. A linker that can't do the one or the other leaves it out.
include(CheckLinkerFlag)

set(TARVEX_START_ORDER ${CMAKE_CURRENT_LIST_DIR}/start_order.ld)
check_linker_flag(CXX -Wl,-T,${TARVEX_START_ORDER} TARVEX_LINKER_ORDERS)
check_linker_flag(CXX -Wl,-z,pack-relative-relocs TARVEX_LINKER_PACKS)

#   tarvex_order_start(tarvex)
function(tarvex_order_start name)
    if(TARVEX_LINKER_ORDERS)
        target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-Wl,-T,${TARVEX_START_ORDER}>)
        set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${TARVEX_START_ORDER})
    endif()
    if(TARVEX_LINKER_PACKS)
        target_link_options(${name} PRIVATE $<$<CONFIG:Release>:-Wl,-z,pack-relative-relocs>)
    endif()
endfunction()
