# The functions that find_package(dorvex) brings. Each makes a target that is part of "all". Inputs
# count from the current source directory, outputs from the current binary directory. Warnings are
# shown and accepted; an error fails the build and leaves no output behind. What a schema includes
# or imports is followed by itself.
include_guard()
cmake_policy(PUSH)
cmake_policy(VERSION 3.20)

# dorvex_copybook(TARGET SCHEMA schema [OUTPUT copybook] [PREFIX prefix] [UNIQUE] [NO_COUNT_IN]
#                 [HEADS element...] [DEPENDS file...])
# Converts a schema in its own directory, from where its imports count. HEADS names the global
# elements to convert; without it, those that no other refers to. OUTPUT is by default the name of
# the schema with .cpy; the property DORVEX_COPYBOOK of the target holds its path.
function(dorvex_copybook target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "UNIQUE;NO_COUNT_IN" "SCHEMA;OUTPUT;PREFIX" "HEADS;DEPENDS")
    _dorvex_check_arguments("${target}" SCHEMA)
    _dorvex_input("${arg_SCHEMA}" input)
    cmake_path(GET input STEM LAST_ONLY stem)
    _dorvex_output("${arg_OUTPUT}" "${stem}.cpy" copybook)
    _dorvex_options(options)
    if(arg_UNIQUE)
        list(APPEND options -unique)
    endif()
    list(JOIN arg_HEADS " " heads)
    add_custom_command(
        OUTPUT "${copybook}"
        COMMAND "${DORVEX_CONVERT}" --program "${DORVEX_EXECUTABLE}" --heads "${heads}"
            --depfile "${copybook}.d" --copybook "${copybook}" "${input}" -- ${options}
        DEPENDS "${input}" ${arg_DEPENDS} "${DORVEX_EXECUTABLE}" "${DORVEX_CONVERT}"
        DEPFILE "${copybook}.d"
        COMMENT "Converting ${arg_SCHEMA}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS "${copybook}")
    set_target_properties(${target} PROPERTIES DORVEX_COPYBOOK "${copybook}")
endfunction()

# dorvex_schema(TARGET COBOL source [OUTPUT schema] [COPYBOOK copybook] [MAPPING file]
#               [DIRECTIVES file] [PREFIX prefix] [NO_COUNT_IN] [DEPENDS file...])
# Compiles a program or copybook in its own directory and converts its first record. OUTPUT and
# COPYBOOK are by default the name of the source with .xsd and -dorvex.cpy; the properties
# DORVEX_SCHEMA and DORVEX_COPYBOOK of the target hold their paths. The files that the compiler
# copies in are its own affair: DEPENDS names them.
function(dorvex_schema target)
    cmake_parse_arguments(PARSE_ARGV 1 arg
        "NO_COUNT_IN" "COBOL;OUTPUT;COPYBOOK;MAPPING;DIRECTIVES;PREFIX" "DEPENDS")
    _dorvex_check_arguments("${target}" COBOL)
    if(NOT DORVEX_KCOMP)
        message(FATAL_ERROR "dorvex_schema(${target}): DORVEX_KCOMP names no compiler driver")
    endif()
    _dorvex_input("${arg_COBOL}" input)
    cmake_path(GET input STEM LAST_ONLY stem)
    _dorvex_output("${arg_OUTPUT}" "${stem}.xsd" schema)
    _dorvex_output("${arg_COPYBOOK}" "${stem}-dorvex.cpy" copybook)
    _dorvex_options(options)
    set(inputs "${input}")
    set(files)
    foreach(kind IN ITEMS MAPPING DIRECTIVES)
        if(arg_${kind})
            _dorvex_input("${arg_${kind}}" file)
            string(TOLOWER "--${kind}" option)
            list(APPEND files "${option}" "${file}")
            list(APPEND inputs "${file}")
        endif()
    endforeach()
    add_custom_command(
        OUTPUT "${schema}" "${copybook}"
        COMMAND "${DORVEX_CONVERT}" --program "${DORVEX_EXECUTABLE}" --kcomp "${DORVEX_KCOMP}"
            --depfile "${schema}.d" --schema "${schema}" --copybook "${copybook}" ${files}
            "${input}" -- ${options}
        DEPENDS ${inputs} ${arg_DEPENDS} "${DORVEX_EXECUTABLE}" "${DORVEX_CONVERT}" "${DORVEX_KCOMP}"
        DEPFILE "${schema}.d"
        COMMENT "Converting ${arg_COBOL}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS "${schema}" "${copybook}")
    set_target_properties(${target} PROPERTIES
        DORVEX_SCHEMA "${schema}" DORVEX_COPYBOOK "${copybook}")
endfunction()

# What the functions share. They read the parsed arguments of their caller.

macro(_dorvex_check_arguments target input)
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "${target}: unknown arguments ${arg_UNPARSED_ARGUMENTS}")
    endif()
    if(arg_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "${target}: without a value: ${arg_KEYWORDS_MISSING_VALUES}")
    endif()
    if(NOT arg_${input})
        message(FATAL_ERROR "${target}: ${input} is missing")
    endif()
endmacro()

function(_dorvex_input name variable)
    cmake_path(ABSOLUTE_PATH name BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
    set(${variable} "${name}" PARENT_SCOPE)
endfunction()

function(_dorvex_output name default variable)
    if(NOT name)
        set(name "${default}")
    endif()
    cmake_path(ABSOLUTE_PATH name BASE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" NORMALIZE)
    set(${variable} "${name}" PARENT_SCOPE)
endfunction()

function(_dorvex_options variable)
    set(options)
    if(arg_PREFIX)
        list(APPEND options -p "${arg_PREFIX}")
    endif()
    if(arg_NO_COUNT_IN)
        list(APPEND options -nocountin)
    endif()
    set(${variable} ${options} PARENT_SCOPE)
endfunction()

cmake_policy(POP)
