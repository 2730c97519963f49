// Items are counted when they are made, not when the record is finished, because what a schema
// unfolds to may be larger than any memory. A removed item stays counted: making it took its time.
// A record that is given up stays so until the next one begins, and makes no further item.

#include "schema/RecordTree.h"

#include <algorithm>
#include <utility>

#include "schema/Complaints.h"
#include "support/Limits.h"

using Item = CKTCOBOLRecordItem;

void OpenItem::NoteList(const std::string* base) {
    if (!isList) {
        isList = true;
        listBase = base;
    }
}

void OpenItem::LeaveListOut() {
    isList = false;
    Report<SchemaMessage::LostList>(listBase == nullptr ? std::string_view() : *listBase);
}

void CKTRecordTree::Begin() {
    m_pRecord.reset();
    m_nItemsMade = 0;
    m_nVisits = 0;
    m_Excess = Excess::None;
}

void CKTRecordTree::PlaceFirstItem(unsigned level, unsigned depth) {
    m_nFirstLevel = static_cast<int>(level);
    m_nFirstDepth = static_cast<int>(depth);
}

bool CKTRecordTree::CountItem() {
    if (++m_nItemsMade > kMaxRecordItems) {
        m_Excess = Excess::TooManyItems;
    }
    return !IsGivenUp();
}

bool CKTRecordTree::CountVisit(std::uint64_t depth) {
    // Depth is bounded as well, because the handlers call each other.
    if (++m_nVisits > kMaxConstructsVisited || depth > kMaxConstructDepth) {
        m_Excess = Excess::TooComplex;
    }
    return !IsGivenUp();
}

Item* CKTRecordTree::MakeItem(Item* parent, std::string_view shownName) {
    // Not counted: nothing is made, and the message comes once for each such branch.
    if (parent != nullptr && parent->m_nLevel >= kMaxItemLevel) {
        Report<SchemaMessage::TooDeep>(shownName, kMaxItemLevel);
        return nullptr;
    }
    if (!CountItem()) {
        return nullptr;
    }
    auto made = std::make_unique<Item>();
    if (parent == nullptr) {
        made->m_nLevel = m_nFirstLevel;
        made->m_nDepth = m_nFirstDepth;
        m_pRecord = std::move(made);
        return m_pRecord.get();
    }
    made->m_nLevel = parent->m_nLevel + 1;
    made->m_nDepth = parent->m_nDepth + 1;
    return parent->AddChild(std::move(made));
}

Item* CKTRecordTree::MakeGeneratedItem(Item& parent, std::string_view dataName,
                                       std::string_view ending) {
    CKTItemText cobolName;
    cobolName.Assign(dataName, ending);
    // What is handed in need not be a data name yet.
    cobolName.Replace('_', '-');
    Item* item = MakeItem(&parent, cobolName);
    if (item != nullptr) {
        item->m_sDataName = std::move(cobolName);
        item->m_sMinOccurs = "1";
        item->m_sNamespace = parent.m_sNamespace;
    }
    return item;
}

Item* CKTRecordTree::MakeConditionItem(Item& parent) {
    if (!CountItem()) {
        return nullptr;
    }
    auto made = std::make_unique<Item>();
    // Depth sets the column of the entry; the level number does not, since all conditions have 88.
    made->m_nLevel = kConditionNameLevel;
    made->m_nDepth = parent.m_nDepth + 1;
    made->m_sMinOccurs = "1";
    made->m_sNamespace = parent.m_sNamespace;
    return parent.AddChild(std::move(made));
}

void CKTRecordTree::Remove(const Item& item) {
    if (item.m_pParent != nullptr) {
        item.m_pParent->RemoveChild(&item);
    } else {
        m_pRecord.reset();
    }
}

void CKTRecordTree::MoveValue(OpenItem& open, bool toFront) {
    Item& item = *open.item;
    if (open.valueItem == nullptr) {
        open.valueItem = MakeGeneratedItem(item, item.m_sDataName, "-value");
        if (open.valueItem == nullptr) {
            return;
        }
        if (toFront) {
            // In front of what is there already, the attributes.
            std::rotate(item.m_Children.begin(), item.m_Children.end() - 1, item.m_Children.end());
        }
    }
    // The whole picture moves, down to the digits of facets that were read before the move.
    Item& value = *open.valueItem;
    value.m_sPicType = std::exchange(item.m_sPicType, {});
    value.m_sPicLength = std::exchange(item.m_sPicLength, {});
    value.m_nDigits = std::exchange(item.m_nDigits, -1);
    value.m_sFractionDigits = std::exchange(item.m_sFractionDigits, {});
    value.m_bHasFraction = std::exchange(item.m_bHasFraction, false);
    value.m_sUsage = std::exchange(item.m_sUsage, {});
}
