#ifndef DORVEX_XMLGEN_KTXMLCOBOLEXTERNALMAPPING_H
#define DORVEX_XMLGEN_KTXMLCOBOLEXTERNALMAPPING_H

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "xml/KTXMLElement.h"
#include "xmlgen/QualifiedName.h"

/// One entry of a mapping file: the XML that stands for a COBOL data item. Texts start empty, flags
/// false; the links to its neighbours are borrowed.
class CKTXMLCOBOLMapping {
public:
    void setPrevSibling(CKTXMLCOBOLMapping* entry) { m_pPrevSibling = entry; }
    [[nodiscard]] CKTXMLCOBOLMapping* getPrevSibling() const { return m_pPrevSibling; }
    void setNextSibling(CKTXMLCOBOLMapping* entry) { m_pNextSibling = entry; }
    [[nodiscard]] CKTXMLCOBOLMapping* getNextSibling() const { return m_pNextSibling; }

    std::string m_sCobolName;      ///< the qualified name of the data item
    std::string m_sXMLName;        ///< the element or attribute name
    std::string m_sXMLType;        ///< the schema type
    std::string m_sXMLNamespace;   ///< the namespace of the item
    bool m_bXMLAttribute = false;  ///< is an attribute of its group
    bool m_bCobolCountIn = false;  ///< has a count field in the copybook
    bool m_bMatched = false;       ///< set by FindAndMark: some data item has the name

private:
    CKTXMLCOBOLMapping* m_pPrevSibling = nullptr;
    CKTXMLCOBOLMapping* m_pNextSibling = nullptr;
};

/// The user's mapping file in memory; owns its entries, in file order.
class CKTXMLCOBOLExternalMapping {
public:
    CKTXMLCOBOLExternalMapping() = default;
    virtual ~CKTXMLCOBOLExternalMapping() = default;
    CKTXMLCOBOLExternalMapping(const CKTXMLCOBOLExternalMapping&) = delete;
    CKTXMLCOBOLExternalMapping& operator=(const CKTXMLCOBOLExternalMapping&) = delete;

    /// Loads the entries at and below `e`, the root of a parsed mapping file or an element of it;
    /// fields outside an entry go to `current`, which may be null. An unknown element empties the
    /// whole set and makes the answer false. Reports nothing.
    bool Initialize(const CKTXMLElement* e, CKTXMLCOBOLMapping* current);

    /// Accepts any document.
    static bool Validate(const CKTXMLElement* /*document*/) { return true; }

    /// Appends an entry and links it with the one before; returns it.
    CKTXMLCOBOLMapping* addXMLCOBOLMapping(std::unique_ptr<CKTXMLCOBOLMapping> entry);

    /// The first entry in file order whose `cobol-name` is exactly `cobolName`; null for none.
    /// `index` has no meaning yet; callers pass 0.
    CKTXMLCOBOLMapping* findMapping(std::string_view cobolName, int index);

    /// The same for the name of an element; marks the entry as matched.
    CKTXMLCOBOLMapping* FindAndMark(const CKTQualifiedName& name);

    /// Takes all marks away.
    void ForgetMatches();

    /// The entries, in file order, for whose name no element was looked up since then.
    std::vector<const CKTXMLCOBOLMapping*> FindUnmatched();

    /// The first entry, or null; and the neighbours of an entry.
    [[nodiscard]] CKTXMLCOBOLMapping* getFirst() const;
    static CKTXMLCOBOLMapping* getNextSibling(const CKTXMLCOBOLMapping* entry) {
        return entry->getNextSibling();
    }
    static CKTXMLCOBOLMapping* getPrevSibling(const CKTXMLCOBOLMapping* entry) {
        return entry->getPrevSibling();
    }

    /// Frees all entries.
    void ClearAndDestroy();

private:
    /// Takes one element; `current` becomes the entry that it begins. False for an unknown one.
    bool TakeElement(const CKTXMLElement* e, CKTXMLCOBOLMapping*& current);
    void BuildIndex();

    std::vector<std::unique_ptr<CKTXMLCOBOLMapping>> m_Entries;
    std::unordered_map<std::string_view, CKTXMLCOBOLMapping*, CKTQualifiedName::Hash,
                       CKTQualifiedName::Equal>
        m_Index;
    bool m_bIndexed = false;
};

#endif
