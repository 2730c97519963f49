#ifndef DORVEX_XML_LIBRARYVALIDATOR_H
#define DORVEX_XML_LIBRARYVALIDATOR_H

#include <memory>

#include <xercesc/framework/XMLValidator.hpp>

/// A validator of the parser library on its way into a parser, which takes it over.
struct CKTLibraryValidator {
    std::unique_ptr<xercesc::XMLValidator> validator;
};

#endif
