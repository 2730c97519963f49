// Names are resolved upwards from where they are written. A namespace is looked for in the elements
// above, a declaration in an index of the documents, which is built at the first question. Answers
// are kept by the element that asks: it has one name of each sort only. What cannot be found is
// null and is reported by who asked, in the words that fit there.

#include "schema/NameResolver.h"

#include "cobol/KTCOBOLRecordItem.h"
#include "schema/GeneratorState.h"

namespace {

bool IsDeclarationOf(const CKTXMLElement* e, DeclarationList list) {
    switch (GeneratorKindOf(e->getName())) {
        case GeneratorKind::ComplexType:
            return list == COMPLEX_TYPES;
        case GeneratorKind::SimpleType:
            return list == SIMPLE_TYPES;
        case GeneratorKind::Group:
            return list == GROUPS;
        case GeneratorKind::AttributeGroup:
            return list == ATTRIBUTE_GROUPS;
        default:
            return false;
    }
}

}  // namespace

GeneratorProcessState& GeneratorState() {
    static GeneratorProcessState state;
    return state;
}

const std::string* CKTNameResolver::FindNamespace(const CKTXMLElement* e,
                                                  std::string_view attrName) const {
    static const std::string none;
    static const std::string xmlNamespace = "http://www.w3.org/XML/1998/namespace";
    if (attrName.empty()) {
        return nullptr;
    }
    if (e != nullptr) {
        if (const std::string* value = AttributeValue(e, attrName)) {
            return value;
        }
        if (const CKTXMLAttribute* above = FindAttributeAbove(e->getParent(), attrName)) {
            return &above->getValue();
        }
    }
    // Bound by definition, without a declaration.
    if (attrName == "xmlns:xml") {
        return &xmlNamespace;
    }
    // Any other prefix that nothing binds means nothing; it does not fall back on the main schema.
    if (attrName != "xmlns" && attrName != "targetNamespace") {
        return nullptr;
    }
    const CKTXMLElement* schema = GeneratorState().currentSchemaElement;
    const std::string* target =
        schema == nullptr ? nullptr : AttributeValue(schema, "targetNamespace");
    // The main schema is the last place to look, also for an element of an imported one.
    return target == nullptr ? &none : target;
}

/// Finds the attribute at or above `e`. The answer is remembered, because the declarations of one
/// parent are asked about one after the other and may lie deep.
const CKTXMLAttribute* CKTNameResolver::FindAttributeAbove(const CKTXMLElement* e,
                                                           std::string_view name) const {
    FoundAbove& last = m_LastFound[std::string(name)];
    if (last.start != e) {
        last.start = e;
        last.attribute = nullptr;
        for (; e != nullptr && last.attribute == nullptr; e = e->getParent()) {
            last.attribute = e->getAttribute(name);
        }
    }
    return last.attribute;
}

const std::string* CKTNameResolver::FindTypeNamespace(const CKTXMLElement* context,
                                                      std::string_view qname) const {
    if (context == nullptr || qname.empty()) {
        return nullptr;
    }
    const std::string_view prefix = CKTXMLNode::getNameQualifier(qname);
    return FindNamespace(context, prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix));
}

/// The local part of a name in the namespace of XML Schema; empty for a name in any other.
std::string_view CKTNameResolver::SchemaTypeName(const CKTXMLElement* context,
                                                 std::string_view qname) const {
    const std::string* uri = FindTypeNamespace(context, qname);
    return uri != nullptr && IsSchemaNamespace(*uri) ? CKTXMLNode::getNonQualifiedName(qname)
                                                     : std::string_view();
}

const BuiltInForm* CKTNameResolver::FindBuiltIn(const CKTXMLElement* context,
                                                std::string_view qname) const {
    return FindBuiltInForm(SchemaTypeName(context, qname));
}

bool CKTNameResolver::IsOpenType(const CKTXMLElement* context, std::string_view qname) const {
    return IsOpenTypeName(SchemaTypeName(context, qname));
}

bool CKTNameResolver::IsListType(const CKTXMLElement* context, std::string_view qname) const {
    return IsListTypeName(SchemaTypeName(context, qname));
}

CKTXMLElement* CKTNameResolver::FindDeclaration(const CKTXMLElement* context,
                                                std::string_view qname, DeclarationList list) {
    const std::string* uri = FindTypeNamespace(context, qname);
    if (m_pDocument == nullptr || uri == nullptr) {
        return nullptr;
    }
    const std::string_view name = CKTXMLNode::getNonQualifiedName(qname);
    if (list == REPLACED_BY_REDEFINITION) {
        return FindReplaced(context, name, *uri);
    }
    if (m_pIndex == nullptr) {
        m_pIndex = std::make_unique<CKTDeclarationIndex>(
            // At the first question, when the set is complete.
            *m_pDocument, *FindNamespace(nullptr, "targetNamespace"));
    }
    return m_pIndex->Find(*uri, name, list);
}

