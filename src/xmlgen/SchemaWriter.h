#ifndef DORVEX_XMLGEN_SCHEMAWRITER_H
#define DORVEX_XMLGEN_SCHEMAWRITER_H

#include <string>
#include <unordered_map>
#include <vector>

#include "xml/Markup.h"
#include "xmlgen/DictionaryWriter.h"

/// Writes the schema of a record: groups become complex types, elementary items simple types with
/// facets, the values of condition-names enumerations. Reports ranges, and namespaces other than
/// the schema's, on standard error.
class CKTSchemaWriter : public CKTDictionaryWriter {
public:
    /// `markup` is borrowed; `isMapped` says whether a mapping set may make items attributes;
    /// `targetNamespace` is empty for none.
    CKTSchemaWriter(CKTMarkup& markup, bool isMapped, std::string_view targetNamespace)
        : m_Markup(markup), m_bMapped(isMapped), m_sTargetNamespace(targetNamespace) {}

    /// The start tags of what stands for an item, with its facets; a whole `enumeration`.
    bool Begin(const DictionaryItem& item) override;

    /// Closes what Begin has opened.
    void End(const DictionaryItem& item) override;

    /// A complex type wants its attributes behind its sequence.
    [[nodiscard]] bool PutsAttributesLast() const override { return true; }

private:
    /// The facets that an item gets.
    enum class FacetForm { None, Length, Digits };

    /// An item that is begun and not ended.
    struct OpenItem {
        unsigned indent = 0;
        unsigned memberIndent = 0;
        FacetForm facets = FacetForm::None;
        bool inSequence = false;  ///< the sequence of a group is still open
    };

    /// The constants of an item's condition-names that become its enumeration.
    struct Enumeration {
        const CKTXMLElement* first = nullptr;
        const CKTXMLElement* last = nullptr;
        bool hasRange = false;
    };

    void BeginSchema();

    /// Begin the element or attribute of an item; its tag is open after the first of them.
    void BeginTag(const DictionaryItem& item, const CKTItemClauses& clauses, unsigned indent);
    void BeginGroup(const DictionaryItem& item, unsigned indent);
    void BeginElementary(const DictionaryItem& item, unsigned indent);

    void EndGroup(const DictionaryItem& item, const OpenItem& open);
    void EndElementary(const DictionaryItem& item, const OpenItem& open);

    /// Writes the anonymous type of an elementary item up to its last facet.
    void WriteFacets(const DictionaryItem& item, const CKTItemClauses& clauses, FacetForm form,
                     unsigned indent);

    /// Writes an enumeration, and around the first and the last of an item its block.
    void WriteConstant(const CKTXMLElement* constant, unsigned indent);
    void WriteRestriction(std::string_view base, unsigned indent);
    void WriteEndTag(const DictionaryItem& item, unsigned indent);

    /// Makes room for a member: the indent of its tags.
    unsigned PlaceFor(const DictionaryItem& item);
    static FacetForm FacetsOf(const DictionaryItem& item, const CKTItemClauses& clauses);

    /// What the condition-names of an item hold, found once for each item.
    const Enumeration& EnumerationOf(const CKTXMLElement* item);
    static Enumeration FindEnumeration(const CKTXMLElement* item);

    CKTMarkup& m_Markup;
    bool m_bMapped;
    std::string_view m_sTargetNamespace;
    std::vector<OpenItem> m_Open;  ///< the innermost last
    std::unordered_map<const CKTXMLElement*, Enumeration> m_Enumerations;
};

#endif
