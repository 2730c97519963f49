# Target "tidy": clang-tidy over src/ and tools/. Each source has a stamp, and the compiler's own
# list of the headers it includes, so that only what a change can affect is checked again.
find_program(DORVEX_CLANG_TIDY clang-tidy)
if(NOT DORVEX_CLANG_TIDY)
    return()
endif()

file(GLOB_RECURSE tidy_sources CONFIGURE_DEPENDS
    RELATIVE "${PROJECT_SOURCE_DIR}"
    "${PROJECT_SOURCE_DIR}/src/*.cpp" "${PROJECT_SOURCE_DIR}/tools/*.cpp")
set(tidy_stamps)
foreach(source IN LISTS tidy_sources)
    set(stamp "${PROJECT_BINARY_DIR}/tidy/${source}.stamp")
    add_custom_command(
        OUTPUT "${stamp}"
        COMMAND "${PROJECT_SOURCE_DIR}/cmake/tidy.sh" "${DORVEX_CLANG_TIDY}"
            "${PROJECT_BINARY_DIR}" "${PROJECT_SOURCE_DIR}/${source}" "${stamp}.log"
        COMMAND "${CMAKE_CXX_COMPILER}" -std=c++20
            -I "${PROJECT_SOURCE_DIR}/src" -I "${PROJECT_SOURCE_DIR}/tools"
            -isystem "${LIBXML2_INCLUDE_DIR}"
            -MM -MT "${stamp}" -MF "${stamp}.d" "${PROJECT_SOURCE_DIR}/${source}"
        COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
        DEPENDS
            "${PROJECT_SOURCE_DIR}/${source}"
            "${PROJECT_SOURCE_DIR}/.clang-tidy"
            "${PROJECT_SOURCE_DIR}/cmake/tidy.sh"
        DEPFILE "${stamp}.d"
        COMMENT "Checking ${source}"
        VERBATIM
    )
    list(APPEND tidy_stamps "${stamp}")
endforeach()
add_custom_target(tidy DEPENDS ${tidy_stamps})
