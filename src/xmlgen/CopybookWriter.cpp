// An entry is built in one line, clause by clause, and laid out in columns when it is complete. The
// dictionary is the source of everything but the XML clauses, which come from the view and so from
// the mapping set. What is left out of the schema for want of a name is written here: the storage
// must stay the same.

#include "xmlgen/CopybookWriter.h"

#include <array>
#include <iostream>
#include <sstream>

#include "cobol/KTCOBOLRecordItem.h"
#include "cobol/XmlClauses.h"
#include "support/Limits.h"
#include "xmlgen/Complaints.h"

namespace {

struct FixedClause {
    Clause clause;
    std::string_view value;
    std::string_view text;
};

// In the order in which they are written; each stands for one value of its attribute.
constexpr std::array kFixedClauses = {
    FixedClause{Clause::Sign, "li", " sign is leading"},
    FixedClause{Clause::Sign, "ls", " sign is leading separate"},
    FixedClause{Clause::Sign, "ts", " sign is trailing separate"},
    FixedClause{Clause::Justified, "right", " justified right"},
    FixedClause{Clause::BlankWhenZero, "true", " blank when zero"},
};

void ReportRenaming(const CKTItemClauses& clauses) {
    std::istringstream words{std::string(clauses.Text(Clause::Renames))};
    std::string first;
    std::string second;
    // Several words, a lower and an upper name: the dictionary says it in one of two ways.
    const bool range =
        (words >> first >> second) || clauses.Has(Clause::Through) || clauses.Has(Clause::To);
    if (range) {
        Report<XmlgenMessage::RenamingOfRange>();
    } else {
        Report<XmlgenMessage::Renaming>();
    }
}

/// Reports an item that redefines or renames another; false for any other.
bool ReportLeftOut(const CKTItemClauses& clauses) {
    if (clauses.Text(Clause::Redefines) == "true") {
        Report<XmlgenMessage::Redefinition>(clauses.Text(Clause::Name));
        return true;
    }
    if (clauses.Has(Clause::Renames)) {
        ReportRenaming(clauses);
        return true;
    }
    return false;
}

}  // namespace

bool CKTCopybookWriter::Begin(const DictionaryItem& item) {
    if (item.kind == DictionaryKind::Program) {
        // They stand before the record in the program and get their warnings first.
        for (const CKTXMLElement* passed : m_Passed) {
            ReportLeftOut(CKTItemClauses(passed));
        }
        return true;
    }
    if (IsCondition(item.kind)) {
        const CKTItemClauses clauses(item.element);
        BeginLine(clauses, item.level, "88");
        AppendValues(item, clauses);
        EndLine();
        return false;
    }
    return IsDataItem(item.kind) && BeginDataItem(item);
}

void CKTCopybookWriter::End(const DictionaryItem& /*item*/) {}

bool CKTCopybookWriter::BeginDataItem(const DictionaryItem& item) {
    const CKTItemClauses clauses(item.element);
    if (ReportLeftOut(clauses)) {
        return false;
    }
    if (item.level > kMaxItemLevel) {
        Report<XmlgenMessage::TooDeep>(clauses.Text(Clause::Name), kMaxItemLevel);
        return false;
    }
    BeginLine(clauses, item.level, std::to_string(item.level));
    if (clauses.Has(Clause::Picture)) {
        m_sLine += " pic ";
        m_sLine += clauses.Text(Clause::Picture);
    }
    AppendUsage(item.kind, clauses);
    AppendOccurs(clauses);
    for (const FixedClause& fixed : kFixedClauses) {
        if (clauses.Text(fixed.clause) == fixed.value) {
            m_sLine += fixed.text;
        }
    }
    AppendXmlClauses(item);
    EndLine();
    return true;
}

void CKTCopybookWriter::BeginLine(const CKTItemClauses& clauses, int level,
                                  const std::string& number) {
    const std::string_view name = clauses.Text(Clause::Name);
    // Indented by level, so that the groups show.
    m_sLine.assign(static_cast<std::size_t>(level) + 7, ' ');
    m_sLine += number;
    m_sLine += ' ';
    m_sLine += name.empty() ? "FILLER" : name;
}

void CKTCopybookWriter::AppendUsage(DictionaryKind kind, const CKTItemClauses& clauses) {
    // Not only when the dictionary says so: the kind of the item implies it.
    if (kind == DictionaryKind::National) {
        m_sLine += " usage is national";
    } else if (IsElementary(kind) && clauses.Has(Clause::Usage) &&
               clauses.Text(Clause::Usage) != "display") {
        m_sLine += " usage is ";
        m_sLine += clauses.Text(Clause::Usage);
    }
}

void CKTCopybookWriter::AppendOccurs(const CKTItemClauses& clauses) {
    const std::string_view maximum = clauses.Text(Clause::MaxOccurs);
    // What occurs once needs no clause.
    if (!clauses.Has(Clause::MaxOccurs) || maximum == "1") {
        return;
    }
    m_sLine += " occurs ";
    // Equal bounds are a fixed number.
    if (clauses.Has(Clause::MinOccurs) && clauses.Text(Clause::MinOccurs) != maximum) {
        m_sLine += clauses.Text(Clause::MinOccurs);
        m_sLine += " to ";
    }
    m_sLine += maximum;
    m_sLine += " times";
    if (clauses.Has(Clause::Odo)) {
        m_sLine += " depending on ";
        m_sLine += clauses.Text(Clause::Odo);
    }
}

void CKTCopybookWriter::AppendXmlClauses(const DictionaryItem& item) {
    // FILLER has no counterpart in a document.
    if (item.name.empty()) {
        return;
    }
    m_sLine += kIdentifiedBy;
    m_sLine += item.name;
    m_sLine += '"';
    if (!item.uri.empty()) {
        m_sLine += kNamespaceIs;
        m_sLine += item.uri;
        m_sLine += '"';
    }
    if (item.isAttribute) {
        m_sLine += kIsAttribute;
    }
    if (m_bCountIn && item.countIn) {
        m_sLine += kCountIn;
        m_sLine += m_sPrefix;
        m_sLine += item.name;
        m_sLine += "-count";
    }
}

/// Appends the values of a condition-name: those below it or, without any, its own.
void CKTCopybookWriter::AppendValues(const DictionaryItem& condition,
                                     const CKTItemClauses& clauses) {
    std::string values;
    bool own = true;
    for (const CKTXMLElement* value = condition.element->getFirstChildElem(); value != nullptr;
         value = value->getNextSibling()) {
        const DictionaryKind kind = DictionaryKindOf(value);
        own = own && !IsRange(kind) && !IsConstant(kind);
        if (IsRange(kind)) {
            values += " ";
            values += AttributeOf(value, "from");
            // Always the long word, whatever the source has.
            values += " through ";
            values += AttributeOf(value, "to");
        } else if (IsConstant(kind) && AttributeValue(value, "value") != nullptr) {
            values += " ";
            values += AttributeOf(value, "value");
        }
    }
    // Only a condition-name without values below it; otherwise they would stand twice.
    if (own && clauses.Has(Clause::Value)) {
        values += " ";
        values += clauses.Text(Clause::Value);
    }
    if (!values.empty()) {
        m_sLine += " value is";
        m_sLine += values;
    }
}

void CKTCopybookWriter::EndLine() {
    // The layout sends it to standard output, which leads into the file.
    m_sLine += '.';
    CKTCOBOLRecordItem::OutputFixedFormatCOBOL(m_sLine.c_str(), std::cout);
}
