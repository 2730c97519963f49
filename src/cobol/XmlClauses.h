#ifndef DORVEX_COBOL_XMLCLAUSES_H
#define DORVEX_COBOL_XMLCLAUSES_H

#include <string_view>

/// The words of the XML clauses, which both directions write behind an entry's own clauses: each
/// with the blank before it and, where a literal follows, with its opening mark.
inline constexpr std::string_view kIdentifiedBy = " identified by \"";
inline constexpr std::string_view kNamespaceIs = " namespace is \"";
inline constexpr std::string_view kIsAttribute = " is attribute";
inline constexpr std::string_view kCountIn = " count in ";

#endif
