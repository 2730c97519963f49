// How the walk makes, fills and removes record items.

#include <algorithm>
#include <iostream>

#include "schema/KTCOBOLGenerator.h"
#include "support/Console.h"

namespace {

constexpr std::uint64_t kMaxItems = 1'000'000;

}  // namespace

bool CKTCOBOLGenerator::CountItem() {
    if (++m_nItemsMade > kMaxItems) {
        m_Excess = Excess::TooManyItems;
    }
    return m_Excess == Excess::None;
}

/// Makes an item one level below `parent`, or the record's first one with `level` and `indent`.
/// Returns null, after a warning that shows `shownName`, when COBOL has no level number for it.
CKTCOBOLRecordItem* CKTCOBOLGenerator::MakeItem(Item* parent, std::string_view shownName,
                                                unsigned level, unsigned indent) {
    if (parent != nullptr && parent->m_nLevel >= Item::kMaxLevel) {
        WriteLine(std::cerr, {"Warning : Element \"", shownName,
                              "\" is nested deeper than COBOL level 49.  Element will not be "
                              "converted to COBOL record item."});
        return nullptr;
    }
    if (!CountItem()) {
        return nullptr;
    }
    auto made = std::make_unique<Item>();
    if (parent == nullptr) {
        made->m_nLevel = static_cast<int>(level);
        made->m_nDepth = static_cast<int>(indent);
        m_pRecord = std::move(made);
        return m_pRecord.get();
    }
    made->m_nLevel = parent->m_nLevel + 1;
    made->m_nDepth = parent->m_nDepth + 1;
    return parent->AddChild(std::move(made));
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::MakeGeneratedItem(Item* parent, std::string_view dataName,
                                                         std::string_view ending) {
    CKTItemText cobolName;
    cobolName.Assign(dataName, ending);
    cobolName.Replace('_', '-');
    Item* item = MakeItem(parent, cobolName, 1, 7);
    if (item != nullptr) {
        item->m_sDataName = std::move(cobolName);
        item->m_sMinOccurs = "1";
        item->m_sNamespace = parent->m_sNamespace;
    }
    return item;
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::MakeConditionItem(Item* parent) {
    if (!CountItem()) {
        return nullptr;
    }
    auto made = std::make_unique<Item>();
    made->m_nLevel = Item::kConditionLevel;
    made->m_nDepth = parent->m_nDepth + 1;
    made->m_sMinOccurs = "1";
    made->m_sNamespace = parent->m_sNamespace;
    return parent->AddChild(std::move(made));
}

void CKTCOBOLGenerator::RemoveItem(const Item* item) {
    if (item->m_pParent != nullptr) {
        item->m_pParent->RemoveChild(item);
    } else {
        m_pRecord.reset();
    }
}

/// Moves the picture or usage of `item` into its "-value" child, which is made when there is none
/// yet. Where no level number is left for it, the value stays.
void CKTCOBOLGenerator::MoveValue(Item* item, bool toFront) {
    if (item->m_pValueItem == nullptr) {
        Item* made = MakeGeneratedItem(item, item->m_sDataName, "-value");
        if (made == nullptr) {
            return;
        }
        item->m_pValueItem = made;
        if (toFront) {
            std::rotate(item->m_Children.begin(), item->m_Children.end() - 1,
                        item->m_Children.end());
        }
    }
    Item* value = item->m_pValueItem;
    value->m_sPicType = std::exchange(item->m_sPicType, {});
    value->m_sPicLength = std::exchange(item->m_sPicLength, {});
    value->m_nDigits = std::exchange(item->m_nDigits, -1);
    value->m_sFractionDigits = std::exchange(item->m_sFractionDigits, {});
    value->m_bHasFraction = std::exchange(item->m_bHasFraction, false);
    value->m_sUsage = std::exchange(item->m_sUsage, {});
}

/// Remembers that the value of `item` is of a list type, and `base`, which names it to the user.
void CKTCOBOLGenerator::NoteList(Item* item, const std::string* base) {
    if (!item->m_bIsList) {
        item->m_bIsList = true;
        m_ListBases[item] = base;
    }
}

/// Reports that the list which is the value of `item` has no place beside its attributes.
void CKTCOBOLGenerator::LeaveListOut(Item* item) {
    item->m_bIsList = false;
    const std::string* base = m_ListBases[item];
    WriteLine(std::cerr,
              {"Warning : This version of DORVEX does not support list types.  The value "
               "of \"",
               base == nullptr ? std::string_view() : *base, "\" is left out."});
}
