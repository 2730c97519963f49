#ifndef DORVEX_KCOMP_RECORDBUILDER_H
#define DORVEX_KCOMP_RECORDBUILDER_H

#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "kcomp/DataItem.h"
#include "kcomp/EntryReader.h"

/// Builds the records of one area from its entries, in the order of the source. The area owns the
/// items from the moment they are added; what finds no place, or only below a skipped item, is
/// dropped.
class CKTRecordBuilder {
public:
    /// Finished records go into `area`. In a bare copybook (`bare`) a record may begin at any
    /// level, because the program that copies it may stand above it. What is complained of goes to
    /// the report of `context`, which also learns the names of the items. All of it must outlive
    /// the builder.
    CKTRecordBuilder(RecordArea& area, bool bare, ReadingContext& context)
        : m_Area(area), m_bBare(bare), m_Context(context) {}

    /// Puts an item where its level says. Complains when the item cannot stand there; what stands
    /// below an item that was skipped is left out without a word.
    void Add(std::unique_ptr<DataItem> item);

    /// Takes an item that could not be read: its name stays known to REDEFINES, and what stands
    /// below it is passed over, so that one fault is one complaint.
    void Skip(std::unique_ptr<DataItem> item);

    /// Says that the record lacks items, so that nothing is said about what depends on them.
    void MarkDamaged() { m_bDamaged = true; }

    /// Completes the last record: what its items inherit, and whether their clauses agree.
    void Finish();

private:
    using Names = std::unordered_map<std::string, DataItem*>;  // by their upper case

    struct OpenItem {
        DataItem* item;
        Names names;  // of its children
    };

    void AddData(std::unique_ptr<DataItem> item);
    void AddCondition(std::unique_ptr<DataItem> item);
    void AddConstant(std::unique_ptr<DataItem> item);
    void AddRenames(std::unique_ptr<DataItem> item);
    void BeginRecord(std::unique_ptr<DataItem> item);
    void CheckLevel(const DataItem& item, DataItem& parent);
    void CheckRedefines(DataItem& item, Names& names);
    void IndexItems();
    DataItem* FindRenamed(const DataItem& item, const std::string& qualifiedName);
    void DescribeRenames(DataItem& item);

    static constexpr int kNothingSkipped = 100;

    RecordArea& m_Area;
    bool m_bBare;
    ReadingContext& m_Context;
    std::vector<OpenItem> m_Open;
    Names m_RecordNames;
    DataItem* m_pRecord = nullptr;
    DataItem* m_pLast = nullptr;       // whose condition-names come next
    int m_nSkipped = kNothingSkipped;  // the level of an item that could not be read
    bool m_bDamaged = false;           // the record lacks such an item
    std::vector<DataItem*> m_Renames;
    // For RENAMES: by name, and by name and the name of each group above.
    std::unordered_multimap<std::string, DataItem*> m_ItemsOfRecord;
};

/// The name of the item as messages show it: between quotation marks, FILLER without one.
std::string ShownName(const DataItem& item);

/// Whether the item stands under groups of these names, given from the innermost on. Others may
/// stand between them.
bool IsBelow(const DataItem* item, std::span<const std::string> groups);

/// Completes an item and all below it: usage and sign that they inherit, category, sizes and
/// offsets. Complains of clauses that do not go together.
void DescribeItem(DataItem& item, ReadingContext& context);

#endif
