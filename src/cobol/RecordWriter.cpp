// Each entry is built as one free-form line, clause by clause in their order, and then laid out in
// fixed format. Items are judged as they are reached, because a judgement may be a message; a group
// is valid through one of its children, so that child is not judged a second time. Text is gathered
// and handed over in large pieces, but always before a message, so that both keep their order on a
// console.

#include "cobol/RecordWriter.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "cobol/Complaints.h"
#include "cobol/FixedFormat.h"
#include "cobol/KTCOBOLRecordItem.h"
#include "cobol/UniqueNames.h"
#include "cobol/XmlClauses.h"
#include "support/Progress.h"
#include "support/Text.h"

namespace {

constexpr std::size_t kPieceSize = 65536;

}  // namespace

CKTRecordWriter::CKTRecordWriter(std::string_view prefix, bool countIn, CKTUniqueNames* names)
    : m_sPrefix(prefix), m_bCountIn(countIn), m_pNames(names) {}

bool CKTRecordWriter::Write(CKTCOBOLRecordItem& item) {
    if (!IsValid(item)) {
        if (m_pNames != nullptr) {
            // What is below an item that is left out has used its names up all the same.
            m_pNames->AddBelow(item);
        }
        return false;
    }
    // Used up: whoever asks again later has to look again.
    item.m_bFoundValid = false;
    if (m_pNames != nullptr) {
        m_pNames->MakeUnique(item);
    }
    BuildLine(item);
    LayOutEntry(m_sLine, m_sText);
    ReportItemsWritten(1);
    if (m_sText.size() >= kPieceSize) {
        Flush();
    }
    for (const auto& child : item.m_Children) {
        Write(*child);
    }
    return true;
}

/// What CKTCOBOLRecordItem::IsValidCOBOLItem answers and reports.
bool CKTRecordWriter::IsValid(CKTCOBOLRecordItem& item) {
    using Form = CKTCOBOLRecordItem::Form;
    if (item.m_bFoundValid) {
        return true;
    }
    const Form form = item.FormOf();
    // An unusable item is left out without a word.
    if (form == Form::Complete || form == Form::Unusable) {
        return form == Form::Complete;
    }
    if (form == Form::Group) {
        for (const auto& child : item.m_Children) {
            if (!child->IsCondition() && IsValid(*child)) {
                child->m_bFoundValid = true;
                return true;
            }
        }
    }
    Flush();
    item.ReportEmptyStructure();
    return false;
}

void CKTRecordWriter::BuildLine(const CKTCOBOLRecordItem& item) {
    // The layout turns the blanks into the column of the entry.
    m_sLine.assign(static_cast<std::size_t>(std::max(item.m_nDepth, 0)), ' ');
    m_sLine += item.m_nLevel <= 9 ? "0" : "";
    m_sLine += std::to_string(item.m_nLevel);
    m_sLine += ' ';
    m_sLine += m_sPrefix;
    m_sLine += item.m_sDataName;
    if (item.IsCondition()) {
        AppendCondition(item.m_sValue);
    }
    if (item.m_pRedefines != nullptr) {
        AppendRedefines(*item.m_pRedefines);
    }
    item.AppendPictureClause(m_sLine);
    if (!item.m_sUsage.empty()) {
        m_sLine += " USAGE ";
        m_sLine += item.m_sUsage;
    }
    const std::string_view maximum = PlainNumber(item.m_sMaxOccurs);
    // COBOL needs a number; an unbounded item is written once.
    if (!maximum.empty() && maximum != "1" && maximum != "unbounded") {
        m_sLine += " occurs ";
        m_sLine += maximum;
        m_sLine += " times";
    }
    AppendXmlClauses(item);
    m_sLine += '.';
}

void CKTRecordWriter::AppendCondition(std::string_view value) {
    m_sLine += " value is \"";
    for (const char c : value) {
        // A doubled mark keeps the literal one.
        m_sLine.append(c == '"' ? 2 : 1, c);
    }
    m_sLine += '"';
}

void CKTRecordWriter::AppendRedefines(const CKTCOBOLRecordItem& redefined) {
    if (redefined.m_sDataName.empty()) {
        Flush();
        Report<CobolMessage::NamelessRedefinition>();
        return;
    }
    m_sLine += " redefines ";
    m_sLine += m_sPrefix;
    m_sLine += redefined.m_sDataName;
}

void CKTRecordWriter::AppendXmlClauses(const CKTCOBOLRecordItem& item) {
    if (!item.m_sXMLName.empty()) {
        m_sLine += kIdentifiedBy;
        m_sLine += item.m_sXMLName;
        m_sLine += '"';
    }
    if (!item.m_sNamespace.empty() &&
        // A namespace holds for what is below, until another one is written.
        (item.m_pParent == nullptr || !(item.m_pParent->m_sNamespace == item.m_sNamespace))) {
        m_sLine += kNamespaceIs;
        m_sLine += item.m_sNamespace;
        m_sLine += '"';
    }
    if (item.m_bIsAttribute) {
        m_sLine += kIsAttribute;
    }
    if (m_bCountIn && !item.m_sCountInName.empty()) {
        m_sLine += kCountIn;
        m_sLine += item.m_sCountInName;
    }
}

void CKTRecordWriter::Flush() {
    std::cout.write(m_sText.data(), static_cast<std::streamsize>(m_sText.size()));
    m_sText.clear();
}
