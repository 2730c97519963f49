#include "cobol/UniqueNames.h"

#include <string>

#include "cobol/KTCOBOLRecordItem.h"

CKTUniqueNames::CKTUniqueNames(const CKTCOBOLRecordItem& first) {
    const CKTCOBOLRecordItem* top = &first;
    while (top->m_pParent != nullptr) {
        top = top->m_pParent;
    }
    AddBefore(*top, first);
}

bool CKTUniqueNames::AddBefore(const CKTCOBOLRecordItem& searchIn, const CKTCOBOLRecordItem& stop) {
    if (&searchIn == &stop) {
        return true;
    }
    for (const auto& child : searchIn.m_Children) {
        if (child.get() == &stop) {
            return true;
        }
        if (child->CanBeWritten()) {
            m_Used.insert(child->m_sDataName);
        }
        if (AddBefore(*child, stop)) {
            return true;
        }
    }
    return false;
}

void CKTUniqueNames::MakeUnique(CKTCOBOLRecordItem& item) {
    if (item.m_pParent == nullptr) {
        return;
    }
    if (const auto earlier = m_Used.find(item.m_sDataName); earlier != m_Used.end()) {
        const std::string_view base = *earlier;
        // Used names stay used, so the numbers below the last one given are never free again.
        int& number = m_NextNumber[base];
        do {
            ++number;
            item.m_sDataName.Assign(base, "-" + std::to_string(number));
        } while (m_Used.contains(item.m_sDataName));
        if (!item.m_sCountInName.empty()) {
            item.m_sCountInName.Assign(item.m_sDataName, "-count");
        }
    }
    m_Used.insert(item.m_sDataName);
}

void CKTUniqueNames::AddBelow(const CKTCOBOLRecordItem& item) {
    for (const auto& child : item.m_Children) {
        if (child->CanBeWritten()) {
            m_Used.insert(child->m_sDataName);
        }
        AddBelow(*child);
    }
}
