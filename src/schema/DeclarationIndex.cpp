// Names to declarations, built once. The maps are filled in the order in which a search would look,
// and the first entry of a name stays. Three sorts of maps answer for the three cases: a namespace
// with a document or declarations of its own, the target namespace of the main document, and no
// namespace at all.

#include "schema/DeclarationIndex.h"

#include <set>
#include <utility>

namespace {

template <typename Add>
void ForEachDeclaration(const CKTXMLSchemaDoc& doc, Add add) {
    for (int list = COMPLEX_TYPES; list <= REDEFINED; ++list) {
        for (CKTXMLElement* e : doc.getList(static_cast<DeclarationList>(list))) {
            if (const std::string* name = AttributeValue(e, "name")) {
                add(static_cast<std::size_t>(list), std::string_view(*name), e);
            }
        }
    }
}

/// The namespace that `e` belongs to: the nearest `targetNamespace` at or above it as written, else
/// `defaultNamespace`.
std::string_view NamespaceOf(const CKTXMLElement* e, std::string_view defaultNamespace) {
    for (; e != nullptr; e = e->getParent()) {
        if (const std::string* uri = AttributeValue(e, "targetNamespace")) {
            return *uri;
        }
    }
    return defaultNamespace;
}

}  // namespace

CKTDeclarationIndex::CKTDeclarationIndex(const CKTXMLSchemaDoc& main,
                                         std::string_view defaultNamespace)
    : m_Main(main) {
    std::set<std::pair<std::string, const CKTXMLSchemaDoc*>> seen;
    for (const CKTXMLNamespaceSchemaPair* pair : main.getNamespaceSchemaPairs()) {
        // A document that was imported twice under one name adds nothing the second time.
        if (seen.emplace(pair->getNamespaceURI(), pair->getSchemaDoc()).second) {
            AddAll(m_NamespaceMaps[pair->getNamespaceURI()], *pair->getSchemaDoc());
        }
    }
    AddAll(m_MainMaps, main);
    ListMaps ofMainNamespace;
    ForEachDeclaration(main, [&](std::size_t list, std::string_view name, CKTXMLElement* e) {
        // What an imported schema includes lies in the main tree and is found by its own namespace.
        const std::string_view uri = NamespaceOf(e, defaultNamespace);
        m_NamespaceMaps[std::string(uri)].at(list).try_emplace(name, e);
        if (uri == main.getTargetNamespace()) {
            ofMainNamespace.at(list).try_emplace(name, e);
        }
        if (uri.empty()) {
            m_UnqualifiedMaps.at(list).try_emplace(name, e);
        }
    });
    for (std::size_t list = 0; list < m_MainMaps.size(); ++list) {
        // Insertion leaves the first entry of a name alone, so the order of these lines is the
        // order of the search.
        m_UnqualifiedMaps[list].insert(ofMainNamespace[list].begin(), ofMainNamespace[list].end());
        m_UnqualifiedMaps[list].insert(m_MainMaps[list].begin(), m_MainMaps[list].end());
    }
}

void CKTDeclarationIndex::AddAll(ListMaps& maps, const CKTXMLSchemaDoc& doc) {
    ForEachDeclaration(doc, [&](std::size_t list, std::string_view name, CKTXMLElement* e) {
        maps.at(list).try_emplace(name, e);
    });
}

CKTXMLElement* CKTDeclarationIndex::FindIn(const NameMap& names, std::string_view name) {
    const auto found = names.find(name);
    return found == names.end() ? nullptr : found->second;
}

CKTXMLElement* CKTDeclarationIndex::Find(std::string_view uri, std::string_view name,
                                         DeclarationList list) const {
    const auto place = static_cast<std::size_t>(list);
    if (uri.empty()) {
        return FindIn(m_UnqualifiedMaps.at(place), name);
    }
    const auto maps = m_NamespaceMaps.find(std::string(uri));
    CKTXMLElement* found =
        maps == m_NamespaceMaps.end() ? nullptr : FindIn(maps->second.at(place), name);
    return found == nullptr && uri == m_Main.getTargetNamespace()
               ? FindIn(m_MainMaps.at(place), name)
               : found;
}
