// Element and attribute declarations: where record items are born.

#include <iostream>

#include "schema/ActiveGuard.h"
#include "schema/KTCOBOLGenerator.h"
#include "schema/Occurrence.h"
#include "support/Console.h"

namespace {

std::string HeadKey(std::string_view name, std::string_view uri) {
    std::string key(name);
    key += '\n';
    key += uri;
    return key;
}

}  // namespace

/// What tells the two kinds of declaration apart.
struct CKTCOBOLGenerator::DeclarationTraits {
    DeclarationList list;
    bool isAttribute;
    std::string_view notFoundStart;
    std::string_view notFoundEnd;
};

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessElementElement(CKTXMLElement* element, unsigned level,
                                                             unsigned indent, Item** current) {
    static constexpr DeclarationTraits kElement = {
        ELEMENTS, false, "Error : Cannot find referenced element ",
        ".  Element will not be converted to COBOL record item."};
    if (IsNever(element)) {
        return *current;
    }
    return ProcessDeclaration(element, kElement, level, indent, current);
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessAttributeElement(CKTXMLElement* element,
                                                               unsigned level, unsigned indent,
                                                               Item** current) {
    static constexpr DeclarationTraits kAttribute = {ATTRIBUTES, true,
                                                     "Error : Cannot find group reference ", ""};
    std::string use;
    if (findAttrByName(element, "use", use) && use == "prohibited") {
        return nullptr;
    }
    return ProcessDeclaration(element, kAttribute, level, indent, current);
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessDeclaration(CKTXMLElement* element,
                                                          const DeclarationTraits& traits,
                                                          unsigned level, unsigned indent,
                                                          Item** current) {
    Item* item = *current;
    const bool reused = item != nullptr && item->m_bIsReference &&
                        getElementType(item->m_pSchemaElement) == getElementType(element);
    if (!reused) {
        std::string shownName;
        if (!findAttrByName(element, "name", shownName)) {
            findAttrByName(element, "ref", shownName);
        }
        item = MakeItem(*current, shownName, level, indent);
        if (item == nullptr) {
            return nullptr;
        }
        item->m_bIsAttribute = traits.isAttribute;
    }
    FillFromDeclaration(item, element, reused);
    // A reused item is filled on behalf of the reference, which has to learn of its removal.
    Item* own = item;
    Item** cursor = reused ? current : &own;
    const bool filled = FillContent(element, traits, level, indent, cursor);
    if (*cursor != item) {
        return nullptr;
    }
    if (!filled && !reused) {
        RemoveItem(item);
    }
    return filled ? item : nullptr;
}

void CKTCOBOLGenerator::FillFromDeclaration(Item* item, const CKTXMLElement* element,
                                            bool reused) const {
    item->m_pSchemaElement = element;
    item->m_bIsReference = false;
    if (!reused) {
        if (!findAttrByName(element, "minOccurs", item->m_sMinOccurs)) {
            item->m_sMinOccurs = "1";
        }
        findAttrByName(element, "maxOccurs", item->m_sMaxOccurs);
    }
    if (!findAttrByName(element, "default", item->m_sValue)) {
        findAttrByName(element, "fixed", item->m_sValue);
    }
    std::string name;
    if (findAttrByName(element, "name", name)) {
        Item::setCOBOLDataName(item->m_sDataName, name);
        Item::setCOBOLDataName(item->m_sCountInName, name + "-count");
        item->m_sXMLName = std::move(name);
    }
    getElementNamespace(element, item->m_sNamespace);
}

bool CKTCOBOLGenerator::FillContent(CKTXMLElement* element, const DeclarationTraits& traits,
                                    unsigned level, unsigned indent, Item** cursor) {
    std::string ref;
    if (findAttrByName(element, "ref", ref)) {
        return FillFromReference(element, ref, traits, level, indent, cursor);
    }
    if (!traits.isAttribute && elementHasSubGroup(*cursor)) {
        WriteLine(std::cerr, {"Warning : substitionGroup encountered"});
    }
    std::string type;
    if (findAttrByName(element, "type", type)) {
        return FillFromType(element, type, traits, level, indent, cursor);
    }
    WalkChildren(element, level, indent, cursor);
    return true;
}

bool CKTCOBOLGenerator::FillFromReference(const CKTXMLElement* element, const std::string& ref,
                                          const DeclarationTraits& traits, unsigned level,
                                          unsigned indent, Item** cursor) {
    CKTXMLElement* target = findElementByName(element, ref, traits.list);
    if (target == nullptr) {
        WriteLine(std::cerr, {traits.notFoundStart, ref, traits.notFoundEnd});
        return false;
    }
    if (!traits.isAttribute && isRecursivePattern(*cursor)) {
        WriteLine(std::cerr,
                  {"Error : Cannot convert recursive reference of ", ref, " to COBOL record"});
        return false;
    }
    (*cursor)->m_bIsReference = true;
    return getCOBOLFromSchema(target, level, indent, cursor) != nullptr;
}

bool CKTCOBOLGenerator::FillFromType(const CKTXMLElement* element, const std::string& type,
                                     const DeclarationTraits& traits, unsigned level,
                                     unsigned indent, Item** cursor) {
    Item* item = *cursor;
    if (ConvertBuiltIn(item, element, type)) {
        return true;
    }
    CKTXMLElement* definition = FindType(element, type);
    if (definition == nullptr) {
        WriteLine(std::cerr,
                  {"Warning : An unsupported type ", type,
                   " has been referenced.  Element will not be converted to COBOL record "
                   "item."});
        return false;
    }
    if (!traits.isAttribute && isRecursivePattern(item)) {
        WriteLine(std::cerr,
                  {"Error : Cannot convert recursive reference of ", type, " to COBOL record"});
        return false;
    }
    const CKTActiveGuard active(m_ActiveTypes, ActiveType(item, definition));
    getCOBOLFromSchema(definition, level, indent, cursor);
    return true;
}

bool CKTCOBOLGenerator::isRecursivePattern(const Item* item) {
    if (item == nullptr) {
        return false;
    }
    const CKTXMLElement* declaration = item->m_pSchemaElement;
    const CKTXMLElement* target = nullptr;
    std::string name;
    if (findAttrByName(declaration, "ref", name)) {
        target = findElementByName(declaration, name, ELEMENTS);
    } else if (findAttrByName(declaration, "type", name)) {
        target = findElementByName(declaration, name, COMPLEX_TYPES);
    }
    if (target == nullptr) {
        return false;
    }
    for (const Item* up = item->m_pParent; up != nullptr; up = up->m_pParent) {
        if (up->m_pSchemaElement == target || up->m_pSourceElement == target) {
            return true;
        }
    }
    return false;
}

bool CKTCOBOLGenerator::elementHasSubGroup(const Item* item) {
    if (item == nullptr || m_pDocument == nullptr) {
        return false;
    }
    if (!m_bSubstitutionHeadsKnown) {
        m_bSubstitutionHeadsKnown = true;
        for (const CKTXMLElement* member : m_pDocument->getList(SUBSTITUTION_MEMBERS)) {
            std::string uri;
            const std::string& head = member->getAttribute("substitutionGroup")->getValue();
            if (getTypeNamespace(member, head, uri)) {
                m_SubstitutionHeads.insert(HeadKey(CKTXMLNode::getNonQualifiedName(head), uri));
            }
        }
    }
    return !m_SubstitutionHeads.empty() &&
           m_SubstitutionHeads.contains(HeadKey(item->m_sXMLName, item->m_sNamespace));
}
