#ifndef DORVEX_XML_NAMESPACES_H
#define DORVEX_XML_NAMESPACES_H

/// The namespace of XML Schema itself.
inline constexpr const char* kSchemaNamespace = "http://www.w3.org/2001/XMLSchema";

#endif
