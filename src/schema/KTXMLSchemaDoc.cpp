// The lists of a schema document, each filled in one pass over the global declarations. Included
// documents have no lists that last: their declarations join those of the main one.

#include "schema/KTXMLSchemaDoc.h"

#include <array>
#include <optional>
#include <utility>

#include "schema/SchemaSet.h"

namespace {

constexpr std::array kListedTags = {
    std::pair{"complexType", COMPLEX_TYPES},
    std::pair{"simpleType", SIMPLE_TYPES},
    std::pair{"group", GROUPS},
    std::pair{"attributeGroup", ATTRIBUTE_GROUPS},
    std::pair{"element", ELEMENTS},
    std::pair{"attribute", ATTRIBUTES},
};

}  // namespace

CKTXMLSchemaDoc::CKTXMLSchemaDoc(CKTXMLElement* root, CKTXMLSchemaDoc* target, std::string location,
                                 CKTSchemaSet& set)
    : CKTXMLSchemaDoc(set, target == nullptr ? this : target, std::move(location)) {
    if (root == nullptr) {
        return;
    }
    std::optional<CKTSchemaSet::CKTLoadGuard> loading;
    if (target == nullptr) {
        // An import of the main file means this document, and an include of it adds nothing.
        m_Set.RegisterImport(m_Place.baseFile, this);
        loading.emplace(m_Set, m_Place.baseFile);
    }
    PreProcessSchema(root, target == nullptr ? this : target);
}

CKTXMLSchemaDoc::CKTXMLSchemaDoc(CKTSchemaSet& set, CKTXMLSchemaDoc* owner, std::string location)
    : m_Set(set),
      m_sSchemaLocation(std::move(location)),
      m_Place{owner, m_sSchemaLocation, m_sSchemaLocation} {}

bool CKTXMLSchemaDoc::InitializeElementLists() {
    if (m_pSchemaElement == nullptr || m_pSchemaElement->getFirstChildElem() == nullptr) {
        return false;
    }
    for (CKTXMLAttribute* a = m_pSchemaElement->getFirstAttr(); a != nullptr;
         a = a->getNextSibling()) {
        const std::string_view local = CKTXMLNode::getNonQualifiedName(a->getName());
        if (local == "targetNamespace") {
            m_sTargetNamespace = a->getValue();
        } else if (local == "xmlns" || CKTXMLNode::getNameQualifier(a->getName()) == "xmlns") {
            m_NamespaceDeclList.push_back(a);
        }
    }
    // The search goes along the siblings, so it begins at the first of them.
    CKTXMLElement* first = m_pSchemaElement->getFirstChildElem();
    for (const auto& [name, list] : kListedTags) {
        first->findElement(name, compareElemByName, ListOf(list), false);
    }
    first->findElement("substitutionGroup", compareElemByAttrType, ListOf(SUBSTITUTION_MEMBERS),
                       false);
    for (CKTXMLElement* element : ListOf(ELEMENTS)) {
        element->setNamespace(m_sTargetNamespace);
    }
    return true;
}

const CKTXMLSchemaDoc::ElementList& CKTXMLSchemaDoc::getList(DeclarationList list) const {
    return m_Lists.at(static_cast<std::size_t>(list) - COMPLEX_TYPES);
}

CKTXMLSchemaDoc::ElementList CKTXMLSchemaDoc::OwnDeclarations() const {
    ElementList own;
    if (m_pSchemaElement != nullptr) {
        for (CKTXMLElement* e = m_pSchemaElement->getFirstChildElem(); e != nullptr;
             e = e->getNextSibling()) {
            // They lie in this tree, but an imported document has brought them.
            if (!m_ForeignDeclarations.contains(e)) {
                own.push_back(e);
            }
        }
    }
    own.insert(own.end(), m_IncludedList.begin(), m_IncludedList.end());
    return own;
}

CKTXMLElement* CKTXMLSchemaDoc::getReplaced(const CKTXMLElement* redefinition) const {
    const auto found = m_Replaced.find(redefinition);
    return found == m_Replaced.end() ? nullptr : found->second;
}
