# How cpack makes the Debian package:  cpack -G DEB
# Debian's own tools know the packager from these two variables.
set(packager "The Tarvex developers <developers@tarvex.invalid>")
if(DEFINED ENV{DEBFULLNAME} AND DEFINED ENV{DEBEMAIL})
    set(packager "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
endif()
set(TARVEX_MAINTAINER "${packager}" CACHE STRING "Who answers for the Debian package: name and <address>")

set(CPACK_PACKAGE_NAME tarvex)
set(CPACK_PACKAGE_VENDOR "Tarvex")
set(CPACK_PACKAGE_CONTACT "${TARVEX_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_THREADS 0)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Qt Help reads the handbook through this plug-in, which no program links.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, libsdl2-2.0-0, qt6-wayland, shared-mime-info")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "dosbox, wine")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "programming environment for Thrustmaster game controllers")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Tarvex edits the two files that program a Thrustmaster joystick of the 1990s
side by side: the joystick file, which says what each button, hat, trigger and
rotary does, and the macro file, which gives keystrokes names.

It colours their statements, lists the macros and those that are used, hands
the joystick file to the loader in Wine or DOSBox, and brings unsaved text
back after a crash. tarvexctl does the analysis on the command line.")

# What a Debian package has beyond an installation from source.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/finish.cmake)
set(CPACK_TARVEX_SOURCES ${CMAKE_SOURCE_DIR})
include(CPack)
