#ifndef DORVEX_SCHEMA_KTCOBOLGENERATOR_H
#define DORVEX_SCHEMA_KTCOBOLGENERATOR_H

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "cobol/KTCOBOLRecordItem.h"
#include "schema/DeclarationIndex.h"
#include "schema/KTXMLSchemaDoc.h"
#include "schema/SchemaVocabulary.h"

struct BuiltInForm;

/// Turns a schema document into one COBOL record for each head element. The walk follows the schema
/// from a head element and hands each construct to its handler; handlers fill the current record
/// item or make new items below it. A handler answers the item that it worked on, or null when it
/// yielded none; every message goes to standard error and none stops the run.
class CKTCOBOLGenerator {
public:
    CKTCOBOLGenerator() = default;
    /// `document` is borrowed and outlives the generator.
    explicit CKTCOBOLGenerator(CKTXMLSchemaDoc* document) : m_pDocument(document) {}
    virtual ~CKTCOBOLGenerator() = default;
    CKTCOBOLGenerator(const CKTCOBOLGenerator&) = delete;
    CKTCOBOLGenerator& operator=(const CKTCOBOLGenerator&) = delete;

    /// Has the global elements of these names converted, in this order, instead of those that
    /// nothing refers to. No name leaves that choice as it is.
    void ChooseHeads(std::vector<std::string> names) { m_ChosenHeads = std::move(names); }

    /// Converts every head element and writes the records to `outputName`, truncating it; to the
    /// console when the name is empty (after a notice) or the file cannot be opened. The other
    /// arguments go to the copybook writer: data-name prefix, count-in clauses, unique names.
    /// Returns whether the text went to the file. A file that cannot be written completely is an
    /// error line.
    bool GenerateFile(const std::string& outputName, const std::string& writerText,
                      bool writerFlag1, bool writerFlag2);

    /// The walk. `current` points at the item being filled (null at the top); it is set to the
    /// item's parent when the item turns out empty and is removed. `level` and `indent` are those
    /// of a record's first item. Returns the item that `e` filled or made, null for none.
    CKTCOBOLRecordItem* getCOBOLFromSchema(CKTXMLElement* e, unsigned level, unsigned indent,
                                           CKTCOBOLRecordItem** current);

    /// Checks the `schema` element; false after an error line when it cannot be converted.
    static bool ProcessSchemaElement(const CKTXMLElement* schema, bool& processChildren);

    /// Appends to `heads` the chosen elements or, without a choice, the global elements that are
    /// referenced nowhere. Returns the head when there is exactly one; otherwise null, after a
    /// message unless the heads are chosen. A chosen one that is not there is an error line.
    CKTXMLElement* getSchemaHeadElement(std::vector<CKTXMLElement*>& heads);

    /// Gives `item` the picture or usage of the built-in type `typeName`, which `context` names.
    /// False for a type that is not built in, and for the types that are not plain text or counts.
    bool convertXMLtoCOBOL(CKTCOBOLRecordItem* item, const CKTXMLElement* context,
                           const std::string& typeName) const;

    /// Says whether `typeName`, as written at `context`, is a built-in type with a COBOL form; if
    /// its namespace is that of XML Schema, `typeName` becomes the local part.
    bool isSupportedDefaultSchemaType(const CKTXMLElement* context, std::string& typeName) const;

    /// Resolve namespaces: of an element, of a qualified name at an element or at the main schema,
    /// and of a declaration attribute looked for upwards from an element. False when nothing is
    /// bound.
    bool getElementNamespace(const CKTXMLElement* e, std::string& uri) const;
    bool getTypeNamespace(const CKTXMLElement* context, std::string_view qname,
                          std::string& uri) const;
    bool getTypeNamespace(std::string_view qname, std::string& uri) const;
    bool getNamespaceURI(const CKTXMLElement* e, std::string_view attrName, std::string& uri) const;

    /// Finds the declaration that `qname` means at `context` in the chosen list; null for none.
    /// Within a redefinition its own name means the declaration that was replaced.
    CKTXMLElement* findElementByName(const CKTXMLElement* context, std::string_view qname,
                                     DeclarationList list);

    /// The first element of `list` whose `name` is the local part of `name`; null for none.
    static CKTXMLElement* findElementByName(const std::vector<CKTXMLElement*>& list,
                                            std::string_view name);

    static bool findAttrByName(const CKTXMLElement* e, std::string_view name, std::string& value) {
        return ::findAttrByName(e, name, &value);
    }
    static GeneratorKind getElementType(const CKTXMLElement* e) {
        return GeneratorKindOf(e->getName());
    }
    static FacetKind getFacetType(const CKTXMLElement* e) {
        return e == nullptr ? FacetKind::None : FacetKindOf(e->getName());
    }

    /// Says whether `e` is an `element` whose `ref` has the local name `name` and the namespace of
    /// `e`.
    [[nodiscard]] bool compareElemByRefs(const CKTXMLElement* e, std::string_view name) const;

    /// Applies the facets below `restriction` (null: the item's type definition) to `item`; facets
    /// that COBOL cannot express are warnings.
    void ProcessElementFacets(CKTCOBOLRecordItem* item, const CKTXMLElement* restriction);

