#ifndef DORVEX_SCHEMA_COMPLAINTS_H
#define DORVEX_SCHEMA_COMPLAINTS_H

#include <string_view>

/// What the way from a schema to its records has to say, each message once. All go to standard
/// error as one counted line and stop nothing; a name is shown as the schema writes it.

/// The document: there is none, or none with a `schema` element.
void ReportMissingDocument();
void ReportMissingSchema();
void ReportQualifiedAttributes();

/// The head elements: none, several, or a chosen one that is not there.
void ReportNoHead();
void ReportSeveralHeads();
void ReportUndeclaredHead(std::string_view name);

/// How a record or the whole run ended.
void ReportTooManyItems(std::string_view record);
void ReportTooComplex(std::string_view record);
void ReportConverted(std::size_t written, std::size_t heads);

/// Names that lead nowhere, to something that has no COBOL form, or back to where they stand.
void ReportMissingReference(std::string_view reference);
void ReportMissingAttribute(std::string_view reference);
void ReportMissingMember(std::string_view type);
void ReportUnsupportedType(std::string_view type);
void ReportRecursion(std::string_view reference);

/// Constructs that are left out or passed over.
void ReportUnconstrainedType(std::string_view declaration);
void ReportSubstitutionGroup();
void ReportWildcard();
void ReportLostList(std::string_view base);
void ReportTooDeep(std::string_view name);

/// Facets that COBOL cannot express. `facet` is the tag's local name, `value` what white space is
/// to become.
void ReportPattern(std::string_view item);
void ReportRange(std::string_view facet, std::string_view item);
void ReportWhiteSpace(std::string_view value, std::string_view item);

#endif
