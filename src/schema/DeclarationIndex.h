#ifndef DORVEX_SCHEMA_DECLARATIONINDEX_H
#define DORVEX_SCHEMA_DECLARATIONINDEX_H

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

#include "schema/KTXMLSchemaDoc.h"

/// Finds global declarations by namespace and name at the same cost however many there are. For a
/// namespace it looks through the documents imported for it, in the order of the main document's
/// pairs, then through the main document's declarations that belong to it, then, for the main
/// target namespace, through the main document. Without a namespace it looks through the main
/// document alone: what belongs to no namespace comes first, then what belongs to the main one,
/// then the rest.
class CKTDeclarationIndex {
public:
    /// Indexes `main` (borrowed) and what it imports. Declarations whose namespace is written
    /// nowhere above them belong to `defaultNamespace`.
    CKTDeclarationIndex(const CKTXMLSchemaDoc& main, std::string_view defaultNamespace);

    /// The first declaration of that name in the list COMPLEX_TYPES to REDEFINED; null for none.
    [[nodiscard]] CKTXMLElement* Find(std::string_view uri, std::string_view name,
                                      DeclarationList list) const;

private:
    using NameMap = std::unordered_map<std::string_view, CKTXMLElement*>;
    using ListMaps = std::array<NameMap, REDEFINED + 1>;

    static CKTXMLElement* FindIn(const NameMap& names, std::string_view name);
    static void AddAll(ListMaps& maps, const CKTXMLSchemaDoc& doc);

    const CKTXMLSchemaDoc& m_Main;
    ListMaps m_MainMaps;
    ListMaps m_UnqualifiedMaps;
    std::unordered_map<std::string, ListMaps> m_NamespaceMaps;
};

#endif
