// Element and attribute declarations: where record items are born.

#include <array>
#include <iostream>

#include "schema/ActiveGuard.h"
#include "schema/KTCOBOLGenerator.h"
#include "schema/Occurrence.h"
#include "support/Console.h"

/// What tells the two kinds of declaration apart.
struct CKTCOBOLGenerator::DeclarationTraits {
    DeclarationList list;
    bool isAttribute;
    std::string_view notFoundStart;
    std::string_view notFoundEnd;
};

/// The attributes of a declaration that count, read in one pass; null for those that are not there.
struct CKTCOBOLGenerator::WrittenDeclaration {
    const std::string* name = nullptr;
    const std::string* ref = nullptr;
    const std::string* type = nullptr;
    const std::string* minOccurs = nullptr;
    const std::string* maxOccurs = nullptr;
    const std::string* defaultValue = nullptr;
    const std::string* fixed = nullptr;
    const std::string* use = nullptr;

    explicit WrittenDeclaration(const CKTXMLElement* declaration);
};

CKTCOBOLGenerator::WrittenDeclaration::WrittenDeclaration(const CKTXMLElement* declaration) {
    using Field = const std::string* WrittenDeclaration::*;
    static constexpr std::array<std::pair<std::string_view, Field>, 8> kFields = {{
        {"name", &WrittenDeclaration::name},
        {"ref", &WrittenDeclaration::ref},
        {"type", &WrittenDeclaration::type},
        {"minOccurs", &WrittenDeclaration::minOccurs},
        {"maxOccurs", &WrittenDeclaration::maxOccurs},
        {"default", &WrittenDeclaration::defaultValue},
        {"fixed", &WrittenDeclaration::fixed},
        {"use", &WrittenDeclaration::use},
    }};
    for (const CKTXMLAttribute* a = declaration->getFirstAttr(); a != nullptr;
         a = a->getNextSibling()) {
        for (const auto& [attributeName, field] : kFields) {
            if (a->getName() == attributeName) {
                this->*field = &a->getValue();
                break;
            }
        }
    }
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessElementElement(CKTXMLElement* element, unsigned level,
                                                             unsigned indent, Item** current) {
    static constexpr DeclarationTraits kElement = {
        ELEMENTS, false, "Error : Cannot find referenced element ",
        ".  Element will not be converted to COBOL record item."};
    const WrittenDeclaration written(element);
    if (IsNever(written.maxOccurs)) {
        return *current;
    }
    return ProcessDeclaration(element, kElement, written, level, indent, current);
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessAttributeElement(CKTXMLElement* element,
                                                               unsigned level, unsigned indent,
                                                               Item** current) {
    static constexpr DeclarationTraits kAttribute = {ATTRIBUTES, true,
                                                     "Error : Cannot find group reference ", ""};
    const WrittenDeclaration written(element);
    if (written.use != nullptr && *written.use == "prohibited") {
        return nullptr;
    }
    return ProcessDeclaration(element, kAttribute, written, level, indent, current);
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessDeclaration(CKTXMLElement* element,
                                                          const DeclarationTraits& traits,
                                                          const WrittenDeclaration& written,
                                                          unsigned level, unsigned indent,
                                                          Item** current) {
    Item* item = *current;
    const bool reused = item != nullptr && item->m_bIsReference &&
                        getElementType(item->m_pSchemaElement) == getElementType(element);
    if (!reused) {
        const std::string* shown = written.name != nullptr ? written.name : written.ref;
        item = MakeItem(*current, shown == nullptr ? std::string_view() : *shown, level, indent);
        if (item == nullptr) {
            return nullptr;
        }
        item->m_bIsAttribute = traits.isAttribute;
    }
    FillFromDeclaration(item, element, written, reused);
    // A reused item is filled on behalf of the reference, which has to learn of its removal.
    Item* own = item;
    Item** cursor = reused ? current : &own;
    const bool filled = FillContent(element, traits, written, level, indent, cursor);
    if (*cursor != item) {
        return nullptr;
    }
    if (!filled && !reused) {
        RemoveItem(item);
    }
    return filled ? item : nullptr;
}

void CKTCOBOLGenerator::FillFromDeclaration(Item* item, const CKTXMLElement* element,
                                            const WrittenDeclaration& written, bool reused) {
    item->m_pSchemaElement = element;
    item->m_bIsReference = false;
    if (!reused) {
        item->m_sMinOccurs = "1";
        if (written.minOccurs != nullptr) {
            item->m_sMinOccurs.Share(*written.minOccurs);
        }
        if (written.maxOccurs != nullptr) {
            item->m_sMaxOccurs.Share(*written.maxOccurs);
        }
    }
    item->m_sValue = std::string_view();
    if (written.defaultValue != nullptr) {
        item->m_sValue.Share(*written.defaultValue);
    } else if (written.fixed != nullptr) {
        item->m_sValue.Share(*written.fixed);
    }
    const DeclaredNames& names = NamesOf(element, written.name);
    if (written.name != nullptr) {
        item->m_sXMLName.Share(*written.name);
        item->m_sDataName.Share(names.dataName);
        item->m_sCountInName.Share(names.countInName);
    }
    item->m_sNamespace.Share(*names.uri);
}

/// The names that the items of `element` take from it; `name` is its `name`, null for a reference.
const CKTCOBOLGenerator::DeclaredNames& CKTCOBOLGenerator::NamesOf(const CKTXMLElement* element,
                                                                   const std::string* name) {
    const auto [found, isNew] = m_DeclaredNames.try_emplace(element);
    DeclaredNames& names = found->second;
    if (isNew) {
        names.uri = FindNamespace(element, "targetNamespace");
        if (name != nullptr) {
            CKTItemText dataName;
            Item::setCOBOLDataName(dataName, *name);
            names.dataName = dataName;
            names.countInName = names.dataName + "-count";
        }
    }
    return names;
}

bool CKTCOBOLGenerator::FillContent(CKTXMLElement* element, const DeclarationTraits& traits,
                                    const WrittenDeclaration& written, unsigned level,
                                    unsigned indent, Item** cursor) {
    if (written.ref != nullptr) {
        return FillFromReference(element, *written.ref, traits, level, indent, cursor);
    }
    if (!traits.isAttribute && elementHasSubGroup(*cursor)) {
        WriteLine(std::cerr, {"Warning : substitionGroup encountered"});
    }
    if (written.type != nullptr) {
        return FillFromType(element, *written.type, traits, level, indent, cursor);
    }
    WalkChildren(element, level, indent, cursor);
    return true;
}

bool CKTCOBOLGenerator::FillFromReference(const CKTXMLElement* element, const std::string& ref,
                                          const DeclarationTraits& traits, unsigned level,
                                          unsigned indent, Item** cursor) {
    CKTXMLElement* target = FindReferenced(element, ref, traits.list);
    if (target == nullptr) {
        WriteLine(std::cerr, {traits.notFoundStart, ref, traits.notFoundEnd});
        return false;
    }
    if (!traits.isAttribute && isRecursivePattern(*cursor, target)) {
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
    const NameMeaning& meaning = MeaningOfType(element, type);
    if (meaning.builtIn != nullptr) {
        TakeBuiltIn(item, *meaning.builtIn);
        return true;
    }
    CKTXMLElement* definition = meaning.declaration;
    if (definition == nullptr) {
        WriteLine(std::cerr,
                  {"Warning : An unsupported type ", type,
                   " has been referenced.  Element will not be converted to COBOL record "
                   "item."});
        return false;
    }
    if (!traits.isAttribute && isRecursivePattern(item, meaning.complexType)) {
        WriteLine(std::cerr,
                  {"Error : Cannot convert recursive reference of ", type, " to COBOL record"});
        return false;
    }
    const CKTActiveGuard active(m_ActiveTypes, ActiveType(item, definition));
    getCOBOLFromSchema(definition, level, indent, cursor);
    return true;
}

/// Says whether `target`, which the declaration of `item` refers to or has as its complex type
/// (null for neither), is being converted above `item`.
bool CKTCOBOLGenerator::isRecursivePattern(const Item* item, const CKTXMLElement* target) {
    if (item == nullptr || target == nullptr) {
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
            const std::string& head = *AttributeValue(member, "substitutionGroup");
            if (const std::string* uri = FindTypeNamespace(member, head)) {
                m_SubstitutionHeads.emplace(CKTXMLNode::getNonQualifiedName(head), *uri);
            }
        }
    }
    return !m_SubstitutionHeads.empty() &&
           m_SubstitutionHeads.contains({item->m_sXMLName, item->m_sNamespace});
}
