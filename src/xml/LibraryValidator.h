#ifndef DORVEX_XML_LIBRARYVALIDATOR_H
#define DORVEX_XML_LIBRARYVALIDATOR_H

#include <memory>

#include <xercesc/framework/XMLValidator.hpp>

/// A validator of the parser library on its way into a parser, which takes it over. Null stands for
/// the library's own choice. It has a name of its own so that the parser's header can do without
/// the library's.
struct CKTLibraryValidator {
    std::unique_ptr<xercesc::XMLValidator> validator;
};

#endif
