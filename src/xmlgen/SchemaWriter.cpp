// Each item that is begun remembers how it is to be ended, since the facets and the sequence that
// were opened decide it. The lines of tags, some of them odd, are what users' scripts know. Indents
// are those of nested tags and are handed down from item to item, so that an enumeration lines up
// with the facets of the item that it belongs to. Attributes come last, as a complex type wants
// them, and end the sequence.

#include "xmlgen/SchemaWriter.h"

#include <iostream>

#include "support/Text.h"
#include "xmlgen/Complaints.h"
#include "xmlgen/Vocabularies.h"

namespace {

void ReportForeignNamespace(bool group, std::string_view uri) {
    if (group) {
        Report<XmlgenMessage::ForeignGroup>(uri);
    } else {
        Report<XmlgenMessage::ForeignItem>(uri);
    }
    // Said each time: every such item makes it so.
    Report<XmlgenMessage::InvalidSchema>();
}

void ReportRange(const CKTXMLElement* range) {
    const std::string* name =
        range->isParent() ? AttributeValue(range->getParent(), "name") : nullptr;
    if (name == nullptr) {
        return;
    }
    Report<XmlgenMessage::Range>(*name);
    Report<XmlgenMessage::NoEnumerators>(*name);
}

/// A length counts as far as it begins with digits; a sign is none.
long long ReadLength(std::string_view text) {
    return text.starts_with('-') || text.starts_with('+') ? 0 : ReadInteger(text);
}

/// What a literal stands for: the text of one that is whole, from its opening mark to the same mark
/// at its end and with no single one between; anything else as it is.
std::string LiteralValue(std::string_view literal) {
    const char mark = literal.empty() ? '\0' : literal.front();
    if (literal.size() < 2 || (mark != '"' && mark != '\'') || literal.back() != mark) {
        return std::string(literal);
    }
    std::string text;
    const std::string_view inner = literal.substr(1, literal.size() - 2);
    for (std::size_t i = 0; i < inner.size(); ++i) {
        text += inner[i];
        // A single mark inside would end the literal, so this is more than one literal.
        if (inner[i] == mark && (++i == inner.size() || inner[i] != mark)) {
            return std::string(literal);
        }
    }
    return text;
}

/// Says whether the first value of a condition-name is a range.
bool BeginsWithRange(const CKTXMLElement* condition) {
    for (const CKTXMLElement* value = condition->getFirstChildElem(); value != nullptr;
         value = value->getNextSibling()) {
        const DictionaryKind kind = DictionaryKindOf(value);
        if (IsRange(kind) || IsConstant(kind)) {
            return IsRange(kind);
        }
    }
    return false;
}

}  // namespace

bool CKTSchemaWriter::Begin(const DictionaryItem& item) {
    if (item.kind == DictionaryKind::Program) {
        BeginSchema();
        return true;
    }
    const unsigned indent = PlaceFor(item);
    if (IsConstant(item.kind)) {
        if (!IsRedefinition(item.element)) {
            WriteConstant(item.element, indent);
        }
        return false;
    }
    if (IsRange(item.kind)) {
        if (!IsRedefinition(item.element)) {
            ReportRange(item.element);
        }
        return false;
    }
    if (IsCondition(item.kind)) {
        m_Open.push_back({indent, indent});
        return true;
    }
    // An unnamed item is left out with all below it: an element needs a name.
    if (!IsConvertible(item) || item.name.empty()) {
        return false;
    }
    if (item.kind == DictionaryKind::Group) {
        BeginGroup(item, indent);
    } else {
        BeginElementary(item, indent);
    }
    return true;
}

void CKTSchemaWriter::End(const DictionaryItem& item) {
    // What was begun decides the end; the item alone does not tell which tags are open.
    const OpenItem open = m_Open.back();
    m_Open.pop_back();
    if (item.kind == DictionaryKind::Program) {
        m_Markup.Add("</schema>\n");
    } else if (item.kind == DictionaryKind::Group) {
        EndGroup(item, open);
    } else if (IsElementary(item.kind)) {
        EndElementary(item, open);
    }
}

/// The indent of a member of the item that is open. The first attribute closes the sequence.
unsigned CKTSchemaWriter::PlaceFor(const DictionaryItem& item) {
    OpenItem& open = m_Open.back();
    if (!item.isAttribute || open.memberIndent == open.indent) {
        return open.memberIndent;
    }
    const unsigned indent = open.indent + 6;
    if (open.inSequence) {
        m_Markup.Add("</sequence>\n", indent);
        open.inSequence = false;
    }
    return indent;
}

