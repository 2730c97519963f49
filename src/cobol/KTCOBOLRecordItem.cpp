// Which items can be written, the names of an item, and the stated entry points to the writer.
// Validity is a property of the item and its children alone, so it can be asked as often as it
// takes; only the warning is remembered, to be given once.

#include "cobol/KTCOBOLRecordItem.h"

#include <algorithm>
#include <iostream>

#include "cobol/Complaints.h"
#include "cobol/FixedFormat.h"
#include "cobol/RecordWriter.h"
#include "cobol/UniqueNames.h"
#include "support/Text.h"

CKTCOBOLRecordItem::Form CKTCOBOLRecordItem::FormOf() const {
    if (m_nLevel < 0 || m_sMinOccurs.empty()) {
        return Form::Unusable;
    }
    // A condition without a value says nothing and is no item.
    if (IsCondition() && !m_sDataName.empty() && !m_sValue.empty()) {
        return Form::Complete;
    }
    if (m_sDataName.empty() || m_nLevel < 1 || m_nLevel > kMaxLevel) {
        return Form::Unusable;
    }
    const bool hasPicture = !m_sPicType.empty();
    // Of the usages only floating point stands without a picture.
    if ((hasPicture && !m_sPicLength.empty()) ||
        (!hasPicture && (m_sUsage == "COMP-1" || m_sUsage == "COMP-2"))) {
        return Form::Complete;
    }
    return !hasPicture && m_sPicLength.empty() ? Form::Group : Form::Incomplete;
}

bool CKTCOBOLRecordItem::CanBeWritten() const {
    const Form form = FormOf();
    return form == Form::Complete ||
           (form == Form::Group &&
            std::any_of(m_Children.begin(), m_Children.end(), [](const auto& child) {
                return !child->IsCondition() && child->CanBeWritten();
            }));
}

void CKTCOBOLRecordItem::ReportEmptyStructure() {
    if (!m_bReported) {
        m_bReported = true;
        Report<CobolMessage::EmptyItem>(m_sDataName);
    }
}

void CKTCOBOLRecordItem::setCOBOLDataName(CKTItemText& target, std::string_view name) {
    target = name;
    // Not every compiler takes an underscore in a data name.
    target.Replace('_', '-');
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

void CKTCOBOLRecordItem::AppendPictureClause(std::string& line) const {
    if (m_sPicType.empty()) {
        return;
    }
    const long long fraction = ReadInteger(m_sFractionDigits);
    const bool decimals = m_bHasFraction && fraction > 0;
    line += " PIC ";
    // With all digits behind the point nothing stands before it but a sign.
    if (m_nDigits == -1 || m_nDigits > fraction || !decimals) {
        line += m_sPicType;
        line += '(';
        if (m_nDigits == -1) {
            const std::string_view size = PlainNumber(m_sPicLength);
            // No compiler takes a picture of no characters.
            line += size == "0" ? "1" : size;
        } else {
            line += std::to_string(std::max(m_nDigits - fraction, 1LL));
        }
        line += ')';
    } else if (m_sPicType.View().starts_with('S')) {
        line += 'S';
    }
    if (decimals) {
        line += "V9(";
        line += std::to_string(fraction);
        line += ')';
    }
}

bool CKTCOBOLRecordItem::OutputCOBOLItem(CKTCOBOLRecordItem* item, const std::string& prefix,
                                         bool countIn, bool unique) {
    if (item == nullptr) {
        return false;
    }
    if (!unique) {
        return CKTRecordWriter(prefix, countIn, nullptr).Write(*item);
    }
    CKTUniqueNames names(*item);
    return CKTRecordWriter(prefix, countIn, &names).Write(*item);
}

void CKTCOBOLRecordItem::OutputFixedFormatCOBOL(const char* line, std::ostream& out) {
    std::string entry;
    LayOutEntry(line, entry);
    // Text for a stream that has failed goes to standard output.
    std::ostream& target = out.fail() ? std::cout : out;
    target.write(entry.data(), static_cast<std::streamsize>(entry.size()));
}
