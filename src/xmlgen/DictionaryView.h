#ifndef DORVEX_XMLGEN_DICTIONARYVIEW_H
#define DORVEX_XMLGEN_DICTIONARYVIEW_H

#include <cstdint>
#include <string_view>
#include <vector>

#include "xml/KTXMLElement.h"
#include "xmlgen/DataDictionary.h"
#include "xmlgen/ItemClauses.h"
#include "xmlgen/KTXMLCOBOLExternalMapping.h"
#include "xmlgen/QualifiedName.h"

/// One element of the record as the outputs see it. What the mapping set says of a data item has
/// taken the place of the defaults. Texts are borrowed from the dictionary and the mapping set.
struct DictionaryItem {
    const CKTXMLElement* element = nullptr;
    std::string_view name;  ///< in XML; empty for none
    std::string_view type;  ///< the schema type
    std::string_view uri;   ///< the namespace; empty for none
    std::uint32_t end = 0;  ///< where the next item stands that is not below this one
    DictionaryKind kind = DictionaryKind::Unknown;
    std::uint8_t level = 0;  ///< 0 for the program, 1 for the record
    bool isAttribute = false;
    bool countIn = true;          ///< has a count field, unless the run has none
    bool isRedefinition = false;  ///< what is below it is left out
    bool isRenaming = false;
    bool hasChildren = false;  ///< has child elements, of whatever kind
    bool hasElements = false;  ///< has members that are no attributes
};

/// Says whether XML can hold the item: a data item that redefines nothing and has a level of
/// COBOL's. Any other is left out of mapping file and schema with what is below it.
bool IsConvertible(const DictionaryItem& item);

/// The record of a dictionary as a list in document order: the program, the record, and what is
/// below it; the sections of the dictionary are left out, their members stand in their place. Each
/// item is described once, for all outputs. A snapshot: later changes of dictionary or mapping set
/// do not show.
class CKTDictionaryView {
public:
    /// Describes the record of `found` with what `mapping` (may be null) says of its items, and
    /// marks the entries of `mapping` that some item of the record has, shown or not. Both are
    /// borrowed. Without a record the view is empty.
    CKTDictionaryView(const DictionaryRecord& found, CKTXMLCOBOLExternalMapping* mapping);

    [[nodiscard]] bool IsEmpty() const { return m_Items.empty(); }
    [[nodiscard]] const DictionaryItem& operator[](std::uint32_t index) const {
        return m_Items[index];
    }

    /// Where the program and its record stand. The members of an item begin behind it, each where
    /// the one before it ends.
    static constexpr std::uint32_t kProgram = 0;
    static constexpr std::uint32_t kRecord = 1;

private:
    /// A run of siblings that is being walked.
    struct Siblings {
        const CKTXMLElement* next;
        CKTQualifiedName above;
        std::uint32_t owner;
        int level;
        bool shown;      ///< false: only looked up in the mapping set
        bool endsOwner;  ///< false: they stand in a section
    };

    /// Describes the record and all below it.
    void Walk(const CKTXMLElement* record);

    /// Takes one element and puts its members on the stack.
    void Enter(const CKTXMLElement* e, const Siblings& place);
    std::uint32_t Add(const CKTXMLElement* e, DictionaryKind kind, const CKTQualifiedName& name,
                      int level);

    /// Fills in what a data item is in XML, from its clauses or its mapping entry.
    void Describe(DictionaryItem& item, const CKTItemClauses& clauses,
                  const CKTQualifiedName& qualified) const;
    [[nodiscard]] CKTQualifiedName NameBelow(const Siblings& place, const CKTXMLElement* e) const;

    CKTXMLCOBOLExternalMapping* m_pMapping;
    std::vector<DictionaryItem> m_Items;
    std::vector<Siblings> m_Pending;
};

#endif