void CKTSchemaWriter::BeginSchema() {
    m_Markup.AddTag("schema", 0);
    m_Markup.AddAttribute("xmlns", kSchemaNamespace);
    m_Markup.AddAttribute("elementFormDefault", "qualified");
    if (!m_sTargetNamespace.empty()) {
        m_Markup.AddAttribute("targetNamespace", std::string(m_sTargetNamespace));
    }
    m_Markup.Add(">\n");
    m_Open.push_back({3, 3});
}

/// Begins the tag of an item: its name, a namespace that is not the schema's, and the bounds of an
/// OCCURS clause.
void CKTSchemaWriter::BeginTag(const DictionaryItem& item, const CKTItemClauses& clauses,
                               unsigned indent) {
    const bool group = item.kind == DictionaryKind::Group;
    m_Markup.AddTag(item.isAttribute ? "attribute" : "element", indent);
    m_Markup.AddAttribute("name", std::string(item.name));
    if (!item.uri.empty() && item.uri != m_sTargetNamespace) {
        m_Markup.AddAttribute("xmlns", std::string(item.uri));
        ReportForeignNamespace(group, item.uri);
    }
    const std::string* minimum = clauses.Find(Clause::MinOccurs);
    const std::string* maximum = clauses.Find(Clause::MaxOccurs);
    // A fixed OCCURS has no lower bound of its own in the dictionary; both are the same then.
    if (const std::string* shown = minimum != nullptr ? minimum : maximum) {
        m_Markup.AddAttribute("minOccurs", *shown);
    }
    if (maximum != nullptr) {
        m_Markup.AddAttribute("maxOccurs", *maximum);
    } else if (group && item.element->isParent() &&
               DictionaryKindOf(item.element->getParent()) == DictionaryKind::Group) {
        // Every subordinate group that does not repeat is unbounded, on purpose.
        m_Markup.AddAttribute("maxOccurs", "unbounded");
    }
}

void CKTSchemaWriter::BeginGroup(const DictionaryItem& item, unsigned indent) {
    BeginTag(item, CKTItemClauses(item.element), indent);
    // Without a mapping set a group has a sequence even for members that the view does not show.
    const bool sequence = item.hasChildren && (!m_bMapped || item.hasElements);
    m_Open.push_back({indent, indent + 9, FacetForm::None, sequence});
    if (item.hasChildren) {
        m_Markup.Add(">\n");
        m_Markup.Add("<complexType>\n", indent + 3);
    }
    if (sequence) {
        m_Markup.Add("<sequence>\n", indent + 6);
    }
}

void CKTSchemaWriter::EndGroup(const DictionaryItem& item, const OpenItem& open) {
    if (!item.hasChildren) {
        m_Markup.Add("/>\n");
        return;
    }
    if (open.inSequence) {
        m_Markup.Add("</sequence>\n", open.indent + 6);
    }
    m_Markup.Add("</complexType>\n", open.indent + 3);
    WriteEndTag(item, open.indent);
}

void CKTSchemaWriter::BeginElementary(const DictionaryItem& item, unsigned indent) {
    const CKTItemClauses clauses(item.element);
    const FacetForm facets = FacetsOf(item, clauses);
    BeginTag(item, clauses, indent);
    m_Open.push_back({indent, indent, facets});
    if (facets != FacetForm::None) {
        WriteFacets(item, clauses, facets, indent);
    } else if (!item.hasChildren) {
        m_Markup.AddAttribute("type", std::string(item.type));
    }
    if (item.hasChildren) {
        m_Markup.Add(">\n");
    }
}

void CKTSchemaWriter::EndElementary(const DictionaryItem& item, const OpenItem& open) {
    if (open.facets != FacetForm::None) {
        m_Markup.Add("</restriction>\n", open.indent + 6);
        m_Markup.Add("</simpleType>\n", open.indent + 3);
    }
    if (open.facets != FacetForm::None || item.hasChildren) {
        WriteEndTag(item, open.indent);
    } else {
        m_Markup.Add("/>\n");
    }
}

