// What this room offers and no run calls: the walk asks the resolver, the facets and the tables
// themselves. They stay for whoever uses the room as a library, and forward to the same functions.

#include "schema/BuiltInTypes.h"
#include "schema/GeneratorState.h"
#include "schema/HeadElements.h"
#include "schema/KTCOBOLGenerator.h"
#include "schema/KTXMLNamespaceSchemaPair.h"
#include "schema/SchemaVocabulary.h"

namespace {

/// Copies what was found; `uri` stays as it is when nothing was.
bool Answered(const std::string* found, std::string& uri) {
    if (found != nullptr) {
        uri = *found;
    }
    return found != nullptr;
}

}  // namespace

bool findAttrByName(const CKTXMLElement* e, std::string_view name, std::string* value) {
    const std::string* found = AttributeValue(e, name);
    if (value != nullptr) {
        *value = found == nullptr ? std::string() : *found;
    }
    return found != nullptr;
}

bool findAttrByValue(const CKTXMLElement* e, std::string_view value) {
    // An empty value is looked for nowhere, though attributes may have it.
    if (value.empty()) {
        return false;
    }
    for (const CKTXMLAttribute* a = e->getFirstAttr(); a != nullptr; a = a->getNextSibling()) {
        if (a->getValue() == value) {
            return true;
        }
    }
    return false;
}

CKTXMLSchemaDoc* CKTXMLNamespaceSchemaPair::findDocumentByNamespace(
    std::string_view uri, const std::vector<CKTXMLNamespaceSchemaPair*>& pairs) {
    for (const CKTXMLNamespaceSchemaPair* pair : pairs) {
        if (pair->m_sNamespaceURI == uri) {
            return pair->m_pSchemaDoc;
        }
    }
    return nullptr;
}

bool CKTCOBOLGenerator::convertXMLtoCOBOL(CKTCOBOLRecordItem* item, const CKTXMLElement* context,
                                          const std::string& typeName) const {
    const BuiltInForm* form =
        item == nullptr ? nullptr : m_Walk.Names().FindBuiltIn(context, typeName);
    if (form == nullptr) {
        return false;
    }
    ApplyBuiltIn(*item, *form);
    // The picture is set in either case; only plain text and counts are answered with true.
    return form->isTextOrCount;
}

bool CKTCOBOLGenerator::isSupportedDefaultSchemaType(const CKTXMLElement* context,
                                                     std::string& typeName) const {
    const std::string* uri = m_Walk.Names().FindTypeNamespace(context, typeName);
    if (uri == nullptr || !IsSchemaNamespace(*uri)) {
        return false;
    }
    typeName = std::string(CKTXMLNode::getNonQualifiedName(typeName));
    return FindBuiltInForm(typeName) != nullptr;
}

bool CKTCOBOLGenerator::getNamespaceURI(const CKTXMLElement* e, std::string_view attrName,
                                        std::string& uri) const {
    return Answered(m_Walk.Names().FindNamespace(e, attrName), uri);
}

bool CKTCOBOLGenerator::getElementNamespace(const CKTXMLElement* e, std::string& uri) const {
    return getNamespaceURI(e, "targetNamespace", uri);
}

bool CKTCOBOLGenerator::getTypeNamespace(const CKTXMLElement* context, std::string_view qname,
                                         std::string& uri) const {
    return Answered(m_Walk.Names().FindTypeNamespace(context, qname), uri);
}

bool CKTCOBOLGenerator::getTypeNamespace(std::string_view qname, std::string& uri) const {
    return getTypeNamespace(GeneratorState().currentSchemaElement, qname, uri);
}

CKTXMLElement* CKTCOBOLGenerator::findElementByName(const CKTXMLElement* context,
                                                    std::string_view qname, DeclarationList list) {
    return m_Walk.Names().FindDeclaration(context, qname, list);
}

CKTXMLElement* CKTCOBOLGenerator::findElementByName(const std::vector<CKTXMLElement*>& list,
                                                    std::string_view name) {
    for (CKTXMLElement* e : list) {
        const std::string* own = AttributeValue(e, "name");
        if (own != nullptr && *own == CKTXMLNode::getNonQualifiedName(name)) {
            return e;
        }
    }
    return nullptr;
}

bool CKTCOBOLGenerator::findAttrByName(const CKTXMLElement* e, std::string_view name,
                                       std::string& value) {
    return ::findAttrByName(e, name, &value);
}

FacetKind CKTCOBOLGenerator::getFacetType(const CKTXMLElement* e) {
    return e == nullptr ? FacetKind::None : FacetKindOf(e->getName());
}

bool CKTCOBOLGenerator::compareElemByRefs(const CKTXMLElement* e, std::string_view name) const {
    return IsReferenceTo(m_Walk.Names(), e, name);
}

void CKTCOBOLGenerator::ProcessElementFacets(CKTCOBOLRecordItem* item,
                                             const CKTXMLElement* restriction) {
    if (item == nullptr) {
        return;
    }
    // Without one the facets are those of the definition that the item was made from.
    restriction = restriction != nullptr ? restriction : item->m_pSourceElement;
    if (restriction != nullptr) {
        OpenItem open(item);
        m_Walk.TakeFacets(open, *restriction);
    }
}
