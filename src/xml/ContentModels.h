#ifndef DORVEX_XML_CONTENTMODELS_H
#define DORVEX_XML_CONTENTMODELS_H

#include <string>

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class SchemaGrammar;
XERCES_CPP_NAMESPACE_END

/// Says whether validation against every type of `grammar` is bounded: the library writes a model
/// group out as often as it may repeat, counted with the groups around it. If not, `typeName`
/// becomes the local name of a type whose content repeats too often, which for an anonymous type is
/// one of the library's making. Reports nothing.
bool AreContentModelsBounded(const xercesc::SchemaGrammar& grammar, std::u16string& typeName);

#endif
