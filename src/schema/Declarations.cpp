// Element and attribute declarations: where record items are born. A declaration makes its item,
// fills it with what it says itself, and then takes its content from a reference, a named type or
// what stands below it. What a reference leads to fills the item of the reference. Occurrence is
// the exception: it stays that of the reference. A declaration that fails takes its item out again
// at once, so that nothing half made is ever written.

#include <array>
#include <string>
#include <utility>

#include "schema/ActiveGuard.h"
#include "schema/Complaints.h"
#include "schema/Handlers.h"
#include "schema/Occurrence.h"
#include "schema/SchemaVocabulary.h"

namespace {

/// What tells the two kinds of declaration apart.
struct DeclarationTraits {
    GeneratorKind kind;
    DeclarationList list;
    void (*reportMissing)(const std::string_view& reference);

    [[nodiscard]] bool IsAttribute() const { return kind == GeneratorKind::Attribute; }
};

constexpr DeclarationTraits kElement = {GeneratorKind::Element, ELEMENTS,
                                        Report<SchemaMessage::MissingReference, std::string_view>};
constexpr DeclarationTraits kAttribute = {
    GeneratorKind::Attribute, ATTRIBUTES,
    Report<SchemaMessage::MissingAttribute, std::string_view>};

/// The attributes of a declaration that count, read in one pass; null for those that are not there.
struct WrittenDeclaration {
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

WrittenDeclaration::WrittenDeclaration(const CKTXMLElement* declaration) {
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

/// Says whether `target`, which the declaration of `item` refers to or has as its complex type
/// (null for neither), is being converted above `item`.
// The search climbs the items and not the schema: a type may be used twice side by side, and only
// an item that stands in itself has no end. Attributes are never asked, they have no content to
// recur in.
bool isRecursivePattern(const CKTCOBOLRecordItem& item, const CKTXMLElement* target) {
    if (target == nullptr) {
        return false;
    }
    for (const CKTCOBOLRecordItem* up = item.m_pParent; up != nullptr; up = up->m_pParent) {
        if (up->m_pSchemaElement == target || up->m_pSourceElement == target) {
            return true;
        }
    }
    return false;
}

CKTCOBOLRecordItem* MakeDeclaredItem(CKTRecordTree& records, const DeclarationTraits& traits,
                                     const WrittenDeclaration& written,
                                     CKTCOBOLRecordItem* parent) {
    const std::string* shown = written.name != nullptr ? written.name : written.ref;
    CKTCOBOLRecordItem* item =
        records.MakeItem(parent, shown == nullptr ? std::string_view() : *shown);
    if (item != nullptr) {
        item->m_bIsAttribute = traits.IsAttribute();
        item->m_sMinOccurs = "1";
        if (written.minOccurs != nullptr) {
            item->m_sMinOccurs.Share(*written.minOccurs);
        }
        if (written.maxOccurs != nullptr) {
            item->m_sMaxOccurs.Share(*written.maxOccurs);
        }
    }
    return item;
}

/// Gives the item what the declaration says that is not about its occurrence, which stays that of
/// the reference.
void FillFromDeclaration(CKTNameResolver& resolver, const CKTXMLElement* declaration,
                         const WrittenDeclaration& written, CKTCOBOLRecordItem& item) {
    item.m_pSchemaElement = declaration;
    // A reference has been filled before, and its own default does not count.
    item.m_sValue = std::string_view();
    if (written.defaultValue != nullptr) {
        item.m_sValue.Share(*written.defaultValue);
    } else if (written.fixed != nullptr) {
        item.m_sValue.Share(*written.fixed);
    }
    const DeclaredNames& names = resolver.NamesOf(declaration, written.name);
    if (written.name != nullptr) {
        item.m_sXMLName.Share(*written.name);
        // Shared with every other item of the declaration, which outlives the record.
        item.m_sDataName.Share(names.dataName);
        item.m_sCountInName.Share(names.countInName);
    }
    item.m_sNamespace.Share(*names.uri);
}

Answer TakeReference(CKTWalk& walk, const CKTXMLElement* declaration, const std::string& ref,
                     const DeclarationTraits& traits, OpenItem& open) {
    CKTXMLElement* target = walk.Names().FindReferenced(declaration, ref, traits.list);
    if (target == nullptr) {
        traits.reportMissing(ref);
        return Answer::Nothing;
    }
    if (!traits.IsAttribute() && isRecursivePattern(*open.item, target)) {
        Report<SchemaMessage::Recursion>(ref);
        return Answer::Nothing;
    }
    // The next declaration that is walked fills this item instead of making one.
    open.isReference = true;
    return walk.Walk(target, open);
}

Answer TakeNamedType(CKTWalk& walk, const CKTXMLElement* declaration, const std::string& type,
                     const DeclarationTraits& traits, OpenItem& open) {
    const NameMeaning& meaning = walk.Names().MeaningOfType(declaration, type);
    if (meaning.builtIn != nullptr) {
        TakeBuiltIn(*open.item, *meaning.builtIn);
        return Answer::Made;
    }
    CKTXMLElement* definition = meaning.declaration;
    if (definition == nullptr) {
        Report<SchemaMessage::UnsupportedType>(type);
        return Answer::Nothing;
    }
    if (!traits.IsAttribute() && isRecursivePattern(*open.item, meaning.complexType)) {
        Report<SchemaMessage::Recursion>(type);
        return Answer::Nothing;
    }
    // Remembers the type for this item, so that a derivation of it further below finds its way
    // back.
    const CKTActiveGuard active(walk.TypesWalked(), CKTWalk::ActiveType(open.item, definition));
    return WithoutNothing(walk.Walk(definition, open));
}

bool elementHasSubGroup(CKTNameResolver& names, const CKTCOBOLRecordItem& item) {
    return names.IsSubstitutionHead(item.m_sXMLName, item.m_sNamespace);
}

/// Fills the item from what the declaration refers to, names as its type or holds. Nothing: the
/// declaration has no content that could be found.
Answer TakeContent(CKTWalk& walk, const CKTXMLElement* declaration, const DeclarationTraits& traits,
                   const WrittenDeclaration& written, OpenItem& open) {
    if (written.ref != nullptr) {
        return TakeReference(walk, declaration, *written.ref, traits, open);
    }
    if (!traits.IsAttribute() && elementHasSubGroup(walk.Names(), *open.item)) {
        // The head is converted all the same; its members are not looked for.
        Report<SchemaMessage::SubstitutionGroup>();
    }
    return written.type != nullptr ? TakeNamedType(walk, declaration, *written.type, traits, open)
                                   : walk.WalkChildren(declaration, open);
}

Answer TakeDeclaration(CKTWalk& walk, const CKTXMLElement* declaration,
                       const DeclarationTraits& traits, const WrittenDeclaration& written,
                       OpenItem& around) {
    // An element behind an attribute reference, or the other way round, is a declaration of its
    // own.
    if (around.isReference &&
        GeneratorKindOf(around.item->m_pSchemaElement->getName()) == traits.kind) {
        around.isReference = false;
        FillFromDeclaration(walk.Names(), declaration, written, *around.item);
        return TakeContent(walk, declaration, traits, written, around);
    }
    OpenItem own(MakeDeclaredItem(walk.Records(), traits, written, around.item));
    if (own.item == nullptr) {
        return Answer::Nothing;
    }
    FillFromDeclaration(walk.Names(), declaration, written, *own.item);
    const Answer content = TakeContent(walk, declaration, traits, written, own);
    if (content == Answer::Nothing) {
        // Also an item that has children: what failed may not be written in part.
        walk.Records().Remove(*own.item);
    }
    return content == Answer::ItemGone ? Answer::Nothing : content;
}

}  // namespace

Answer TakeElement(CKTWalk& walk, CKTXMLElement* element, OpenItem& around) {
    const WrittenDeclaration written(element);
    if (IsNever(written.maxOccurs)) {
        // It stands for nothing, which is no failure unless it is the head itself.
        return around.item == nullptr ? Answer::Nothing : Answer::Made;
    }
    return TakeDeclaration(walk, element, kElement, written, around);
}

Answer TakeAttribute(CKTWalk& walk, CKTXMLElement* attribute, OpenItem& around) {
    const WrittenDeclaration written(attribute);
    if (written.use != nullptr && *written.use == "prohibited") {
        return Answer::Nothing;
    }
    return TakeDeclaration(walk, attribute, kAttribute, written, around);
}