    /// Free-form writers on standard output; nothing is written for an empty name or type.
    static void writeIndent(unsigned n);
    static void writeLevelNumber(unsigned level);
    static void writeRecordName(const std::string& name);
    static void writeCOBOLType(const std::string& type);
    static void writeIdentifiedBy(const std::string& xmlName);
    static void writeIsAttribute(bool flag);
    static void writeRecordItem(const std::string& name, const std::string& type,
                                const std::string& xmlName, unsigned level, unsigned indent,
                                bool isAttribute);

    /// Prints `element` with its attributes and, one blank deeper each, what is below it.
    static void dumpElement(const CKTXMLElement* element, const std::string& prefix);

private:
    using Item = CKTCOBOLRecordItem;
    struct DeclarationTraits;
    struct WrittenDeclaration;
    struct UnionMember;
    class CKTConditionList;
    class CKTNestingGuard;
    class CKTSimpleContent;

    /// A type definition together with the item that it is walked into.
    using ActiveType = std::pair<const CKTCOBOLRecordItem*, const CKTXMLElement*>;
    struct ActiveTypeHash {
        std::size_t operator()(const ActiveType& active) const {
            const std::hash<const void*> hash;
            return hash(active.first) * 31 + hash(active.second);
        }
    };

    /// Where the last search for an attribute began, and what it found.
    struct FoundAbove {
        const CKTXMLElement* start = nullptr;
        const CKTXMLAttribute* attribute = nullptr;
    };

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

    /// A global element that heads a substitution group: its name and its namespace.
    using SubstitutionHead = std::pair<std::string_view, std::string_view>;
    struct SubstitutionHeadHash {
        std::size_t operator()(const SubstitutionHead& head) const {
            const std::hash<std::string_view> hash;
            return hash(head.first) * 31 + hash(head.second);
        }
    };

    /// Why the walk of a record was given up.
    enum class Excess { None, TooManyItems, TooComplex };

    // The walk (KTCOBOLGenerator.cpp) and the items that it makes (Items.cpp)
    void ConvertSchema(CKTXMLElement* schema, unsigned level, unsigned indent);
    bool ConvertHead(CKTXMLElement* head, unsigned level, unsigned indent);
    Item* Dispatch(CKTXMLElement* e, unsigned level, unsigned indent, Item** current);
    Item* ProcessTypeDefinition(CKTXMLElement* e, unsigned level, unsigned indent, Item** current);
    void WalkChildren(const CKTXMLElement* e, unsigned level, unsigned indent, Item** current);
    void PruneEmptyItem(const CKTXMLElement* e, Item** current);
    void RemoveItem(const Item* item);
    bool CountItem();
    Item* MakeItem(Item* parent, std::string_view shownName, unsigned level, unsigned indent);
    Item* MakeGeneratedItem(Item* parent, std::string_view dataName, std::string_view ending);
    Item* MakeConditionItem(Item* parent);
    void MoveValue(Item* item, bool toFront);
    void NoteList(Item* item, const std::string* base);
    void LeaveListOut(Item* item);

    // Head elements (HeadElements.cpp)
    [[nodiscard]] std::vector<const CKTXMLSchemaDoc*> ImportedDocuments() const;
    void AppendChosenHeads(std::vector<CKTXMLElement*>& heads) const;
    void CollectReferencedNames(CKTXMLElement* schema,
                                std::unordered_set<std::string_view>& names) const;

    // Type resolution (TypeResolution.cpp)
    const CKTXMLAttribute* FindAttributeAbove(const CKTXMLElement* e, std::string_view name) const;
    const std::string* FindNamespace(const CKTXMLElement* e, std::string_view attrName) const;
    const std::string* FindTypeNamespace(const CKTXMLElement* context,
                                         std::string_view qname) const;
    const BuiltInForm* FindBuiltIn(const CKTXMLElement* context, std::string_view qname) const;
    static void ApplyBuiltIn(Item* item, const BuiltInForm& form);
    static void TakeBuiltIn(Item* item, const BuiltInForm& form);
    template <typename LookUp>
    const NameMeaning& Remember(const CKTXMLElement* e, LookUp lookUp);
    const NameMeaning& MeaningOfType(const CKTXMLElement* context, const std::string& type);
    const NameMeaning& MeaningOfBase(const CKTXMLElement* context, const std::string& base);
    CKTXMLElement* FindReferenced(const CKTXMLElement* context, const std::string& ref,
                                  DeclarationList list);
    static bool IsSchemaNamespace(std::string_view uri);
    bool IsOpenType(const CKTXMLElement* context, std::string_view qname) const;
    bool IsListType(const CKTXMLElement* context, std::string_view qname) const;
    CKTXMLElement* FindType(const CKTXMLElement* context, std::string_view qname);
    CKTXMLElement* FindBase(const CKTXMLElement* context, std::string_view qname,
                            DeclarationList list);
    CKTXMLElement* FindBaseType(const CKTXMLElement* context, std::string_view qname);

