// The user's record as a copybook whose items carry the XML clauses.

#include <array>
#include <iostream>
#include <sstream>

#include "cobol/KTCOBOLRecordItem.h"
#include "support/Console.h"
#include "xmlgen/KTXMLGenerator.h"

namespace {

struct Clause {
    std::string_view attribute;
    std::string_view value;
    std::string_view text;
};

constexpr std::array kClauses = {
    Clause{"sign", "li", " sign is leading"},
    Clause{"sign", "ls", " sign is leading separate"},
    Clause{"sign", "ts", " sign is trailing separate"},
    Clause{"justified", "right", " justified right"},
    Clause{"blankWhenZero", "true", " blank when zero"},
};

void ReportRedefinition(const CKTXMLElement* item) {
    WriteLine(
        std::cerr,
        {"Warning : The redefines clause is not supported by this version of the COBOL runtime. "
         "The element \"",
         AttributeOf(item, "name"),
         "\" and it's child data items will not be converted by DORVEX."});
}

void ReportRenaming(const CKTXMLElement* item) {
    std::istringstream words{std::string(AttributeOf(item, "renames"))};
    std::string first;
    std::string second;
    const bool range = (words >> first >> second) || item->getAttribute("through") != nullptr ||
                       item->getAttribute("to") != nullptr;
    WriteLine(std::cerr, {"Warning : This version of DORVEX does not support the RENAMES clause",
                          range ? " for ranges" : ""});
}

void AppendUsage(std::string& line, const CKTXMLElement* item) {
    const DictionaryKind kind = DictionaryKindOf(item);
    const CKTXMLAttribute* usage = item->getAttribute("usage");
    if (kind == DictionaryKind::National) {
        line += " usage is national";
    } else if (IsElementary(kind) && usage != nullptr && usage->getValue() != "display") {
        line += " usage is " + usage->getValue();
    }
}

void AppendOccurs(std::string& line, const CKTXMLElement* item) {
    const CKTXMLAttribute* maximum = item->getAttribute("maxOccurs");
    if (maximum == nullptr || maximum->getValue() == "1") {
        return;
    }
    const CKTXMLAttribute* minimum = item->getAttribute("minOccurs");
    line += " occurs ";
    if (minimum != nullptr && minimum->getValue() != maximum->getValue()) {
        line += minimum->getValue() + " to ";
    }
    line += maximum->getValue() + " times";
    if (const CKTXMLAttribute* object = item->getAttribute("odo")) {
        line += " depending on " + object->getValue();
    }
}

/// Appends the values of a condition-name: those below it or, without any, its own.
void AppendValues(std::string& line, const CKTXMLElement* condition) {
    std::string values;
    bool own = true;
    for (const CKTXMLElement* value = condition->getFirstChildElem(); value != nullptr;
         value = value->getNextSibling()) {
        const DictionaryKind kind = DictionaryKindOf(value);
        own = own && !IsRange(kind) && !IsConstant(kind);
        if (IsRange(kind)) {
            values += " ";
            values += AttributeOf(value, "from");
            values += " through ";
            values += AttributeOf(value, "to");
        } else if (IsConstant(kind) && value->getAttribute("value") != nullptr) {
            values += " ";
            values += AttributeOf(value, "value");
        }
    }
    if (own && condition->getAttribute("value") != nullptr) {
        values += " ";
        values += AttributeOf(condition, "value");
    }
    if (!values.empty()) {
        line += " value is" + values;
    }
}

std::string BeginLine(const CKTXMLElement* item, int level, const std::string& number) {
    const std::string_view name = AttributeOf(item, "name");
    std::string line(static_cast<std::size_t>(level) + 7, ' ');
    line += number + " ";
    line += name.empty() ? "FILLER" : name;
    return line;
}

}  // namespace

/// Writes `e` with `level` and what is below it. Returns whether something was written.
bool CKTXMLGenerator::getEnhancedCOBOLFromDataDict(const CKTXMLElement* e, int level) {
    if (e == nullptr) {
        return false;
    }
    const DictionaryKind kind = DictionaryKindOf(e);
    if (IsCondition(kind)) {
        std::string line = BeginLine(e, level, "88");
        AppendValues(line, e);
        CKTCOBOLRecordItem::OutputFixedFormatCOBOL((line + ".").c_str(), std::cout);
        return true;
    }
    if (!IsDataItem(kind)) {
        return false;
    }
    if (IsRedefinition(e)) {
        ReportRedefinition(e);
        return false;
    }
    if (IsRenaming(e)) {
        ReportRenaming(e);
        return false;
    }
    if (level > CKTCOBOLRecordItem::kMaxLevel) {
        ::WriteLine(std::cerr,
                    {"Warning : Data item \"", AttributeOf(e, "name"),
                     "\" is nested deeper than COBOL level 49.  Item will not be converted."});
        return false;
    }
    CKTCOBOLRecordItem::OutputFixedFormatCOBOL(BuildItemLine(e, level).c_str(), std::cout);
    ForEachMember(
        e, [&](const CKTXMLElement* child) { getEnhancedCOBOLFromDataDict(child, level + 1); });
    return true;
}

std::string CKTXMLGenerator::BuildItemLine(const CKTXMLElement* item, int level) const {
    std::string line = BeginLine(item, level, std::to_string(level));
    if (const CKTXMLAttribute* picture = item->getAttribute("picture")) {
        line += " pic " + picture->getValue();
    }
    AppendUsage(line, item);
    AppendOccurs(line, item);
    for (const Clause& clause : kClauses) {
        if (AttributeOf(item, clause.attribute) == clause.value) {
            line += clause.text;
        }
    }
    AppendXmlClauses(line, item);
    line += ".";
    return line;
}

void CKTXMLGenerator::AppendXmlClauses(std::string& line, const CKTXMLElement* item) const {
    const XmlItem xml = Describe(item);
    if (xml.name.empty()) {
        return;
    }
    line += " identified by \"" + xml.name + "\"";
    if (!xml.uri.empty()) {
        line += " namespace is \"" + xml.uri + "\"";
    }
    if (xml.isAttribute) {
        line += " is attribute";
    }
    if (xml.countIn) {
        line += " count in " + m_sPrefix + xml.name + "-count";
    }
}
