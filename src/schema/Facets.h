#ifndef DORVEX_SCHEMA_FACETS_H
#define DORVEX_SCHEMA_FACETS_H

#include <unordered_set>

class CKTRecordTree;
class CKTXMLElement;
struct OpenItem;

/// Restrictions whose enumerations are known to differ from each other.
using DistinctEnumerations = std::unordered_set<const CKTXMLElement*>;

/// Applies the facets below `restriction` to the item: lengths and digits to its picture,
/// enumerations as condition names that `records` makes. Facets that COBOL cannot express are
/// warnings. `distinct` is added to, so that values are compared once.
void ApplyFacets(OpenItem& open, const CKTXMLElement& restriction, CKTRecordTree& records,
                 DistinctEnumerations& distinct);

/// The same without enumerations, which are passed over.
void ApplyValueFacets(OpenItem& open, const CKTXMLElement& restriction);

#endif
