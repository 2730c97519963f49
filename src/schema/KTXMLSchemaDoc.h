#ifndef DORVEX_SCHEMA_KTXMLSCHEMADOC_H
#define DORVEX_SCHEMA_KTXMLSCHEMADOC_H

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "schema/BroughtDeclarations.h"
#include "schema/KTXMLNamespaceSchemaPair.h"
#include "schema/SchemaVocabulary.h"
#include "xml/KTXMLElement.h"

class CKTSchemaSet;

/// The lists of a schema document in which a declaration can be looked up, and the replaced
/// declaration of the redefinition that encloses the one who asks.
enum DeclarationList {
    COMPLEX_TYPES = 1,
    SIMPLE_TYPES = 2,
    ELEMENTS = 3,
    ATTRIBUTES = 4,
    GROUPS = 5,
    ATTRIBUTE_GROUPS = 6,
    SUBSTITUTION_MEMBERS = 7,
    REDEFINED = 8,
    REPLACED_BY_REDEFINITION = 10,
};

/// One schema, sorted into lists of its global declarations. Building it pulls in the schemas that
/// it names: declarations of included and redefined ones move into the tree of the main document,
/// imported ones become documents of their own, reachable by namespace from the main document. What
/// loading creates belongs to the run's set, the main tree to the run; this object owns its lists
/// only.
class CKTXMLSchemaDoc {
public:
    using ElementList = std::vector<CKTXMLElement*>;

    explicit CKTXMLSchemaDoc(CKTSchemaSet& set) : CKTXMLSchemaDoc(set, this, {}) {}

    /// Reads the tree below `root` (may be null), which stands for the document of the file
    /// `location`. `target` is the main document that included declarations go to; null makes this
    /// one the main document.
    CKTXMLSchemaDoc(CKTXMLElement* root, CKTXMLSchemaDoc* target, std::string location,
                    CKTSchemaSet& set);

    /// Finds the `schema` element below `root` (null: nothing is done), loads what the schema
    /// includes, redefines and imports, and builds the lists. Reports nothing of its own: what
    /// cannot be loaded is left out, after the parser's messages. `target` is the main document,
    /// never null. Returns it.
    CKTXMLSchemaDoc* PreProcessSchema(CKTXMLElement* root, CKTXMLSchemaDoc* target);

    /// Sorts the global declarations into the lists; once per document. False when there is no
    /// `schema` element or nothing in it.
    bool InitializeElementLists();

    static SchemaKind getElementType(const CKTXMLElement* e) { return SchemaKindOf(e->getName()); }

    /// One of the lists of global declarations, in document order; `list` is COMPLEX_TYPES to
    /// REDEFINED.
    [[nodiscard]] const ElementList& getList(DeclarationList list) const;

    /// The global declarations that count as this document's: its own, then those that its includes
    /// brought, inner files first. What an imported document includes counts as that one's.
    [[nodiscard]] ElementList OwnDeclarations() const;

    /// The declaration that `redefinition` replaced; null for any other declaration. Replaced
    /// declarations are known to the main document.
    [[nodiscard]] CKTXMLElement* getReplaced(const CKTXMLElement* redefinition) const;

    [[nodiscard]] const std::vector<CKTXMLAttribute*>& getNamespaceDecls() const {
        return m_NamespaceDeclList;
    }
    [[nodiscard]] const std::vector<CKTXMLNamespaceSchemaPair*>& getNamespaceSchemaPairs() const {
        return m_NamespaceSchemaPairs;
    }
    [[nodiscard]] const ElementList& getSchemaElements() const { return m_SchemaElementList; }
    [[nodiscard]] CKTXMLElement* getSchemaElement() const { return m_pSchemaElement; }
    [[nodiscard]] const std::string& getTargetNamespace() const { return m_sTargetNamespace; }

    /// The file that the document was read from; empty for an imported document.
    [[nodiscard]] const std::string& getSchemaLocation() const { return m_sSchemaLocation; }

private:
    /// Where a document counts: whose it is, and from where its relative locations count.
    struct Place {
        CKTXMLSchemaDoc* owner;  ///< the main or imported document that it is included in
        std::string baseFile;    ///< the place of its file; of imported documents too
        std::string ownFile;     ///< what was opened for it, where that is another place
    };

    CKTXMLSchemaDoc(CKTSchemaSet& set, CKTXMLSchemaDoc* owner, std::string location);

    void ProcessPart(CKTXMLElement* part, CKTXMLSchemaDoc* target, CKTCarriedDeclarations& carried);
    void ProcessImport(const CKTXMLElement* import, CKTXMLSchemaDoc* target);
    [[nodiscard]] std::string ImportPath(const std::string& location,
                                         const CKTXMLSchemaDoc* target) const;
    [[nodiscard]] std::string IncludePath(const std::string& location) const;
    CKTXMLSchemaDoc* LoadImport(const std::string& fileName, CKTXMLSchemaDoc* target);
    void ProcessInclude(const CKTXMLElement* include, CKTXMLSchemaDoc* target,
                        CKTCarriedDeclarations& carried);
    void ProcessRedefine(CKTXMLElement* redefine, CKTXMLSchemaDoc* target,
                         CKTCarriedDeclarations& carried, std::size_t from);
    [[nodiscard]] std::string OwnNamespace() const;
    void TakeBroughtDeclarations();
    void MergeInto(CKTXMLSchemaDoc* target) const;

    ElementList& ListOf(DeclarationList list) {
        return m_Lists.at(static_cast<std::size_t>(list) - COMPLEX_TYPES);
    }

    CKTSchemaSet& m_Set;
    std::array<ElementList, REDEFINED - COMPLEX_TYPES + 1> m_Lists;  ///< as DeclarationList counts
    std::vector<CKTXMLAttribute*> m_NamespaceDeclList;
    std::vector<CKTXMLNamespaceSchemaPair*> m_NamespaceSchemaPairs;
    ElementList m_SchemaElementList;
    CKTXMLElement* m_pSchemaElement = nullptr;
    std::string m_sTargetNamespace;
    std::string m_sSchemaLocation;
    Place m_Place;
    std::unordered_map<const CKTXMLElement*, CKTXMLElement*> m_Replaced;
    CKTBroughtDeclarations m_Brought;  ///< while the main document is loaded
    ElementList m_IncludedList;        ///< brought into the main document by includes of this one
    std::unordered_set<const CKTXMLElement*> m_ForeignDeclarations;  ///< of imported documents
};

#endif
