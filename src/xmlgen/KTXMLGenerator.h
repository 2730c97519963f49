#ifndef DORVEX_XMLGEN_KTXMLGENERATOR_H
#define DORVEX_XMLGEN_KTXMLGENERATOR_H

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "xml/KTDOMFormatTarget.h"
#include "xml/KTDOMParser.h"
#include "xml/KTXMLElement.h"
#include "xmlgen/DataDictionary.h"
#include "xmlgen/KTXMLCOBOLExternalMapping.h"

/// Writes mapping file, schema and enriched copybook from a COBOL data dictionary. All of them
/// stand for one record: the dictionary's first. The three pointers that it is given are borrowed
/// and must outlive it. Messages go to standard error.
class CKTXMLGenerator {
public:
    enum FILE_TYPE {
        INTERNAL_MAPPING = 0,  ///< a service description, always to the console
        EXTERNAL_MAPPING = 1,
        XML_SCHEMA = 2,
        ENHANCED_COBOL = 3,
    };

    CKTXMLGenerator() = default;
    CKTXMLGenerator(CKTXMLElement* dictionary, CKTXMLCOBOLExternalMapping* mapping);
    virtual ~CKTXMLGenerator() = default;
    CKTXMLGenerator(const CKTXMLGenerator&) = delete;
    CKTXMLGenerator& operator=(const CKTXMLGenerator&) = delete;

    /// Stores the root of a parsed dictionary and forgets mapping set and parser; null is ignored.
    void setCOBOLDataDictionary(CKTXMLElement* dictionary);

    /// Store a pointer; null is ignored.
    void setXMLCOBOLExternalMapping(CKTXMLCOBOLExternalMapping* mapping);
    void setDOMParser(CKTDOMParser* parser);

    /// Forgets dictionary, mapping set and parser.
    void Reset();

    /// Say whether the dictionary holds a program, and a record that can be written.
    [[nodiscard]] bool HasProgram() const { return m_Found.hasProgram; }
    [[nodiscard]] bool HasRecord() const { return m_Found.record != nullptr; }

    /// Says on standard error which part of the mapping set, read from the file `mappingFile`, has
    /// no effect; nothing without a set or a record.
    void ReportIdleMapping(const std::string& mappingFile) const;

    /// The kind code of a dictionary element.
    static int getDataDictElementType(const CKTXMLElement* e) {
        return static_cast<int>(DictionaryKindOf(e));
    }

    /// The schema type of an item: "string", "integer", "decimal", "float" or "double".
    static std::string getXmlType(const CKTXMLElement* e);

    /// The names of the item and of the named elements directly above it, joined by "."; empty for
    /// an item without `name`.
    static std::string getQualifiedNameAttr(const CKTXMLElement* e);

    /// Writes one output to the file that `type` chooses from the names given, truncating it; to
    /// the console when there is no name or it cannot be opened, after a line. `text` is the prefix
    /// of count names, `countIn` the switch for count-in clauses. Returns whether the file was
    /// written.
    bool GenerateFile(const std::string& dataDictFile, const std::string& mappingFile,
                      const std::string& schemaFile, const std::string& cobolFile, FILE_TYPE type,
                      const std::string& text, bool countIn);

    /// Overrides what the out-pointers hold (each may be null) from the entry of `item` in
    /// `mapping`; the count-in flag only while count-in clauses are on. False without item, set or
    /// name.
    bool ApplyExternalMappingFile(const CKTXMLElement* item, CKTXMLCOBOLExternalMapping* mapping,
                                  std::string* xmlName, std::string* xmlType,
                                  std::string* xmlNamespace, bool* isAttribute, bool* countIn,
                                  int index) const;

private:
    /// What a writer asks of the traversal: the closing call after the children, and their visit.
    struct TraversalFlags {
        bool open = false;
        bool descend = false;
    };

    /// A writer is called when an item begins, and, when it set `open`, again after the children.
    /// It returns the indent of the children.
    using Writer = unsigned (CKTXMLGenerator::*)(const CKTXMLElement* item, unsigned indent,
                                                 int level, TraversalFlags& flags);

    /// What an item becomes in XML, after the mapping set.
    struct XmlItem {
        std::string name;
        std::string type;
        std::string uri;
        bool isAttribute = false;
        bool countIn = false;
    };

    /// The constants of an item's condition-names that become its enumeration.
    struct Enumeration {
        const CKTXMLElement* first = nullptr;
        const CKTXMLElement* last = nullptr;
        bool hasRange = false;
    };

    // Traversal (KTXMLGenerator.cpp)
    bool getXMLFromDataDict(const CKTXMLElement* e, unsigned indent, int level, Writer writer);
    [[nodiscard]] bool CanWrite() const;
    void WriteOutput(FILE_TYPE type);
    XmlItem Describe(const CKTXMLElement* item) const;
    void WriteLine(unsigned indent, std::string_view text);

    // Mapping files (MappingWriter.cpp)
    unsigned OutputExternalMappingFileElement(const CKTXMLElement* item, unsigned indent, int level,
                                              TraversalFlags& flags);
    unsigned OutputInternalMappingFileElement(const CKTXMLElement* item, unsigned indent, int level,
                                              TraversalFlags& flags);
    unsigned WriteMappingRoot(unsigned indent, TraversalFlags& flags);
    void WriteMappingEntry(const CKTXMLElement* item, unsigned indent);
    unsigned WriteServiceRoot(const CKTXMLElement* program, unsigned indent, TraversalFlags& flags);
    void WriteTextElement(unsigned indent, const char* name, const std::string& text);

    // Schema (SchemaWriter.cpp)
    unsigned OutputXMLSchemaFileElement(const CKTXMLElement* item, unsigned indent, int level,
                                        TraversalFlags& flags);
    unsigned WriteSchemaRoot(unsigned indent, TraversalFlags& flags);
    unsigned WriteElementary(const CKTXMLElement* item, unsigned indent, TraversalFlags& flags);
    void WriteFacets(const CKTXMLElement* item, const std::string& type, unsigned indent);
    unsigned WriteGroup(const CKTXMLElement* item, unsigned indent, int level,
                        TraversalFlags& flags);
    void WriteMappedMembers(const CKTXMLElement* group, unsigned indent, int level);
    void BeginItem(const CKTXMLElement* item, const XmlItem& xml, unsigned indent);
    void WriteConstant(const CKTXMLElement* constant, unsigned indent);
    const Enumeration& EnumerationOf(const CKTXMLElement* item);

    // Enriched copybook (EnhancedCobolWriter.cpp)
    bool getEnhancedCOBOLFromDataDict(const CKTXMLElement* e, int level);
    [[nodiscard]] std::string BuildItemLine(const CKTXMLElement* item, int level) const;
    void AppendXmlClauses(std::string& line, const CKTXMLElement* item) const;

    CKTXMLElement* m_pDictionary = nullptr;
    CKTXMLCOBOLExternalMapping* m_pMapping = nullptr;
    CKTDOMParser* m_pParser = nullptr;
    DictionaryRecord m_Found;

    std::string m_sDataDictFile;
    std::string m_sPrefix;
    std::string m_sTargetNamespace;
    bool m_bCountIn = false;
    std::unique_ptr<CKTMarkup> m_pMarkup;  ///< what the output being written is made of
    std::unordered_map<const CKTXMLElement*, Enumeration> m_Enumerations;
};

#endif