/// What the redefinition replaced that `context` stands in, if the name is the redefinition's own.
CKTXMLElement* CKTNameResolver::FindReplaced(const CKTXMLElement* context, std::string_view name,
                                             std::string_view uri) const {
    // Only the redefinition around the name counts; one further up replaces something else.
    for (const CKTXMLElement* up = context; up != nullptr; up = up->getParent()) {
        if (CKTXMLElement* replaced = m_pDocument->getReplaced(up)) {
            const bool same = *AttributeValue(up, "name") == name &&
                              (uri.empty() || uri == *FindNamespace(up, "targetNamespace"));
            return same ? replaced : nullptr;
        }
    }
    return nullptr;
}

CKTXMLElement* CKTNameResolver::FindType(const CKTXMLElement* context, std::string_view qname) {
    // Both share one set of names, so at most one of the two is there.
    CKTXMLElement* type = FindDeclaration(context, qname, SIMPLE_TYPES);
    return type != nullptr ? type : FindDeclaration(context, qname, COMPLEX_TYPES);
}

/// Finds what a derivation or group reference names. Within a redefinition the name of the very
/// declaration that is redefined means the replaced one.
CKTXMLElement* CKTNameResolver::FindBase(const CKTXMLElement* context, std::string_view qname,
                                         DeclarationList list) {
    CKTXMLElement* replaced = nullptr;
    // Spares the way up in the many schemas that redefine nothing.
    if (m_pDocument != nullptr && !m_pDocument->getList(REDEFINED).empty()) {
        replaced = FindDeclaration(context, qname, REPLACED_BY_REDEFINITION);
    }
    return replaced != nullptr && IsDeclarationOf(replaced, list)
               ? replaced
               : FindDeclaration(context, qname, list);
}

CKTXMLElement* CKTNameResolver::FindBaseType(const CKTXMLElement* context, std::string_view qname) {
    CKTXMLElement* type = FindBase(context, qname, SIMPLE_TYPES);
    return type != nullptr ? type : FindBase(context, qname, COMPLEX_TYPES);
}

/// Answers what `lookUp` found for the one name that counts at `e` when it was first asked for.
template <typename LookUp>
const NameMeaning& CKTNameResolver::Remember(const CKTXMLElement* e, LookUp lookUp) {
    const auto [found, isNew] = m_Meanings.try_emplace(e);
    if (isNew) {
        found->second = lookUp();
    }
    return found->second;
}

const NameMeaning& CKTNameResolver::MeaningOfType(const CKTXMLElement* context,
                                                  const std::string& type) {
    return Remember(context, [&] {
        NameMeaning meaning;
        meaning.builtIn = FindBuiltIn(context, type);
        if (meaning.builtIn == nullptr) {
            meaning.declaration = FindType(context, type);
            // Whether a name leads back to itself is asked of complex types alone.
            meaning.complexType = FindDeclaration(context, type, COMPLEX_TYPES);
        }
        return meaning;
    });
}

const NameMeaning& CKTNameResolver::MeaningOfBase(const CKTXMLElement* context,
                                                  const std::string& base) {
    return Remember(context, [&] {
        NameMeaning meaning;
        meaning.builtIn = FindBuiltIn(context, base);
        if (meaning.builtIn == nullptr) {
            meaning.declaration = FindBaseType(context, base);
        }
        return meaning;
    });
}

CKTXMLElement* CKTNameResolver::FindReferenced(const CKTXMLElement* context, const std::string& ref,
                                               DeclarationList list) {
    const NameMeaning& meaning = Remember(context, [&] {
        NameMeaning found;
        const bool declared = list == ELEMENTS || list == ATTRIBUTES;
        found.declaration =
            declared ? FindDeclaration(context, ref, list) : FindBase(context, ref, list);
        return found;
    });
    return meaning.declaration;
}

const DeclaredNames& CKTNameResolver::NamesOf(const CKTXMLElement* declaration,
                                              const std::string* name) {
    const auto [found, isNew] = m_DeclaredNames.try_emplace(declaration);
    DeclaredNames& names = found->second;
    if (isNew) {
        names.uri = FindNamespace(declaration, "targetNamespace");
        if (name != nullptr) {
            CKTItemText dataName;
            CKTCOBOLRecordItem::setCOBOLDataName(dataName, *name);
            names.dataName = dataName;
            names.countInName = names.dataName + "-count";
        }
    }
    return names;
}

bool CKTNameResolver::IsSubstitutionHead(std::string_view name, std::string_view uri) {
    if (m_pDocument == nullptr) {
        return false;
    }
    if (!m_bSubstitutionHeadsKnown) {
        // A schema without such groups has an empty set, which is not the same as none made yet.
        m_bSubstitutionHeadsKnown = true;
        CollectSubstitutionHeads();
    }
    return !m_SubstitutionHeads.empty() && m_SubstitutionHeads.contains({name, uri});
}

void CKTNameResolver::CollectSubstitutionHeads() {
    for (const CKTXMLElement* member : m_pDocument->getList(SUBSTITUTION_MEMBERS)) {
        const std::string& head = *AttributeValue(member, "substitutionGroup");
        if (const std::string* uri = FindTypeNamespace(member, head)) {
            m_SubstitutionHeads.emplace(CKTXMLNode::getNonQualifiedName(head), *uri);
        }
    }
}
