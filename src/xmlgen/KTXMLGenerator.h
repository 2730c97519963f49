#ifndef DORVEX_XMLGEN_KTXMLGENERATOR_H
#define DORVEX_XMLGEN_KTXMLGENERATOR_H

#include <cstdint>
#include <memory>
#include <string>

#include "xml/KTDOMParser.h"
#include "xml/KTXMLElement.h"
#include "xml/Markup.h"
#include "xmlgen/DataDictionary.h"
#include "xmlgen/DictionaryView.h"
#include "xmlgen/DictionaryWriter.h"
#include "xmlgen/KTXMLCOBOLExternalMapping.h"

/// Writes mapping file, schema and enriched copybook from a COBOL data dictionary. All of them
/// stand for one record: the dictionary's first. Dictionary and mapping set are borrowed and
/// must outlive it. Messages go to standard error.
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

    /// Stores the root of a parsed dictionary and forgets the mapping set; null is ignored.
    void setCOBOLDataDictionary(CKTXMLElement* dictionary);

    /// Stores the set that the outputs follow from now on; null is ignored. What it holds is taken
    /// over when the next output, or ReportIdleMapping, needs it.
    void setXMLCOBOLExternalMapping(CKTXMLCOBOLExternalMapping* mapping);

    /// Part of the order of calls, without effect: the output machinery is reached through the
    /// tree.
    static void setDOMParser(const CKTDOMParser* parser);

    /// Forgets dictionary and mapping set.
    void Reset();

    /// Say whether the dictionary holds a program, and a record that can be written.
    [[nodiscard]] bool HasProgram() const { return m_Found.hasProgram; }
    [[nodiscard]] bool HasRecord() const { return m_Found.record != nullptr; }

    /// Says on standard error which part of the mapping set, read from the file `mappingFile`, has
    /// no effect; nothing without a set or a record.
    void ReportIdleMapping(const std::string& mappingFile);

    /// The kind code of a dictionary element.
    static int getDataDictElementType(const CKTXMLElement* e);

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
    [[nodiscard]] bool CanWrite() const;
    const CKTDictionaryView& View();
    void WriteOutput(FILE_TYPE type, CKTMarkup& markup, const std::string& dataDictFile,
                     const std::string& prefix);
    static void Traverse(const CKTDictionaryView& view, std::uint32_t index,
                         CKTDictionaryWriter& writer);

    CKTXMLElement* m_pDictionary = nullptr;
    CKTXMLCOBOLExternalMapping* m_pMapping = nullptr;
    DictionaryRecord m_Found;                    ///< what of the dictionary is converted
    std::unique_ptr<CKTDictionaryView> m_pView;  ///< made when it is needed
    bool m_bCountIn = false;
};

#endif
