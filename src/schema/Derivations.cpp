// Derivation by restriction and extension.

#include <algorithm>
#include <iostream>

#include "schema/ActiveGuard.h"
#include "schema/KTCOBOLGenerator.h"
#include "support/Console.h"

namespace {

/// What a derivation stands in; Other for one that stands in nothing.
GeneratorKind KindAbove(const CKTXMLElement* derivation) {
    return derivation->isParent() ? GeneratorKindOf(derivation->getParent()->getName())
                                  : GeneratorKind::Other;
}

void SetContentKind(CKTCOBOLRecordItem* item, const CKTXMLElement* derivation) {
    const GeneratorKind parent = KindAbove(derivation);
    if (parent == GeneratorKind::SimpleContent) {
        item->m_nContentKind = CKTCOBOLRecordItem::SIMPLE_CONTENT;
    } else if (parent == GeneratorKind::ComplexContent) {
        item->m_nContentKind = CKTCOBOLRecordItem::COMPLEX_CONTENT;
    }
}

CKTXMLElement* FindChild(const CKTXMLElement* e, GeneratorKind kind) {
    for (CKTXMLElement* child = e->getFirstChildElem(); child != nullptr;
         child = child->getNextSibling()) {
        if (GeneratorKindOf(child->getName()) == kind) {
            return child;
        }
    }
    return nullptr;
}

/// The restriction or extension that says what a type's simple value is; null when the value is a
/// list, a union or elements.
const CKTXMLElement* FindValueDerivation(const CKTXMLElement* type) {
    const CKTXMLElement* holder = GeneratorKindOf(type->getName()) == GeneratorKind::ComplexType
                                      ? FindChild(type, GeneratorKind::SimpleContent)
                                      : type;
    if (holder == nullptr) {
        return nullptr;
    }
    const CKTXMLElement* restriction = FindChild(holder, GeneratorKind::Restriction);
    return restriction != nullptr ? restriction : FindChild(holder, GeneratorKind::Extension);
}

void ReportMissingBase(const std::string& base) {
    WriteLine(std::cerr, {"Error : Cannot find referenced element ", base,
                          ".  Element will not be converted to COBOL record item."});
}

}  // namespace

/// While it lives, a derivation that is simple content is the innermost one.
class CKTCOBOLGenerator::CKTSimpleContent {
public:
    CKTSimpleContent(CKTCOBOLGenerator& generator, const CKTXMLElement* derivation)
        : m_Generator(generator), m_pOuterBase(generator.m_pSimpleBase) {
        if (KindAbove(derivation) == GeneratorKind::SimpleContent) {
            generator.m_pSimpleBase = AttributeValue(derivation, "base");
        }
    }
    ~CKTSimpleContent() { m_Generator.m_pSimpleBase = m_pOuterBase; }
    CKTSimpleContent(const CKTSimpleContent&) = delete;
    CKTSimpleContent& operator=(const CKTSimpleContent&) = delete;

private:
    CKTCOBOLGenerator& m_Generator;
    const std::string* m_pOuterBase;
};

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessElementRestriction(const CKTXMLElement* restriction,
                                                                 unsigned level, unsigned indent,
                                                                 Item** current) {
    Item* item = *current;
    SetContentKind(item, restriction);
    const CKTSimpleContent simpleContent(*this, restriction);
    const std::string* base = AttributeValue(restriction, "base");
    if (base == nullptr) {
        RestrictOwnContent(restriction, level, indent, current);
        return *current;
    }
    const NameMeaning& meaning = MeaningOfBase(restriction, *base);
    if (meaning.builtIn != nullptr) {
        TakeBuiltIn(item, *meaning.builtIn);
        ProcessElementFacets(item, restriction);
    } else if (IsListType(restriction, *base)) {
        NoteList(item, m_pSimpleBase);
        WalkChildren(restriction, level, indent, current);
    } else if (IsOpenType(restriction, *base)) {
        WalkChildren(restriction, level, indent, current);
    } else if (meaning.declaration != nullptr) {
        RestrictNamedType(restriction, meaning.declaration, *base, level, indent, current);
    } else {
        ReportMissingBase(*base);
        WalkChildren(restriction, level, indent, current);
    }
    return *current;
}

