// The mapping file, one entry for each item of the record, and the older service description.

#include "xml/KTDOMFormatTarget.h"
#include "xmlgen/KTXMLGenerator.h"

namespace {

constexpr const char* kMappingNamespace = "http://www.ostrel.com/schema/xml/v1.0/ktxmlmap.xsd";
constexpr const char* kServiceNamespace = "http://www.ostrel.com/schema/xml/v1.0/ktxml.xsd";
constexpr const char* kInstanceNamespace = "http://www.w3.org/2001/XMLSchema-instance";

void AddRootAttributes(CKTMarkup& markup, const std::string& uri, const char* fileName) {
    markup.AddAttribute("xmlns", uri);
    markup.AddAttribute("xmlns:xsi", kInstanceNamespace);
    markup.AddAttribute("xsi:schemaLocation", uri + " " + fileName);
}

}  // namespace

unsigned CKTXMLGenerator::OutputExternalMappingFileElement(const CKTXMLElement* item,
                                                           unsigned indent, int /*level*/,
                                                           TraversalFlags& flags) {
    const DictionaryKind kind = DictionaryKindOf(item);
    if (kind == DictionaryKind::Program) {
        return WriteMappingRoot(indent, flags);
    }
    if (IsRedefinition(item)) {
        return indent;
    }
    if (IsDataItem(kind)) {
        flags.descend = true;
        if (!AttributeOf(item, "name").empty()) {
            WriteMappingEntry(item, indent);
        }
    }
    return indent;
}

unsigned CKTXMLGenerator::WriteMappingRoot(unsigned indent, TraversalFlags& flags) {
    if (flags.open) {
        WriteLine(indent, "</xml-cobol-mapping-file>");
        return indent;
    }
    m_pMarkup->AddTag("xml-cobol-mapping-file", indent);
    AddRootAttributes(*m_pMarkup, kMappingNamespace, "ktxmlmap.xsd");
    flags.open = true;
    flags.descend = true;
    return indent + 3;
}

void CKTXMLGenerator::WriteMappingEntry(const CKTXMLElement* item, unsigned indent) {
    const bool group = DictionaryKindOf(item) == DictionaryKind::Group;
    const std::string name(IsUnnamed(item) ? std::string_view() : AttributeOf(item, "name"));
    WriteLine(indent, "<xml-cobol-mapping>");
    WriteTextElement(indent + 3, "cobol-name", getQualifiedNameAttr(item));
    WriteTextElement(indent + 3, "cobol-count-in", m_bCountIn ? "true" : "false");
    WriteTextElement(indent + 3, "xml-name", name);
    WriteTextElement(indent + 3, "xml-type", group ? "group" : getXmlType(item));
    WriteTextElement(indent + 3, "xml-attribute", "false");
    WriteTextElement(indent + 3, "xml-namespace", "");
    WriteLine(indent, "</xml-cobol-mapping>");
}

void CKTXMLGenerator::WriteTextElement(unsigned indent, const char* name, const std::string& text) {
    m_pMarkup->AddTag(name, indent);
    m_pMarkup->Add(">");
    m_pMarkup->AddContent(text);
    m_pMarkup->Add("</");
    m_pMarkup->Add(name);
    m_pMarkup->Add(">\n");
}

/// The service description holds a `parameter` for the record and a `field` for each item below it,
/// and binds both to COBOL by a `mapping` with the qualified name.
unsigned CKTXMLGenerator::OutputInternalMappingFileElement(const CKTXMLElement* item,
                                                           unsigned indent, int level,
                                                           TraversalFlags& flags) {
    const DictionaryKind kind = DictionaryKindOf(item);
    if (kind == DictionaryKind::Program) {
        return WriteServiceRoot(item, indent, flags);
    }
    if (IsRedefinition(item)) {
        return indent;
    }
    if (!IsDataItem(kind)) {
        return indent;
    }
    flags.descend = true;
    if (IsUnnamed(item)) {
        return indent;
    }
    const XmlItem xml = Describe(item);
    m_pMarkup->AddTag(level == 1 ? "parameter" : "field", indent);
    m_pMarkup->AddAttribute("name", xml.name);
    m_pMarkup->AddAttribute("dataType", getXmlType(item));
    m_pMarkup->AddAttribute("namespace", xml.uri);
    m_pMarkup->AddAttribute("isAttribute", xml.isAttribute ? "true" : "false");
    m_pMarkup->Add("/>\n");
    WriteLine(indent, "<mappings>");
    m_pMarkup->AddTag("mapping", indent + 3);
    m_pMarkup->AddAttribute("item", getQualifiedNameAttr(item));
    m_pMarkup->Add("/>\n");
    WriteLine(indent, "</mappings>");
    return indent;
}

unsigned CKTXMLGenerator::WriteServiceRoot(const CKTXMLElement* program, unsigned indent,
                                           TraversalFlags& flags) {
    if (flags.open) {
        WriteLine(indent + 3, "</parameterTypeDefs>");
        WriteLine(indent, "</service>");
        return indent;
    }
    const std::string name(AttributeOf(program, "name"));
    m_pMarkup->AddTag("service", indent);
    AddRootAttributes(*m_pMarkup, kServiceNamespace, "ktxml.xsd");
    m_pMarkup->AddAttribute("name", name);
    m_pMarkup->AddAttribute("programName", name);
    m_pMarkup->AddAttribute("dataDictFilename", m_sDataDictFile);
    m_pMarkup->AddAttribute("implementation", "xml");
    m_pMarkup->Add(">\n");
    m_pMarkup->AddTag("parameterTypeDefs", indent + 3);
    flags.open = true;
    flags.descend = true;
    return indent + 6;
}