CKTSchemaWriter::FacetForm CKTSchemaWriter::FacetsOf(const DictionaryItem& item,
                                                     const CKTItemClauses& clauses) {
    // An edited number is a string without a bound.
    if (item.kind == DictionaryKind::NumericEdited) {
        return FacetForm::None;
    }
    if (item.type == "string") {
        // The length of a binary item is its storage, not a number of characters.
        const std::string* usage = clauses.Find(Clause::Usage);
        const bool computational = usage != nullptr && my_strnicmp(usage->c_str(), "comp", 4) == 0;
        return !computational && clauses.Has(Clause::Length) ? FacetForm::Length : FacetForm::None;
    }
    const bool number = item.type == "decimal" || item.type == "integer";
    return number && clauses.Has(Clause::Digits) ? FacetForm::Digits : FacetForm::None;
}

/// Ends the item's tag and begins its anonymous type. The line of a length is left open when the
/// item has children; that of digits is not, so the end of the tag has a line of its own.
void CKTSchemaWriter::WriteFacets(const DictionaryItem& item, const CKTItemClauses& clauses,
                                  FacetForm form, unsigned indent) {
    m_Markup.Add(">\n");
    WriteRestriction(item.type, indent);
    if (form == FacetForm::Length) {
        long long length = ReadLength(clauses.Text(Clause::Length));
        if (item.kind == DictionaryKind::National) {
            length /= 2;  // a national character takes two bytes
        }
        m_Markup.AddTag("maxLength", indent + 9);
        m_Markup.AddAttribute("value", std::to_string(length));
        // The end of this tag is the ">" that ends the line of an item with children.
        m_Markup.Add(item.hasChildren ? "/" : "/>\n");
        return;
    }
    m_Markup.AddTag("totalDigits", indent + 9);
    m_Markup.AddAttribute("value", *clauses.Find(Clause::Digits));
    m_Markup.Add("/>\n");
    if (item.type == "decimal" && clauses.Has(Clause::Alignment)) {
        m_Markup.AddTag("fractionDigits", indent + 9);
        m_Markup.AddAttribute("value", *clauses.Find(Clause::Alignment));
        m_Markup.Add("/>\n");
    }
}

void CKTSchemaWriter::WriteConstant(const CKTXMLElement* constant, unsigned indent) {
    const CKTXMLElement* condition = constant->getParent();
    const std::string* value = AttributeValue(constant, "value");
    if (value == nullptr || !IsCondition(DictionaryKindOf(condition))) {
        return;
    }
    const Enumeration& enumeration = EnumerationOf(condition->getParent());
    // Values beside a range would refuse what the range admits.
    if (enumeration.hasRange) {
        return;
    }
    // One block for all values of the item, however its condition-names share them out.
    if (constant == enumeration.first) {
        WriteRestriction("string", indent);
    }
    m_Markup.AddTag("enumeration", indent + 9);
    m_Markup.AddAttribute("value", LiteralValue(*value));
    m_Markup.Add("/>\n");
    if (constant == enumeration.last) {
        m_Markup.Add("</restriction>\n", indent + 6);
        m_Markup.Add("</simpleType>\n", indent + 3);
    }
}

void CKTSchemaWriter::WriteRestriction(std::string_view base, unsigned indent) {
    m_Markup.Add("<simpleType>\n", indent + 3);
    m_Markup.Add("<restriction base=\"", indent + 6);
    m_Markup.Add(base);
    m_Markup.Add("\">\n");
}

void CKTSchemaWriter::WriteEndTag(const DictionaryItem& item, unsigned indent) {
    m_Markup.Add(item.isAttribute ? "</attribute>\n" : "</element>\n", indent);
}

const CKTSchemaWriter::Enumeration& CKTSchemaWriter::EnumerationOf(const CKTXMLElement* item) {
    // Each constant asks for it; a search for each would go through all others.
    const auto [entry, isNew] = m_Enumerations.try_emplace(item);
    if (isNew) {
        entry->second = FindEnumeration(item);
    }
    return entry->second;
}

CKTSchemaWriter::Enumeration CKTSchemaWriter::FindEnumeration(const CKTXMLElement* item) {
    Enumeration enumeration;
    for (const CKTXMLElement* condition = item->getFirstChildElem(); condition != nullptr;
         condition = condition->getNextSibling()) {
        if (!IsCondition(DictionaryKindOf(condition))) {
            continue;
        }
        enumeration.hasRange = enumeration.hasRange || BeginsWithRange(condition);
        for (const CKTXMLElement* value = condition->getFirstChildElem(); value != nullptr;
             value = value->getNextSibling()) {
            if (IsConstant(DictionaryKindOf(value)) && AttributeValue(value, "value") != nullptr &&
                !IsRedefinition(value)) {
                enumeration.last = value;
                if (enumeration.first == nullptr) {
                    enumeration.first = value;
                }
            }
        }
    }
    return enumeration;
}