    // Declarations (Declarations.cpp)
    Item* ProcessElementElement(CKTXMLElement* element, unsigned level, unsigned indent,
                                Item** current);
    Item* ProcessAttributeElement(CKTXMLElement* element, unsigned level, unsigned indent,
                                  Item** current);
    Item* ProcessDeclaration(CKTXMLElement* element, const DeclarationTraits& traits,
                             const WrittenDeclaration& written, unsigned level, unsigned indent,
                             Item** current);
    void FillFromDeclaration(Item* item, const CKTXMLElement* element,
                             const WrittenDeclaration& written, bool reused);
    const DeclaredNames& NamesOf(const CKTXMLElement* element, const std::string* name);
    bool FillContent(CKTXMLElement* element, const DeclarationTraits& traits,
                     const WrittenDeclaration& written, unsigned level, unsigned indent,
                     Item** cursor);
    bool FillFromReference(const CKTXMLElement* element, const std::string& ref,
                           const DeclarationTraits& traits, unsigned level, unsigned indent,
                           Item** cursor);
    bool FillFromType(const CKTXMLElement* element, const std::string& type,
                      const DeclarationTraits& traits, unsigned level, unsigned indent,
                      Item** cursor);
    static bool isRecursivePattern(const Item* item, const CKTXMLElement* target);
    bool elementHasSubGroup(const Item* item);

    // Model groups (ModelGroups.cpp) and unions (Unions.cpp)
    Item* ProcessModelGroup(CKTXMLElement* e, unsigned level, unsigned indent, Item** current);
    Item* ProcessGroupMembers(const CKTXMLElement* e, unsigned level, unsigned indent,
                              Item** current);
    Item* MakeGroupItem(const CKTXMLElement* e, Item* parent);
    bool WalkGroupReference(const CKTXMLElement* e, const std::string& ref, unsigned level,
                            unsigned indent, Item** cursor);
    Item* ProcessElementUnion(const CKTXMLElement* unionElement, unsigned level, unsigned indent,
                              Item* current);
    bool FindUnionMember(const CKTXMLElement* unionElement, UnionMember& member);
    Item* MakeUnionItem(const UnionMember& member, std::size_t number, unsigned level,
                        unsigned indent, Item* current);

    // Derivations (Derivations.cpp)
    Item* ProcessElementRestriction(const CKTXMLElement* restriction, unsigned level,
                                    unsigned indent, Item** current);
    Item* ProcessElementExtension(const CKTXMLElement* extension, unsigned level, unsigned indent,
                                  Item** current);
    void RestrictNamedType(const CKTXMLElement* restriction, CKTXMLElement* base,
                           const std::string& name, unsigned level, unsigned indent,
                           Item** current);
    void RestrictOwnContent(const CKTXMLElement* restriction, unsigned level, unsigned indent,
                            Item** current);
    void WalkBaseType(CKTXMLElement* type, const std::string& name, unsigned level, unsigned indent,
                      Item** current);
    void TakeBaseValue(Item* item, CKTXMLElement* type);

    // Facets (Facets.cpp)
    void ApplyFacets(Item* item, const CKTXMLElement* restriction, bool withConditions);
    static void ApplyFacet(Item* item, const CKTXMLElement* restriction, const CKTXMLElement* facet,
                           FacetKind kind, const std::string* value);

    static constexpr std::uint64_t kMaxElementsVisited = 20'000'000;
    static constexpr unsigned kMaxNesting = 10'000;

    CKTXMLSchemaDoc* m_pDocument = nullptr;
    std::string m_sWriterText;
    bool m_bWriterFlag1 = false;
    bool m_bWriterFlag2 = false;

    std::vector<std::string> m_ChosenHeads;
    std::unique_ptr<CKTDeclarationIndex> m_pIndex;
    mutable std::unordered_map<std::string, FoundAbove> m_LastFound;
    // What was worked out once stays, because shared types are walked again and again. It lies
    // together, apart from the items that are made meanwhile.
    std::pmr::monotonic_buffer_resource m_KnownMemory;
    std::pmr::unordered_map<const CKTXMLElement*, NameMeaning> m_Meanings{&m_KnownMemory};
    std::pmr::unordered_map<const CKTXMLElement*, DeclaredNames> m_DeclaredNames{&m_KnownMemory};
    std::unordered_set<const CKTXMLElement*> m_DistinctEnumerations;
    std::unordered_set<SubstitutionHead, SubstitutionHeadHash> m_SubstitutionHeads;
    bool m_bSubstitutionHeadsKnown = false;
    const std::string* m_pSimpleBase = nullptr;  // written by the innermost simple content walked
    std::unordered_map<const Item*, const std::string*> m_ListBases;
    std::unordered_set<const CKTXMLElement*> m_ActiveGroups;
    std::unordered_set<ActiveType, ActiveTypeHash> m_ActiveTypes;
    std::unique_ptr<Item> m_pRecord;
    Excess m_Excess = Excess::None;
    std::uint64_t m_nItemsMade = 0;
    std::uint64_t m_nElementsVisited = 0;
    unsigned m_nNesting = 0;
};

#endif
