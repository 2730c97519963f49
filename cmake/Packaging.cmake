# What is installed beside the program, and the Debian package that cpack makes of it.
set(DORVEX_ZSH_DIRECTORY "${CMAKE_INSTALL_DATADIR}/zsh/site-functions"
    CACHE STRING "Where the completion for zsh is installed")

install(FILES docs/dorvex.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES packaging/dorvex.bash-completion
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME dorvex)
install(FILES packaging/dorvex.zsh-completion DESTINATION "${DORVEX_ZSH_DIRECTORY}" RENAME _dorvex)
install(FILES packaging/dorvex.fish-completion
    DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" RENAME dorvex.fish)

# The guide as a text for the terminal: side by side, as on a web page, it cannot be read there.
set(guide "${PROJECT_BINARY_DIR}/guide.txt")
set(guide_sources "${PROJECT_SOURCE_DIR}/cmake/guide-text.awk" "${PROJECT_SOURCE_DIR}/docs/guide.md")
execute_process(COMMAND awk -f ${guide_sources}
    OUTPUT_FILE "${guide}" COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${guide_sources})
install(FILES
    "${guide}"
    docs/messages.md
    docs/tutorial-copybook.md
    docs/tutorial-mapping.md
    docs/tutorial-schema.md
    DESTINATION "${CMAKE_INSTALL_DOCDIR}")
# By name: whoever tries the examples in their directory leaves the outputs there.
set(examples
    catalogue-types.xsd
    catalogue.xsd
    claim-party.cpy
    claims.cbl
    customer-map.xml
    customer.cpy
    ktxmlmap.xsd
    order.xml
    order.xsd
    parcel-lengths.cbl
    parcel.xsd
    payment-types.xsd
    payment.xsd
    plain-cobol.awk
    stock-names.xml
    stock.cpy
    stock.xml
)
list(TRANSFORM examples PREPEND examples/)
install(FILES ${examples} DESTINATION "${CMAKE_INSTALL_DOCDIR}/examples")
# The schema of mapping files is data: it has a place that does not hang on the documentation.
install(FILES examples/ktxmlmap.xsd DESTINATION "${CMAKE_INSTALL_DATADIR}/dorvex")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dorvex)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "The dorvex authors <dorvex@ostrel.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "converter between COBOL record layouts and XML Schema")
set(CPACK_PACKAGE_DESCRIPTION
"dorvex turns an XML Schema into a COBOL copybook and a COBOL source into an
XML Schema, for programs that read and write XML through the XML-syntax
extensions of their compiler. The copybooks tie each data item to its XML
element or attribute. It also checks schemas and documents.
.
A stand-in for the compiler, which writes the data dictionary of a record
layout, is in /usr/libexec/dorvex.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS bash-completion)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# The texts that only a Debian package holds join the staged files before they are packed.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianTexts.cmake")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
