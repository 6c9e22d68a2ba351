# Run by cpack before it packs the installed files: puts them where Debian wants them, compressed as it wants them.

set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(doc ${share}/doc/${CPACK_PACKAGE_NAME})
set(debian ${CPACK_TARVEX_SOURCES}/packaging/debian)

file(MAKE_DIRECTORY ${doc})
file(COPY ${debian}/copyright DESTINATION ${doc} FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
execute_process(
    COMMAND awk -v package=${CPACK_PACKAGE_NAME} "-vmaintainer=${CPACK_PACKAGE_CONTACT}" -f ${debian}/changelog.awk
        ${CPACK_TARVEX_SOURCES}/CHANGELOG.md
    OUTPUT_FILE ${doc}/changelog COMMAND_ERROR_IS_FATAL ANY)

# The modules call the C library through Qt only, so they don't name it.
file(WRITE ${share}/lintian/overrides/${CPACK_PACKAGE_NAME}
    "${CPACK_PACKAGE_NAME}: library-not-linked-against-libc [usr/lib/tarvex/modules/*.so]\n")

file(GLOB pages ${share}/man/man1/*.1)
execute_process(COMMAND gzip -9n ${doc}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY) # -n: no time in it

file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)

file(GLOB_RECURSE entries LIST_DIRECTORIES true ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/*)
foreach(entry ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr ${entries})
    if(IS_DIRECTORY ${entry})
        file(CHMOD ${entry} DIRECTORY_PERMISSIONS
            OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    endif()
endforeach()
