#ifndef DORVEX_COBOL_UNIQUENAMES_H
#define DORVEX_COBOL_UNIQUENAMES_H

#include <string_view>
#include <unordered_map>
#include <unordered_set>

class CKTCOBOLRecordItem;

/// The data names that come before the item being written, in the pre-order of its record, the
/// record's own first: those that FindRecordItemByName would find, and those that differ from the
/// item's in case only. A name costs the same however many items there are. The record outlives it.
class CKTUniqueNames {
public:
    /// Collects the names before `first` in its record; writing starts there.
    explicit CKTUniqueNames(const CKTCOBOLRecordItem& first);

    /// Renames `item` to NAME-1, NAME-2 and so on while an earlier valid item has its name, its
    /// count-in name with it, and adds the name. The record's top item keeps its name.
    void MakeUnique(CKTCOBOLRecordItem& item);

    /// Adds the names of the valid items below `item`, which is not written itself.
    void AddBelow(const CKTCOBOLRecordItem& item);

private:
    bool AddBefore(const CKTCOBOLRecordItem& searchIn, const CKTCOBOLRecordItem& stop);

    /// Names are the same in every spelling of the letters A to Z, as they are for a compiler.
    struct NameHash {
        std::size_t operator()(std::string_view name) const;
    };
    struct SameName {
        bool operator()(std::string_view a, std::string_view b) const;
    };

    // Views of the names of items that are not renamed any more.
    std::unordered_set<std::string_view, NameHash, SameName> m_Used;
    std::unordered_map<std::string_view, int, NameHash, SameName> m_NextNumber;
};

#endif
