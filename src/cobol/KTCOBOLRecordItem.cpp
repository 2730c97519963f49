#include "cobol/KTCOBOLRecordItem.h"

#include <algorithm>
#include <iostream>

#include "cobol/UniqueNames.h"
#include "support/Console.h"
#include "support/Progress.h"
#include "support/Text.h"

template <typename ChildTest>
CKTCOBOLRecordItem::Validity CKTCOBOLRecordItem::Judge(ChildTest canWrite) const {
    if (m_nLevel < 0 || m_sMinOccurs.empty()) {
        return Validity::Unusable;
    }
    if (IsCondition() && !m_sDataName.empty() && !m_sValue.empty()) {
        return Validity::Valid;
    }
    if (m_sDataName.empty() || m_nLevel < 1 || m_nLevel > kMaxLevel) {
        return Validity::Unusable;
    }
    if (!m_sPicType.empty() && !m_sPicLength.empty()) {
        return Validity::Valid;
    }
    if (m_sPicType.empty() && (m_sUsage == "COMP-1" || m_sUsage == "COMP-2")) {
        return Validity::Valid;
    }
    const bool group = m_sPicType.empty() && m_sPicLength.empty() &&
                       std::any_of(m_Children.begin(), m_Children.end(), [&](const auto& child) {
                           return !child->IsCondition() && canWrite(*child);
                       });
    return group ? Validity::Valid : Validity::EmptyStructure;
}

bool CKTCOBOLRecordItem::IsValidCOBOLItem() {
    const Validity validity =
        Judge([](CKTCOBOLRecordItem& child) { return child.IsValidCOBOLItem(); });
    if (validity == Validity::EmptyStructure && !m_bReported) {
        m_bReported = true;
        WriteLine(std::cerr, {"Warning : Unable to convert schema element \"", m_sDataName,
                              "\" to COBOL (empty structure)"});
    }
    return validity == Validity::Valid;
}

bool CKTCOBOLRecordItem::CanBeWritten() const {
    return Judge([](const CKTCOBOLRecordItem& child) { return child.CanBeWritten(); }) ==
           Validity::Valid;
}

bool CKTCOBOLRecordItem::FindRecordItemByName(CKTCOBOLRecordItem* searchIn,
                                              const CKTCOBOLRecordItem* item, bool& reached) {
    if (!reached && searchIn == item) {
        reached = true;
        return true;
    }
    for (const auto& child : searchIn->m_Children) {
        if (!reached && child.get() == item) {
            reached = true;
            return true;
        }
        if (child->IsValidCOBOLItem() && child->m_sDataName == item->m_sDataName) {
            return true;
        }
        if (FindRecordItemByName(child.get(), item, reached)) {
            return true;
        }
    }
    return false;
}

void CKTCOBOLRecordItem::setCOBOLDataName(std::string& target, std::string_view name) {
    target = name;
    std::replace(target.begin(), target.end(), '_', '-');
}

CKTCOBOLRecordItem* CKTCOBOLRecordItem::AddChild(std::unique_ptr<CKTCOBOLRecordItem> child) {
    child->m_pParent = this;
    m_Children.push_back(std::move(child));
    return m_Children.back().get();
}

void CKTCOBOLRecordItem::RemoveChild(const CKTCOBOLRecordItem* child) {
    // From the back: what is taken out again is nearly always the newest child.
    const auto found = std::find_if(m_Children.rbegin(), m_Children.rend(),
                                    [&](const auto& entry) { return entry.get() == child; });
    if (found != m_Children.rend()) {
        m_Children.erase(std::next(found).base());
    }
}

std::string CKTCOBOLRecordItem::PictureClause() const {
    if (m_sPicType.empty()) {
        return {};
    }
    const long long fraction = ReadInteger(m_sFractionDigits);
    const bool decimals = m_bHasFraction && fraction > 0;
    std::string count = m_sPicLength;
    bool integerDigits = true;
    if (m_nDigits != -1) {
        integerDigits = m_nDigits > fraction || !decimals;
        count = std::to_string(m_nDigits - fraction);
    }
    std::string clause = " PIC ";
    if (integerDigits) {
        clause += m_sPicType + "(" + count + ")";
    } else if (m_sPicType.starts_with('S')) {
        clause += 'S';
    }
    if (decimals) {
        clause += "V9(" + std::to_string(fraction) + ")";
    }
    return clause;
}

bool CKTCOBOLRecordItem::OutputCOBOLItem(CKTCOBOLRecordItem* item, const std::string& prefix,
                                         bool countIn, bool unique) {
    if (item == nullptr) {
        return false;
    }
    if (!unique) {
        return item->OutputWithNames(prefix, countIn, nullptr);
    }
    CKTUniqueNames names(*item);
    return item->OutputWithNames(prefix, countIn, &names);
}

bool CKTCOBOLRecordItem::OutputWithNames(const std::string& prefix, bool countIn,
                                         CKTUniqueNames* names) {
    if (!IsValidCOBOLItem()) {
        if (names != nullptr) {
            names->AddBelow(*this);
        }
        return false;
    }
    if (names != nullptr) {
        names->MakeUnique(*this);
    }
    OutputFixedFormatCOBOL(BuildLine(prefix, countIn).c_str(), std::cout);
    ReportItemsWritten(1);
    for (const auto& child : m_Children) {
        child->OutputWithNames(prefix, countIn, names);
    }
    return true;
}

std::string CKTCOBOLRecordItem::BuildLine(const std::string& prefix, bool countIn) const {
    std::string line(static_cast<std::size_t>(std::max(m_nDepth, 0)), ' ');
    line += (m_nLevel <= 9 ? "0" : "") + std::to_string(m_nLevel);
    line += " " + prefix + m_sDataName;
    if (IsCondition()) {
        line += " value is \"";
        for (const char c : m_sValue) {
            line.append(c == '"' ? 2 : 1, c);
        }
        line += '"';
    }
    AppendRedefines(line, prefix);
    line += PictureClause();
    if (!m_sUsage.empty()) {
        line += " USAGE " + m_sUsage;
    }
    if (!m_sMaxOccurs.empty() && m_sMaxOccurs != "1" && m_sMaxOccurs != "unbounded") {
        line += " occurs " + m_sMaxOccurs + " times";
    }
    AppendXmlClauses(line, countIn);
    line += '.';
    return line;
}

void CKTCOBOLRecordItem::AppendRedefines(std::string& line, const std::string& prefix) const {
    if (m_pRedefines == nullptr) {
        return;
    }
    if (m_pRedefines->m_sDataName.empty()) {
        WriteLine(std::cerr, {"Error : Redefines specified, but no COBOL name present"});
    } else {
        line += " redefines " + prefix + m_pRedefines->m_sDataName;
    }
}

void CKTCOBOLRecordItem::AppendXmlClauses(std::string& line, bool countIn) const {
    if (!m_sXMLName.empty()) {
        line += " identified by \"" + m_sXMLName + "\"";
    }
    if (!m_sNamespace.empty() &&
        (m_pParent == nullptr || m_pParent->m_sNamespace != m_sNamespace)) {
        line += " namespace is \"" + m_sNamespace + "\"";
    }
    if (m_bIsAttribute) {
        line += " is attribute";
    }
    if (countIn && !m_sCountInName.empty()) {
        line += " count in " + m_sCountInName;
    }
}
