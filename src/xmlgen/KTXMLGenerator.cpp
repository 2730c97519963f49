#include "xmlgen/KTXMLGenerator.h"

#include <iostream>

#include "cobol/KTCOBOLRecordItem.h"
#include "support/Console.h"
#include "support/Files.h"
#include "support/Text.h"
#include "xmlgen/IdleMapping.h"

namespace {

// Condition-names and their values nest below the deepest item.
constexpr int kMaxNesting = CKTCOBOLRecordItem::kMaxLevel + 10;

}  // namespace

CKTXMLGenerator::CKTXMLGenerator(CKTXMLElement* dictionary, CKTXMLCOBOLExternalMapping* mapping) {
    setCOBOLDataDictionary(dictionary);
    m_pMapping = mapping;
}

void CKTXMLGenerator::setCOBOLDataDictionary(CKTXMLElement* dictionary) {
    if (dictionary != nullptr) {
        Reset();
        m_pDictionary = dictionary;
        m_Found = FindDictionaryRecord(dictionary);
    }
}

void CKTXMLGenerator::setXMLCOBOLExternalMapping(CKTXMLCOBOLExternalMapping* mapping) {
    if (mapping != nullptr) {
        m_pMapping = mapping;
    }
}

void CKTXMLGenerator::setDOMParser(CKTDOMParser* parser) {
    if (parser != nullptr) {
        m_pParser = parser;
    }
}

void CKTXMLGenerator::Reset() {
    m_pDictionary = nullptr;
    m_pMapping = nullptr;
    m_pParser = nullptr;
    m_Found = {};
    m_Enumerations.clear();
}

void CKTXMLGenerator::ReportIdleMapping(const std::string& mappingFile) const {
    if (m_pMapping != nullptr && HasRecord()) {
        ::ReportIdleMapping(mappingFile, *m_pMapping, m_Found.record);
    }
}

std::string CKTXMLGenerator::getXmlType(const CKTXMLElement* e) {
    if (DictionaryKindOf(e) != DictionaryKind::Numeric) {
        return "string";
    }
    const std::string_view usage =
        e->getAttribute("usage") == nullptr ? "display" : AttributeOf(e, "usage");
    if (usage == "comp-1") {
        return "float";
    }
    if (usage == "comp-2") {
        return "double";
    }
    if (usage == "display" || usage == "comp-3" || usage == "comp-4" || usage == "comp-5") {
        const CKTXMLAttribute* alignment = e->getAttribute("alignment");
        return alignment != nullptr && alignment->getValue() != "0" ? "decimal" : "integer";
    }
    return "string";
}

std::string CKTXMLGenerator::getQualifiedNameAttr(const CKTXMLElement* e) {
    std::vector<std::string_view> names;
    for (; e != nullptr; e = e->getParent()) {
        const CKTXMLAttribute* name = e->getAttribute("name");
        if (name == nullptr) {
            break;
        }
        names.push_back(name->getValue());
    }
    std::string qualified;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        qualified += name == names.rbegin() ? "" : ".";
        qualified += *name;
    }
    return qualified;
}

bool CKTXMLGenerator::ApplyExternalMappingFile(const CKTXMLElement* item,
                                               CKTXMLCOBOLExternalMapping* mapping,
                                               std::string* xmlName, std::string* xmlType,
                                               std::string* xmlNamespace, bool* isAttribute,
                                               bool* countIn, int index) const {
    if (item == nullptr || mapping == nullptr || AttributeOf(item, "name").empty()) {
        return false;
    }
    const CKTXMLCOBOLMapping* entry = mapping->findMapping(getQualifiedNameAttr(item), index);
    if (entry == nullptr) {
        return true;
    }
    const auto copy = [](auto* target, const auto& value) {
        if (target != nullptr) {
            *target = value;
        }
    };
    copy(xmlName, entry->m_sXMLName);
    copy(xmlType, entry->m_sXMLType);
    copy(xmlNamespace, entry->m_sXMLNamespace);
    copy(isAttribute, entry->m_bXMLAttribute);
    copy(m_bCountIn ? countIn : nullptr, entry->m_bCobolCountIn);
    return true;
}

CKTXMLGenerator::XmlItem CKTXMLGenerator::Describe(const CKTXMLElement* item) const {
    XmlItem xml;
    xml.name = IsUnnamed(item) ? std::string_view() : AttributeOf(item, "name");
    xml.type = getXmlType(item);
    xml.countIn = m_bCountIn;
    ApplyExternalMappingFile(item, m_pMapping, &xml.name, &xml.type, &xml.uri, &xml.isAttribute,
                             &xml.countIn, 0);
    return xml;
}

