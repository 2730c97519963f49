#ifndef DORVEX_SCHEMA_HEADELEMENTS_H
#define DORVEX_SCHEMA_HEADELEMENTS_H

#include <string>
#include <string_view>
#include <vector>

class CKTNameResolver;
class CKTXMLElement;
class CKTXMLSchemaDoc;

/// Appends to `heads` the global elements of these names or, when there are no names, those that
/// nothing refers to. A name that is not declared is an error line; to find none or several without
/// a choice is a message, too.
void AppendHeads(const CKTXMLSchemaDoc& document, const CKTNameResolver& names,
                 const std::vector<std::string>& chosen, std::vector<CKTXMLElement*>& heads);

/// Says whether `e` is an `element` whose `ref` has the local name `name` and the namespace of `e`.
bool IsReferenceTo(const CKTNameResolver& names, const CKTXMLElement* e, std::string_view name);

#endif
