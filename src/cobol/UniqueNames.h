#ifndef DORVEX_COBOL_UNIQUENAMES_H
#define DORVEX_COBOL_UNIQUENAMES_H

#include <string_view>
#include <unordered_map>
#include <unordered_set>

class CKTCOBOLRecordItem;

/// The data names that come before the item being written, in the pre-order of its record. It
/// answers what FindRecordItemByName would, at the same cost however many items there are. The
/// record outlives it.
class CKTUniqueNames {
public:
    /// Collects the names before `first` in its record; writing starts there.
    explicit CKTUniqueNames(const CKTCOBOLRecordItem& first);

    /// Renames `item` to NAME-1, NAME-2 and so on while an earlier valid item has its name, its
    /// count-in name with it, and adds the name. The record's top item is neither renamed nor a
    /// namesake.
    void MakeUnique(CKTCOBOLRecordItem& item);

    /// Adds the names of the valid items below `item`, which is not written itself.
    void AddBelow(const CKTCOBOLRecordItem& item);

private:
    bool AddBefore(const CKTCOBOLRecordItem& searchIn, const CKTCOBOLRecordItem& stop);

    // Views of the names of items that are not renamed any more.
    std::unordered_set<std::string_view> m_Used;
    std::unordered_map<std::string_view, int> m_NextNumber;
};

#endif
