#ifndef DORVEX_SCHEMA_KTCOBOLGENERATOR_H
#define DORVEX_SCHEMA_KTCOBOLGENERATOR_H

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cobol/KTCOBOLRecordItem.h"
#include "schema/KTXMLSchemaDoc.h"
#include "schema/SchemaVocabulary.h"
#include "schema/Walk.h"

/// Turns a schema document into one COBOL record for each head element: the facade of this room,
/// which chooses the heads, has the walk fill a record for each, and writes the records. Every
/// message goes to standard error and none stops the run.
class CKTCOBOLGenerator {
public:
    CKTCOBOLGenerator() : CKTCOBOLGenerator(nullptr) {}
    /// `document` is borrowed and outlives the generator.
    explicit CKTCOBOLGenerator(CKTXMLSchemaDoc* document)
        : m_pDocument(document), m_Walk(document) {}
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
    bool GenerateFile(const std::string& outputName, const std::string& prefix, bool countIn,
                      bool uniqueNames);

    /// Converts `e`: the records of a `schema` element are written, what any other element yields
    /// is walked into `*current` (null at the top), which becomes its parent when it turns out
    /// empty and is removed. `level` and `indent` are those of a record's first item. Returns the
    /// item that `e` filled or, at the top, made; null for none.
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

    /// Read an attribute and classify an element, as the functions of SchemaVocabulary do; no
    /// element is no facet.
    static bool findAttrByName(const CKTXMLElement* e, std::string_view name, std::string& value);
    static GeneratorKind getElementType(const CKTXMLElement* e) {
        return GeneratorKindOf(e->getName());
    }
    static FacetKind getFacetType(const CKTXMLElement* e);

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
    /// How the records are written.
    struct WriterSettings {
        std::string prefix;  ///< before each data name
        bool countIn = false;
        bool uniqueNames = false;
    };

    void ConvertSchema(CKTXMLElement* schema);
    bool ConvertHead(CKTXMLElement* head);

    static constexpr unsigned kFirstLevel = 1;
    static constexpr unsigned kFirstIndent = 7;

    CKTXMLSchemaDoc* m_pDocument;
    CKTWalk m_Walk;
    std::vector<std::string> m_ChosenHeads;
    WriterSettings m_Writer;
};

#endif
