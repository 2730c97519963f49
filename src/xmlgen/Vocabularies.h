#ifndef DORVEX_XMLGEN_VOCABULARIES_H
#define DORVEX_XMLGEN_VOCABULARIES_H

#include <string>

#include "xml/Markup.h"
#include "xml/Namespaces.h"

/// The namespaces of what the outputs are written in, besides XML Schema.
constexpr const char* kInstanceNamespace = "http://www.w3.org/2001/XMLSchema-instance";
constexpr const char* kMappingNamespace = "http://www.ostrel.com/schema/xml/v1.0/ktxmlmap.xsd";
constexpr const char* kServiceNamespace = "http://www.ostrel.com/schema/xml/v1.0/ktxml.xsd";

/// Adds the attributes of a root element in the namespace `uri`, whose schema is in `schemaFile`.
inline void AddRootAttributes(CKTMarkup& markup, const std::string& uri, const char* schemaFile) {
    markup.AddAttribute("xmlns", uri);
    markup.AddAttribute("xmlns:xsi", kInstanceNamespace);
    markup.AddAttribute("xsi:schemaLocation", uri + " " + schemaFile);
}

#endif
