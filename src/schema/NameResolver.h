#ifndef DORVEX_SCHEMA_NAMERESOLVER_H
#define DORVEX_SCHEMA_NAMERESOLVER_H

#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "schema/BuiltInTypes.h"
#include "schema/DeclarationIndex.h"
#include "schema/KTXMLSchemaDoc.h"

/// What the name means that an element of the schema has as its `type`, `base` or `ref`.
struct NameMeaning {
    const BuiltInForm* builtIn = nullptr;  ///< the built-in type; null for any other
    CKTXMLElement* declaration = nullptr;  ///< what was looked for; null when it was not found
    CKTXMLElement* complexType = nullptr;  ///< for a `type`: the complex type of that name
};

/// The names that a declaration gives to its items.
struct DeclaredNames {
    std::string dataName;
    std::string countInName;
    const std::string* uri = nullptr;  ///< the namespace
};

/// Answers what a name in a schema means: namespaces, built-in types, declarations. What was worked
/// out once stays, because shared types are walked again and again. Reports nothing; texts that it
/// answers live as long as the schema's trees.
class CKTNameResolver {
public:
    /// `document` is borrowed and outlives the resolver; without one (null) nothing is declared.
    explicit CKTNameResolver(const CKTXMLSchemaDoc* document) : m_pDocument(document) {}

    /// The value of the attribute that binds a namespace, looked for from `e` (may be null)
    /// upwards; a missing default or target namespace is the main schema's. Null: nothing is bound.
    const std::string* FindNamespace(const CKTXMLElement* e, std::string_view attrName) const;

    /// The namespace of a qualified name at `context`; null when its prefix is bound to none.
    const std::string* FindTypeNamespace(const CKTXMLElement* context,
                                         std::string_view qname) const;

    /// The built-in type that `qname` means at `context`; null for none with a COBOL form.
    const BuiltInForm* FindBuiltIn(const CKTXMLElement* context, std::string_view qname) const;

    /// Say whether `qname` means a type of XML Schema that leaves its content open, or is a list.
    bool IsOpenType(const CKTXMLElement* context, std::string_view qname) const;
    bool IsListType(const CKTXMLElement* context, std::string_view qname) const;

    /// The declaration that `qname` means at `context` in the chosen list; null for none. In the
    /// list REPLACED_BY_REDEFINITION a redefinition's own name means what it replaced.
    CKTXMLElement* FindDeclaration(const CKTXMLElement* context, std::string_view qname,
                                   DeclarationList list);

    /// The simple type of that name or else the complex type; null for none.
    CKTXMLElement* FindType(const CKTXMLElement* context, std::string_view qname);

    /// What the `type` or the `base` means that is written at `context`.
    const NameMeaning& MeaningOfType(const CKTXMLElement* context, const std::string& type);
    const NameMeaning& MeaningOfBase(const CKTXMLElement* context, const std::string& base);

    /// What the `ref` of an element, attribute or group refers to in the chosen list.
    CKTXMLElement* FindReferenced(const CKTXMLElement* context, const std::string& ref,
                                  DeclarationList list);

    /// The names that the items of `declaration` take from it; `name` is its `name`, null for a
    /// reference.
    const DeclaredNames& NamesOf(const CKTXMLElement* declaration, const std::string* name);

    /// Says whether a member of a substitution group names this element as the group's head.
    bool IsSubstitutionHead(std::string_view name, std::string_view uri);

private:
    /// Where the last search for an attribute began, and what it found.
    struct FoundAbove {
        const CKTXMLElement* start = nullptr;
        const CKTXMLAttribute* attribute = nullptr;
    };

    /// A global element that heads a substitution group: its name and its namespace.
    using SubstitutionHead = std::pair<std::string_view, std::string_view>;
    struct SubstitutionHeadHash {
        std::size_t operator()(const SubstitutionHead& head) const {
            const std::hash<std::string_view> hash;
            return hash(head.first) * 31 + hash(head.second);
        }
    };

    const CKTXMLAttribute* FindAttributeAbove(const CKTXMLElement* e, std::string_view name) const;
    std::string_view SchemaTypeName(const CKTXMLElement* context, std::string_view qname) const;
    template <typename LookUp>
    const NameMeaning& Remember(const CKTXMLElement* e, LookUp lookUp);
    CKTXMLElement* FindReplaced(const CKTXMLElement* context, std::string_view name,
                                std::string_view uri) const;
    CKTXMLElement* FindBase(const CKTXMLElement* context, std::string_view qname,
                            DeclarationList list);
    CKTXMLElement* FindBaseType(const CKTXMLElement* context, std::string_view qname);
    void CollectSubstitutionHeads();

    const CKTXMLSchemaDoc* m_pDocument;
    std::unique_ptr<CKTDeclarationIndex> m_pIndex;
    mutable std::unordered_map<std::string, FoundAbove> m_LastFound;
    // What was worked out lies together, apart from the items that are made meanwhile.
    std::pmr::monotonic_buffer_resource m_KnownMemory;
    std::pmr::unordered_map<const CKTXMLElement*, NameMeaning> m_Meanings{&m_KnownMemory};
    std::pmr::unordered_map<const CKTXMLElement*, DeclaredNames> m_DeclaredNames{&m_KnownMemory};
    std::unordered_set<SubstitutionHead, SubstitutionHeadHash> m_SubstitutionHeads;
    bool m_bSubstitutionHeadsKnown = false;
};

#endif
