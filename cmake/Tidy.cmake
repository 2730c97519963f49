# Target "tidy": clang-tidy over src/ and tools/, and over tests/ and bench/ where they are built. Each
# source has a stamp, and the compiler's own list of the headers it includes, so that only what a change
# can affect is checked again.
find_program(DORVEX_CLANG_TIDY clang-tidy)
if(NOT DORVEX_CLANG_TIDY)
    return()
endif()

set(tidy_folders src tools)
if(BUILD_TESTING)
    list(APPEND tidy_folders tests)
endif()
if(DORVEX_BENCH)
    list(APPEND tidy_folders bench)
endif()
list(TRANSFORM tidy_folders REPLACE ".+" "${PROJECT_SOURCE_DIR}/\\0/*.cpp" OUTPUT_VARIABLE tidy_globs)
file(GLOB_RECURSE tidy_sources CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}" ${tidy_globs})
list(FILTER tidy_sources EXCLUDE REGEX "^tests/cases/")
set(tidy_settings "${PROJECT_SOURCE_DIR}/.clang-tidy" "${PROJECT_SOURCE_DIR}/cmake/tidy.sh")
set(tidy_stamps)
foreach(source IN LISTS tidy_sources)
    set(stamp "${PROJECT_BINARY_DIR}/tidy/${source}.stamp")
    set(settings ${tidy_settings})
    if(source MATCHES "^tests/")
        list(APPEND settings "${PROJECT_SOURCE_DIR}/tests/.clang-tidy")
    endif()
    add_custom_command(
        OUTPUT "${stamp}"
        COMMAND "${PROJECT_SOURCE_DIR}/cmake/tidy.sh" "${DORVEX_CLANG_TIDY}"
            "${PROJECT_BINARY_DIR}" "${PROJECT_SOURCE_DIR}/${source}" "${stamp}.log"
        COMMAND "${CMAKE_CXX_COMPILER}" -std=c++20
            -I "${PROJECT_SOURCE_DIR}/src" -I "${PROJECT_SOURCE_DIR}/tools"
            -I "${PROJECT_SOURCE_DIR}/tests/support" -isystem "${LIBXML2_INCLUDE_DIR}"
            -MM -MT "${stamp}" -MF "${stamp}.d" "${PROJECT_SOURCE_DIR}/${source}"
        COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
        DEPENDS "${PROJECT_SOURCE_DIR}/${source}" ${settings}
        DEPFILE "${stamp}.d"
        COMMENT "Checking ${source}"
        VERBATIM
    )
    list(APPEND tidy_stamps "${stamp}")
endforeach()
add_custom_target(tidy DEPENDS ${tidy_stamps})