bool CKTXMLGenerator::CanWrite() const {
    const char* fault = nullptr;
    if (m_pDictionary == nullptr) {
        fault = "Invalid COBOL Data Dictionary";
    } else if (m_pDictionary->getFormatTarget() == nullptr) {
        fault = "Invalid XML Target Formatter";
    } else if (m_pDictionary->getXMLFormatter() == nullptr) {
        fault = "Invalid XML Formatter";
    }
    if (fault != nullptr) {
        ::WriteLine(std::cerr, {fault});
    }
    return fault == nullptr;
}

bool CKTXMLGenerator::GenerateFile(const std::string& dataDictFile, const std::string& mappingFile,
                                   const std::string& schemaFile, const std::string& cobolFile,
                                   FILE_TYPE type, const std::string& text, bool countIn) {
    if (!CanWrite()) {
        return false;
    }
    m_sDataDictFile = dataDictFile;
    m_sPrefix = text;
    m_bCountIn = countIn;
    const std::string name = type == EXTERNAL_MAPPING ? mappingFile
                             : type == XML_SCHEMA     ? schemaFile
                             : type == ENHANCED_COBOL ? cobolFile
                                                      : std::string();
    CKTOutputFile file(name);
    const bool toFile = file.IsOpen();
    if (!toFile && IsQuiet()) {
        // What goes to a silenced console is lost.
        ReportUnwritableOutput(name);
    } else if (name.empty()) {
        ::WriteLine(std::cerr, {"Invalid filename.  Outputting XML to console:\n"});
    } else if (!toFile && IsQuiet()) {
        ReportUnwritableOutput(name);  // the console would drop it
    } else if (!toFile) {
        ::WriteLine(std::cerr, {"Unable to open output file ", name,
                                "\nOutputting XML to stdout by default\n"});
    }
    m_pMarkup = std::make_unique<CKTMarkup>(*m_pDictionary->getXMLFormatter(),
                                            *m_pDictionary->getFormatTarget());
    WriteOutput(type);
    m_pMarkup.reset();
    if (!file.Close()) {
        ReportUnwritableOutput(name);
        return false;
    }
    return toFile;
}

void CKTXMLGenerator::WriteOutput(FILE_TYPE type) {
    if (type != ENHANCED_COBOL) {
        WriteLine(0, "<?xml version=\"1.0\" encoding=\"" +
                         NarrowText(m_pDictionary->getXMLFormatter()->getEncodingName()) + "\"?>");
    }
    switch (type) {
        case INTERNAL_MAPPING:
            getXMLFromDataDict(m_Found.program, 0, 0,
                               &CKTXMLGenerator::OutputInternalMappingFileElement);
            break;
        case EXTERNAL_MAPPING:
            getXMLFromDataDict(m_Found.program, 0, 0,
                               &CKTXMLGenerator::OutputExternalMappingFileElement);
            break;
        case XML_SCHEMA:
            getXMLFromDataDict(m_Found.program, 0, 0, &CKTXMLGenerator::OutputXMLSchemaFileElement);
            break;
        case ENHANCED_COBOL:
            for (const CKTXMLElement* passed : m_Found.passed) {
                getEnhancedCOBOLFromDataDict(passed, 1);
            }
            getEnhancedCOBOLFromDataDict(m_Found.record, 1);
            break;
        default:
            ::WriteLine(std::cerr, {"Invalid File Type Selection for XML Output"});
            break;
    }
}

/// Visits `e` at `level` (that of a record is 1): the writer begins it, its children follow, the
/// writer ends it. Of a program only its record is visited. Returns whether the children were.
bool CKTXMLGenerator::getXMLFromDataDict(const CKTXMLElement* e, unsigned indent, int level,
                                         Writer writer) {
    if (e == nullptr || level > kMaxNesting) {
        return false;
    }
    const DictionaryKind kind = DictionaryKindOf(e);
    TraversalFlags flags;
    unsigned childIndent = indent;
    if (IsCondition(kind)) {
        flags.descend = true;
    } else if (e == m_Found.program || IsConstant(kind) || IsRange(kind) ||
               (IsDataItem(kind) && level <= CKTCOBOLRecordItem::kMaxLevel)) {
        childIndent = (this->*writer)(e, indent, level, flags);
    }
    if (e->getFirstChildElem() != nullptr) {
        if (flags.open) {
            m_pMarkup->Add(">\n");
        }
        if (flags.descend && e == m_Found.program) {
            getXMLFromDataDict(m_Found.record, childIndent, level + 1, writer);
        } else if (flags.descend) {
            ForEachMember(e, [&](const CKTXMLElement* child) {
                getXMLFromDataDict(child, childIndent, level + 1, writer);
            });
        }
    }
    if (flags.open) {
        (this->*writer)(e, indent, level, flags);
    }
    return flags.descend;
}

void CKTXMLGenerator::WriteLine(unsigned indent, std::string_view text) {
    m_pMarkup->Add(text, indent);
    m_pMarkup->Add("\n");
}