void CKTCOBOLGenerator::RestrictNamedType(const CKTXMLElement* restriction, CKTXMLElement* base,
                                          const std::string& name, unsigned level, unsigned indent,
                                          Item** current) {
    Item* item = *current;
    const CKTXMLElement* first = restriction->getFirstChildElem();
    const bool complexBase = getElementType(base) == GeneratorKind::ComplexType;
    const bool ownContent =
        first != nullptr && (complexBase || getElementType(first) == GeneratorKind::SimpleType);
    if (ownContent) {
        if (complexBase && item->m_nContentKind == Item::SIMPLE_CONTENT) {
            TakeBaseValue(item, base);
        }
        RestrictOwnContent(restriction, level, indent, current);
        return;
    }
    WalkBaseType(base, name, level, indent, current);
    if (*current == item) {
        ProcessElementFacets(item, restriction);
    }
}

/// Takes what a restriction holds itself: an anonymous type that its facets narrow comes first,
/// then the facets, then the rest.
void CKTCOBOLGenerator::RestrictOwnContent(const CKTXMLElement* restriction, unsigned level,
                                           unsigned indent, Item** current) {
    Item* item = *current;
    CKTXMLElement* anonymous = FindChild(restriction, GeneratorKind::SimpleType);
    if (anonymous != nullptr) {
        getCOBOLFromSchema(anonymous, level, indent, current);
    }
    if (*current == item) {
        ProcessElementFacets(item, restriction);
    }
    for (CKTXMLElement* child = restriction->getFirstChildElem();
         child != nullptr && *current == item && m_Excess == Excess::None;
         child = child->getNextSibling()) {
        if (child != anonymous) {
            getCOBOLFromSchema(child, level, indent, current);
        }
    }
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessElementExtension(const CKTXMLElement* extension,
                                                               unsigned level, unsigned indent,
                                                               Item** current) {
    Item* item = *current;
    SetContentKind(item, extension);
    const CKTSimpleContent simpleContent(*this, extension);
    const std::string* base = AttributeValue(extension, "base");
    if (base == nullptr) {
        return item;
    }
    const NameMeaning& meaning = MeaningOfBase(extension, *base);
    if (meaning.builtIn != nullptr) {
        TakeBuiltIn(item, *meaning.builtIn);
    } else if (IsListType(extension, *base)) {
        NoteList(item, m_pSimpleBase);
    } else if (!IsOpenType(extension, *base)) {
        if (meaning.declaration == nullptr) {
            ReportMissingBase(*base);
            return nullptr;
        }
        WalkBaseType(meaning.declaration, *base, level, indent, current);
    }
    if (*current == item) {
        WalkChildren(extension, level, indent, current);
    }
    return *current;
}

void CKTCOBOLGenerator::WalkBaseType(CKTXMLElement* type, const std::string& name, unsigned level,
                                     unsigned indent, Item** current) {
    const CKTActiveGuard active(m_ActiveTypes, ActiveType(*current, type));
    if (active.IsFirst()) {
        getCOBOLFromSchema(type, level, indent, current);
    } else {
        WriteLine(std::cerr,
                  {"Error : Cannot convert recursive reference of ", name, " to COBOL record"});
    }
}

/// Gives `item` the built-in type at the end of the base chain of `type` and the facets on the way,
/// without the attributes and condition names of the base. A list at its end is noted.
void CKTCOBOLGenerator::TakeBaseValue(Item* item, CKTXMLElement* type) {
    std::vector<const CKTXMLElement*> steps;
    const std::string* simpleBase = m_pSimpleBase;
    bool converted = false;
    while (type != nullptr && !converted) {
        const CKTXMLElement* step = FindValueDerivation(type);
        if (step == nullptr) {
            if (FindChild(type, GeneratorKind::List) != nullptr) {
                NoteList(item, simpleBase);
            }
            return;
        }
        if (m_nNesting + steps.size() >= kMaxNesting ||
            ++m_nElementsVisited > kMaxElementsVisited) {
            m_Excess = Excess::TooComplex;
            return;
        }
        steps.push_back(step);
        const std::string* base = AttributeValue(step, "base");
        if (KindAbove(step) == GeneratorKind::SimpleContent) {
            simpleBase = base;
        }
        type = getElementType(step) == GeneratorKind::Restriction
                   ? FindChild(step, GeneratorKind::SimpleType)
                   : nullptr;
        if (type != nullptr || base == nullptr) {
            continue;
        }
        const NameMeaning& meaning = MeaningOfBase(step, *base);
        converted = meaning.builtIn != nullptr;
        if (converted) {
            TakeBuiltIn(item, *meaning.builtIn);
        } else if (IsListType(step, *base)) {
            NoteList(item, simpleBase);
        }
        type = meaning.declaration;
    }
    for (auto step = steps.rbegin(); converted && step != steps.rend(); ++step) {
        if (getElementType(*step) == GeneratorKind::Restriction) {
            ApplyFacets(item, *step, false);
        }
    }
}
