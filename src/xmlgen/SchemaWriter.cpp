// The schema of a record: groups become complex types, elementary items simple types with facets,
// the values of condition-names enumerations.

#include <iostream>

#include "support/Console.h"
#include "support/Text.h"
#include "xml/KTDOMFormatTarget.h"
#include "xmlgen/KTXMLGenerator.h"

namespace {

constexpr const char* kSchemaNamespace = "http://www.w3.org/2001/XMLSchema";

bool HasChildren(const CKTXMLElement* item) {
    return item->getFirstChildElem() != nullptr;
}

std::string EndTag(bool isAttribute) {
    return isAttribute ? "</attribute>" : "</element>";
}

/// The facets that an item of a type gets.
enum class FacetForm { None, Length, Digits };

FacetForm FacetFormOf(const CKTXMLElement* item, const std::string& type) {
    if (DictionaryKindOf(item) == DictionaryKind::NumericEdited) {
        return FacetForm::None;
    }
    if (type == "string") {
        const std::string usage(AttributeOf(item, "usage"));
        const bool computational = my_strnicmp(usage.c_str(), "comp", 4) == 0;
        return !computational && item->getAttribute("length") != nullptr ? FacetForm::Length
                                                                         : FacetForm::None;
    }
    const bool number = type == "decimal" || type == "integer";
    return number && item->getAttribute("digits") != nullptr ? FacetForm::Digits : FacetForm::None;
}

void ReportForeignNamespace(bool group, const std::string& uri) {
    WriteLine(std::cerr, {"Warning : The generated schema requires an <import> ",
                          group ? "for reference of" : "statement for the reference of",
                          " definitions in the ", uri, " namespace."});
    WriteLine(std::cerr, {"Warning : The generated schema is invalid for the XML instance document "
                          "represented by the generated COBOL XD."});
}

void ReportRange(const CKTXMLElement* range) {
    const CKTXMLAttribute* name =
        range->isParent() ? range->getParent()->getAttribute("name") : nullptr;
    if (name == nullptr) {
        return;
    }
    WriteLine(std::cerr, {"Warning : Data range specifier \"", name->getValue(),
                          "\" is not supported by DORVEX."});
    WriteLine(std::cerr, {"Warning : Due to non-support of data range specifiers, enumerators will "
                          "not be generated for the parent element of data-range \"",
                          name->getValue(), "\""});
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

unsigned CKTXMLGenerator::OutputXMLSchemaFileElement(const CKTXMLElement* item, unsigned indent,
                                                     int level, TraversalFlags& flags) {
    const DictionaryKind kind = DictionaryKindOf(item);
    if (kind == DictionaryKind::Program) {
        return WriteSchemaRoot(indent, flags);
    }
    if (IsRedefinition(item)) {
        return indent;
    }
    if (kind == DictionaryKind::Group) {
        return WriteGroup(item, indent, level, flags);
    }
    if (IsElementary(kind)) {
        return WriteElementary(item, indent, flags);
    }
    if (IsConstant(kind)) {
        WriteConstant(item, indent);
    } else if (IsRange(kind)) {
        ReportRange(item);
    }
    return indent;
}

unsigned CKTXMLGenerator::WriteSchemaRoot(unsigned indent, TraversalFlags& flags) {
    if (flags.open) {
        WriteLine(indent, "</schema>");
        return indent;
    }
    m_pMarkup->AddTag("schema", indent);
    m_pMarkup->AddAttribute("xmlns", kSchemaNamespace);
    m_pMarkup->AddAttribute("elementFormDefault", "qualified");
    m_sTargetNamespace.clear();
    ApplyExternalMappingFile(m_Found.record, m_pMapping, nullptr, nullptr, &m_sTargetNamespace,
                             nullptr, nullptr, 0);
    if (!m_sTargetNamespace.empty()) {
        m_pMarkup->AddAttribute("targetNamespace", m_sTargetNamespace);
    }
    flags.open = true;
    flags.descend = true;
    return indent + 3;
}

/// Begins the tag of an item: its name, a namespace that is not the schema's, and the bounds of an
/// OCCURS clause.
void CKTXMLGenerator::BeginItem(const CKTXMLElement* item, const XmlItem& xml, unsigned indent) {
    const bool group = DictionaryKindOf(item) == DictionaryKind::Group;
    m_pMarkup->AddTag(xml.isAttribute ? "attribute" : "element", indent);
    m_pMarkup->AddAttribute("name", xml.name);
    if (!xml.uri.empty() && xml.uri != m_sTargetNamespace) {
        m_pMarkup->AddAttribute("xmlns", xml.uri);
        ReportForeignNamespace(group, xml.uri);
    }
    const CKTXMLAttribute* minimum = item->getAttribute("minOccurs");
    const CKTXMLAttribute* maximum = item->getAttribute("maxOccurs");
    if (const CKTXMLAttribute* shown = minimum != nullptr ? minimum : maximum) {
        m_pMarkup->AddAttribute("minOccurs", shown->getValue());
    }
    const bool inGroup =
        item->isParent() && DictionaryKindOf(item->getParent()) == DictionaryKind::Group;
    if (maximum != nullptr) {
        m_pMarkup->AddAttribute("maxOccurs", maximum->getValue());
    } else if (group && inGroup) {
        // Every subordinate group that does not repeat is unbounded, on purpose.
        m_pMarkup->AddAttribute("maxOccurs", "unbounded");
    }
}

unsigned CKTXMLGenerator::WriteElementary(const CKTXMLElement* item, unsigned indent,
                                          TraversalFlags& flags) {
    const XmlItem xml = Describe(item);
    if (xml.name.empty()) {
        return indent;
    }
    const bool facets = FacetFormOf(item, xml.type) != FacetForm::None;
    if (flags.open) {
        if (facets) {
            WriteLine(indent + 6, "</restriction>");
            WriteLine(indent + 3, "</simpleType>");
        }
        if (facets || HasChildren(item)) {
            WriteLine(indent, EndTag(xml.isAttribute));
        } else {
            m_pMarkup->Add("/>\n");
        }
        return indent;
    }
    BeginItem(item, xml, indent);
    if (facets) {
        WriteFacets(item, xml.type, indent);
    } else if (!HasChildren(item)) {
        m_pMarkup->AddAttribute("type", xml.type);
    }
    flags.open = true;
    flags.descend = true;
    return indent;
}

/// Ends the item's tag and begins its anonymous type. After a length the traversal ends the line of
/// an item with children; after digits it has a line of its own.
void CKTXMLGenerator::WriteFacets(const CKTXMLElement* item, const std::string& type,
                                  unsigned indent) {
    m_pMarkup->Add(">\n");
    WriteLine(indent + 3, "<simpleType>");
    WriteLine(indent + 6, "<restriction base=\"" + type + "\">");
    if (type == "string") {
        long long length = ReadLength(AttributeOf(item, "length"));
        if (DictionaryKindOf(item) == DictionaryKind::National) {
            length /= 2;  // a national character takes two bytes
        }
        m_pMarkup->AddTag("maxLength", indent + 9);
        m_pMarkup->AddAttribute("value", std::to_string(length));
        m_pMarkup->Add(HasChildren(item) ? "/" : "/>\n");
        return;
    }
    m_pMarkup->AddTag("totalDigits", indent + 9);
    m_pMarkup->AddAttribute("value", item->getAttribute("digits")->getValue());
    m_pMarkup->Add("/>\n");
    const CKTXMLAttribute* alignment = item->getAttribute("alignment");
    if (type == "decimal" && alignment != nullptr) {
        m_pMarkup->AddTag("fractionDigits", indent + 9);
        m_pMarkup->AddAttribute("value", alignment->getValue());
        m_pMarkup->Add("/>\n");
    }
}

unsigned CKTXMLGenerator::WriteGroup(const CKTXMLElement* item, unsigned indent, int level,
                                     TraversalFlags& flags) {
    const XmlItem xml = Describe(item);
    if (xml.name.empty()) {
        return indent;
    }
    if (flags.open) {
        if (!HasChildren(item)) {
            m_pMarkup->Add("/>\n");
            return indent;
        }
        WriteLine(indent + 6, "</sequence>");
        WriteLine(indent + 3, "</complexType>");
        WriteLine(indent, EndTag(xml.isAttribute));
        return indent;
    }
    BeginItem(item, xml, indent);
    flags.open = true;
    flags.descend = true;
    if (!HasChildren(item)) {
        return indent;
    }
    m_pMarkup->Add(">\n");
    WriteLine(indent + 3, "<complexType>");
    if (m_pMapping == nullptr) {
        m_pMarkup->AddTag("sequence", indent + 6);
        return indent + 9;
    }
    WriteMappedMembers(item, indent, level);
    WriteLine(indent + 3, "</complexType>");
    WriteLine(indent, EndTag(xml.isAttribute));
    flags = {};
    return indent;
}

/// Writes the members that are elements inside a sequence and those that the mapping makes
/// attributes after it, as a complex type wants them.
void CKTXMLGenerator::WriteMappedMembers(const CKTXMLElement* group, unsigned indent, int level) {
    std::vector<const CKTXMLElement*> attributes;
    bool begun = false;
    ForEachMember(group, [&](const CKTXMLElement* child) {
        bool isAttribute = false;
        if (IsDataItem(DictionaryKindOf(child))) {  // no entry stands for a condition-name
            ApplyExternalMappingFile(child, m_pMapping, nullptr, nullptr, nullptr, &isAttribute,
                                     nullptr, 0);
        }
        if (isAttribute) {
            attributes.push_back(child);
            return;
        }
        if (!begun) {
            WriteLine(indent + 6, "<sequence>");
            begun = true;
        }
        getXMLFromDataDict(child, indent + 9, level + 1,
                           &CKTXMLGenerator::OutputXMLSchemaFileElement);
    });
    if (begun) {
        WriteLine(indent + 6, "</sequence>");
    }
    for (const CKTXMLElement* child : attributes) {
        getXMLFromDataDict(child, indent + 6, level + 1,
                           &CKTXMLGenerator::OutputXMLSchemaFileElement);
    }
}

void CKTXMLGenerator::WriteConstant(const CKTXMLElement* constant, unsigned indent) {
    const CKTXMLElement* condition = constant->getParent();
    const CKTXMLAttribute* value = constant->getAttribute("value");
    if (value == nullptr || !IsCondition(DictionaryKindOf(condition))) {
        return;
    }
    const Enumeration& enumeration = EnumerationOf(condition->getParent());
    if (enumeration.hasRange) {
        return;
    }
    if (constant == enumeration.first) {
        WriteLine(indent + 3, "<simpleType>");
        WriteLine(indent + 6, "<restriction base=\"" + getXmlType(constant) + "\">");
    }
    m_pMarkup->AddTag("enumeration", indent + 9);
    m_pMarkup->AddAttribute("value", LiteralValue(value->getValue()));
    m_pMarkup->Add("/>\n");
    if (constant == enumeration.last) {
        WriteLine(indent + 6, "</restriction>");
        WriteLine(indent + 3, "</simpleType>");
    }
}

const CKTXMLGenerator::Enumeration& CKTXMLGenerator::EnumerationOf(const CKTXMLElement* item) {
    const auto [entry, isNew] = m_Enumerations.try_emplace(item);
    Enumeration& enumeration = entry->second;
    if (!isNew) {
        return enumeration;
    }
    for (const CKTXMLElement* condition = item->getFirstChildElem(); condition != nullptr;
         condition = condition->getNextSibling()) {
        if (!IsCondition(DictionaryKindOf(condition))) {
            continue;
        }
        enumeration.hasRange = enumeration.hasRange || BeginsWithRange(condition);
        for (const CKTXMLElement* value = condition->getFirstChildElem(); value != nullptr;
             value = value->getNextSibling()) {
            if (IsConstant(DictionaryKindOf(value)) && value->getAttribute("value") != nullptr &&
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
