// The mapping file is flat: whatever the depth of an item, its entry stands directly in the root.
// It holds the defaults, as they stand without a mapping set: who edits it sees what would have
// been written. An unnamed group has no entry, but what is below it does.

#include "xmlgen/MappingWriter.h"

#include "xmlgen/Vocabularies.h"

namespace {

constexpr unsigned kEntryIndent = 3;

}  // namespace

bool CKTMappingWriter::Begin(const DictionaryItem& item) {
    if (item.kind == DictionaryKind::Program) {
        m_Markup.AddTag("xml-cobol-mapping-file", 0);
        AddRootAttributes(m_Markup, kMappingNamespace, "ktxmlmap.xsd");
        m_Markup.Add(">\n");
        return true;
    }
    if (IsCondition(item.kind)) {
        return true;
    }
    if (!IsConvertible(item)) {
        return false;
    }
    const CKTItemClauses clauses(item.element);
    if (!clauses.Text(Clause::Name).empty()) {
        WriteEntry(item, clauses);
    }
    return true;
}

void CKTMappingWriter::End(const DictionaryItem& item) {
    if (item.kind == DictionaryKind::Program) {
        m_Markup.Add("</xml-cobol-mapping-file>\n");
    }
}

void CKTMappingWriter::WriteEntry(const DictionaryItem& item, const CKTItemClauses& clauses) {
    const std::string& name = *clauses.Find(Clause::Name);
    // A group has no type of XML Schema.
    const bool group = item.kind == DictionaryKind::Group;
    m_Markup.Add("<xml-cobol-mapping>\n", kEntryIndent);
    WriteField("cobol-name", CKTQualifiedName(item.element).Text());
    WriteField("cobol-count-in", m_bCountIn ? "true" : "false");
    // A FILLER has an entry so that it can be given a name.
    WriteField("xml-name", IsNoName(name) ? std::string() : name);
    WriteField("xml-type", std::string(group ? "group" : XmlTypeOf(item.kind, clauses)));
    WriteField("xml-attribute", "false");
    WriteField("xml-namespace", "");
    m_Markup.Add("</xml-cobol-mapping>\n", kEntryIndent);
}

void CKTMappingWriter::WriteField(const char* name, const std::string& text) {
    m_Markup.AddTag(name, 2 * kEntryIndent);
    m_Markup.Add(">");
    m_Markup.AddContent(text);
    m_Markup.Add("</");
    m_Markup.Add(name);
    m_Markup.Add(">\n");
}
