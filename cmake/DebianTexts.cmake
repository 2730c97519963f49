# Run by cpack on the staged files: adds the copyright and the changelog, and compresses what
# Debian wants compressed.
set(share "${CPACK_TEMPORARY_DIRECTORY}/usr/share")
set(doc "${share}/doc/dorvex")
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH source)

configure_file("${source}/packaging/copyright" "${doc}/copyright" COPYONLY)
configure_file("${source}/packaging/changelog" "${doc}/changelog" COPYONLY)
file(CHMOD "${doc}/copyright" "${doc}/changelog"
    PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
execute_process(
    COMMAND gzip -9nf "${doc}/changelog" "${share}/man/man1/dorvex.1"
    COMMAND_ERROR_IS_FATAL ANY)
