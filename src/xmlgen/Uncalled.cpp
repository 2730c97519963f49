// What no run calls: the service description, and methods of the generator that are its interface
// all the same, of which the runs use what stands behind them. The service description is one more
// writer for the traversal, flat like the mapping file; the methods ask for one item, and make anew
// what the view keeps for all.

#include "xmlgen/KTXMLGenerator.h"
#include "xmlgen/ServiceWriter.h"
#include "xmlgen/Vocabularies.h"

namespace {

constexpr unsigned kServiceIndent = 6;

}  // namespace

bool CKTServiceWriter::Begin(const DictionaryItem& item) {
    if (item.kind == DictionaryKind::Program) {
        WriteRoot(item);
        return true;
    }
    if (IsCondition(item.kind)) {
        return true;
    }
    if (!IsConvertible(item)) {
        return false;
    }
    const CKTItemClauses clauses(item.element);
    // Passed over, with its members in its place.
    if (IsNoName(clauses.Text(Clause::Name))) {
        return true;
    }
    m_Markup.AddTag(item.level == 1 ? "parameter" : "field", kServiceIndent);
    m_Markup.AddAttribute("name", std::string(item.name));
    m_Markup.AddAttribute("dataType", std::string(XmlTypeOf(item.kind, clauses)));
    m_Markup.AddAttribute("namespace", std::string(item.uri));
    m_Markup.AddAttribute("isAttribute", item.isAttribute ? "true" : "false");
    m_Markup.Add("/>\n");
    m_Markup.Add("<mappings>\n", kServiceIndent);
    m_Markup.AddTag("mapping", kServiceIndent + 3);
    m_Markup.AddAttribute("item", CKTQualifiedName(item.element).Text());
    m_Markup.Add("/>\n");
    m_Markup.Add("</mappings>\n", kServiceIndent);
    return true;
}

void CKTServiceWriter::End(const DictionaryItem& item) {
    if (item.kind == DictionaryKind::Program) {
        m_Markup.Add("</parameterTypeDefs>\n", 3);
        m_Markup.Add("</service>\n");
    }
}

void CKTServiceWriter::WriteRoot(const DictionaryItem& program) {
    const std::string name(AttributeOf(program.element, "name"));
    m_Markup.AddTag("service", 0);
    AddRootAttributes(m_Markup, kServiceNamespace, "ktxml.xsd");
    m_Markup.AddAttribute("name", name);
    m_Markup.AddAttribute("programName", name);
    m_Markup.AddAttribute("dataDictFilename", m_sDataDictFile);
    m_Markup.AddAttribute("implementation", "xml");
    m_Markup.Add(">\n");
    m_Markup.Add("<parameterTypeDefs>\n", 3);
}

// The dictionary comes as a tree, for which no parser is needed.
void CKTXMLGenerator::setDOMParser(const CKTDOMParser* /*parser*/) {}

int CKTXMLGenerator::getDataDictElementType(const CKTXMLElement* e) {
    return static_cast<int>(DictionaryKindOf(e));
}

std::string CKTXMLGenerator::getXmlType(const CKTXMLElement* e) {
    return std::string(XmlTypeOf(DictionaryKindOf(e), CKTItemClauses(e)));
}

std::string CKTXMLGenerator::getQualifiedNameAttr(const CKTXMLElement* e) {
    return CKTQualifiedName(e).Text();
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
    // The defaults of an item without an entry stand.
    if (entry == nullptr) {
        return true;
    }
    // Whoever needs only some of the fields leaves the other places null.
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
