# What makes dorvex a step of other builds: find_package(dorvex) for CMake, dorvex.mk for make, and
# the script that both run. The files find each other from where they lie, so that the installed tree
# may be moved.
include(CMakePackageConfigHelpers)

set(kit "${PROJECT_SOURCE_DIR}/packaging/build-kit")
set(kit_output "${PROJECT_BINARY_DIR}/build-kit")
set(DORVEX_BIN "${CMAKE_INSTALL_FULL_BINDIR}")
set(DORVEX_LIBEXEC "${CMAKE_INSTALL_FULL_LIBEXECDIR}/dorvex")
set(cmake_directory "${CMAKE_INSTALL_DATADIR}/cmake/dorvex")

configure_package_config_file("${kit}/dorvex-config.cmake.in" "${kit_output}/dorvex-config.cmake"
    INSTALL_DESTINATION "${cmake_directory}" PATH_VARS DORVEX_BIN DORVEX_LIBEXEC)
write_basic_package_version_file("${kit_output}/dorvex-config-version.cmake"
    COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
file(RELATIVE_PATH DORVEX_TO_BIN "${CMAKE_INSTALL_FULL_DATADIR}/dorvex" "${DORVEX_BIN}")
file(RELATIVE_PATH DORVEX_TO_LIBEXEC
    "${CMAKE_INSTALL_FULL_DATADIR}/dorvex" "${CMAKE_INSTALL_FULL_LIBEXECDIR}")
configure_file("${kit}/dorvex.mk.in" "${kit_output}/dorvex.mk" @ONLY)

install(FILES
    "${kit_output}/dorvex-config.cmake"
    "${kit_output}/dorvex-config-version.cmake"
    "${kit}/dorvex-functions.cmake"
    DESTINATION "${cmake_directory}")
install(FILES "${kit_output}/dorvex.mk" DESTINATION "${CMAKE_INSTALL_DATADIR}/dorvex")
install(PROGRAMS "${kit}/convert" DESTINATION "${CMAKE_INSTALL_LIBEXECDIR}/dorvex")
