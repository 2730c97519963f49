#ifndef DORVEX_SCHEMA_RECORDTREE_H
#define DORVEX_SCHEMA_RECORDTREE_H

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "cobol/KTCOBOLRecordItem.h"

/// An item that the walk is filling, with what only the walk has to know of it. It lives as long as
/// its declaration is walked; without an item it stands for the place of the record itself.
struct OpenItem {
    explicit OpenItem(CKTCOBOLRecordItem* filled) : item(filled) {}

    CKTCOBOLRecordItem* item;
    CKTCOBOLRecordItem* valueItem = nullptr;  ///< the child that the value has moved to
    const std::string* listBase = nullptr;    ///< names the list to the user; null for no name
    bool isList = false;           ///< the value is of a list type, which has no COBOL form
    bool isReference = false;      ///< the item waits for the declaration that it refers to
    bool hasMixedValue = false;    ///< an item for mixed content was made below it
    bool isSimpleContent = false;  ///< the last derivation is simple content

    /// The item that holds the picture; null when there is none yet.
    [[nodiscard]] CKTCOBOLRecordItem* ValueHolder() const {
        return item->HasValue() ? item : valueItem;
    }
    /// Remembers that the value is of a list type, and the base by which the user knows it.
    void NoteList(const std::string* base);
    /// Reports that the list has no place beside the item's attributes.
    void LeaveListOut();
};

/// The record being made. It owns the items, makes and removes them, and counts what goes into a
/// record: past a bound the record is given up, and no further item is made.
class CKTRecordTree {
public:
    enum class Excess { None, TooManyItems, TooComplex };

    /// Begins a record without items, of which nothing is counted yet.
    void Begin();

    /// The level and the depth of a record's first item.
    void PlaceFirstItem(unsigned level, unsigned depth);

    /// The record's first item; null when there is none.
    [[nodiscard]] CKTCOBOLRecordItem* Record() const { return m_pRecord.get(); }

    /// Makes an item one level below `parent`, or the record's first one (null). Returns null past
    /// a bound and, after a warning that shows `shownName`, when COBOL has no level number for it.
    CKTCOBOLRecordItem* MakeItem(CKTCOBOLRecordItem* parent, std::string_view shownName);

    /// Makes an item that no declaration stands for; its name is made of both parts.
    CKTCOBOLRecordItem* MakeGeneratedItem(CKTCOBOLRecordItem& parent, std::string_view dataName,
                                          std::string_view ending);

    /// Makes a condition name without name and value. Returns null past a bound.
    CKTCOBOLRecordItem* MakeConditionItem(CKTCOBOLRecordItem& parent);

    /// Takes an item out and destroys it with what is below it.
    void Remove(const CKTCOBOLRecordItem& item);

    /// Moves the picture or usage of the item into its "-value" child, which is made, first or last
    /// of the children, when there is none yet. Where no level number is left, the value stays.
    void MoveValue(OpenItem& open, bool toFront);

    /// Counts one construct that is visited `depth` constructs deep. Returns whether the record is
    /// still within its bounds.
    bool CountVisit(std::uint64_t depth);

    /// Why the record was given up.
    [[nodiscard]] Excess GivenUpFor() const { return m_Excess; }
    [[nodiscard]] bool IsGivenUp() const { return m_Excess != Excess::None; }

private:
    bool CountItem();

    std::unique_ptr<CKTCOBOLRecordItem> m_pRecord;
    int m_nFirstLevel = 1;
    int m_nFirstDepth = 7;
    std::uint64_t m_nItemsMade = 0;
    std::uint64_t m_nVisits = 0;
    Excess m_Excess = Excess::None;
};

#endif
