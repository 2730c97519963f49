// Names are collected in the order in which the record is written; views into the items do for
// them, because an item is renamed before its name is taken and never again. Case does not count in
// COBOL, so it is folded for the letters that a data name can have. Numbers are tried from the last
// one that the name was given.

#include "cobol/UniqueNames.h"

#include <algorithm>
#include <string>

#include "cobol/KTCOBOLRecordItem.h"

namespace {

char Folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::size_t CKTUniqueNames::NameHash::operator()(std::string_view name) const {
    constexpr std::size_t kPrime = 1099511628211U;
    std::size_t hash = 0;
    for (const char c : name) {
        hash = (hash ^ static_cast<unsigned char>(Folded(c))) * kPrime;
    }
    return hash;
}

bool CKTUniqueNames::SameName::operator()(std::string_view a, std::string_view b) const {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Folded(x) == Folded(y); });
}

CKTUniqueNames::CKTUniqueNames(const CKTCOBOLRecordItem& first) {
    const CKTCOBOLRecordItem* top = &first;
    while (top->m_pParent != nullptr) {
        top = top->m_pParent;
    }
    // The record is not renamed itself, but nothing below it may have its name.
    m_Used.insert(top->m_sDataName);
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
    // The record keeps its name, which is taken already.
    if (item.m_pParent == nullptr) {
        return;
    }
    if (const auto earlier = m_Used.find(item.m_sDataName); earlier != m_Used.end()) {
        const std::string base(item.m_sDataName);
        // Used names stay used, so the numbers below the last one given are never free again.
        int& number = m_NextNumber[*earlier];
        do {
            ++number;
            item.m_sDataName.Assign(base, "-" + std::to_string(number));
        } while (m_Used.contains(item.m_sDataName));
        if (!item.m_sCountInName.empty()) {
            // The counter of the item is named after it.
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
