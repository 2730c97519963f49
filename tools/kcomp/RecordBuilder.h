#ifndef DORVEX_KCOMP_RECORDBUILDER_H
#define DORVEX_KCOMP_RECORDBUILDER_H

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "kcomp/DataItem.h"
#include "kcomp/EntryReader.h"

/// Builds the records of one area from its entries, in the order of the source.
class CKTRecordBuilder {
public:
    /// Finished records go into `area`. In a bare copybook (`bare`) a record may begin at any
    /// level, because the program that copies it may stand above it.
    CKTRecordBuilder(RecordArea& area, bool bare, ReadingContext& context)
        : m_Area(area), m_bBare(bare), m_Context(context) {}

    /// Puts an item where its level says. Complains when the item cannot stand there, and then
    /// leaves it out.
    void Add(std::unique_ptr<DataItem> item);

    /// Completes the last record: what its items inherit, and whether their clauses agree.
    void Finish();

private:
    struct OpenItem {
        DataItem* item;
        std::unordered_set<std::string> names;  // of its children, in upper case
    };

    void AddData(std::unique_ptr<DataItem> item);
    void AddCondition(std::unique_ptr<DataItem> item);
    void AddRenames(std::unique_ptr<DataItem> item);
    void CheckRedefines(const DataItem& item, std::unordered_set<std::string>& names);
    DataItem* FindRenamed(const std::string& qualifiedName);
    void DescribeRenames(DataItem& item);

    RecordArea& m_Area;
    bool m_bBare;
    ReadingContext& m_Context;
    std::vector<OpenItem> m_Open;
    std::unordered_set<std::string> m_RecordNames;
    DataItem* m_pRecord = nullptr;
    DataItem* m_pLast = nullptr;      // whose condition-names come next
    std::size_t m_nErrorsBefore = 0;  // before the record
    std::vector<DataItem*> m_Renames;
    std::unordered_multimap<std::string, DataItem*> m_ItemsOfRecord;  // only for RENAMES
};

/// Completes an item and all below it: usage and sign that they inherit, category, sizes and
/// offsets. Complains of clauses that do not go together.
void DescribeItem(DataItem& item, ReadingContext& context);

#endif
