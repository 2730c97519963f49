// The items that are open stand on a stack, each with the names below it: an entry closes those of
// its own level and of higher numbers, and stands below the one that is left. Condition-names go to
// the item before them, RENAMES to the record. A record is completed when the next one begins or
// the area ends; while items are missing from it, nothing is said about what depends on them. Below
// an item that could not be read everything is passed over. What clauses mean and how large items
// are stands in ItemDescription.cpp.

#include "kcomp/RecordBuilder.h"

#include <algorithm>

#include "kcomp/Text.h"

namespace {

// Between a name and the group that it is qualified by.
constexpr std::string_view kOf = " OF ";

/// Whether the item or a group above it is a table.
bool IsRepeated(const DataItem* item) {
    while (item != nullptr && item->maxOccurs.empty()) {
        item = item->parent;
    }
    return item != nullptr;
}

}  // namespace

std::string ShownName(const DataItem& item) {
    return Quoted(item.name.empty() ? "FILLER" : item.name);
}

bool IsBelow(const DataItem* item, std::span<const std::string> groups) {
    std::size_t met = 0;
    for (const DataItem* group = item->parent; group != nullptr && met < groups.size();
         group = group->parent) {
        // Groups in between need not be named.
        met += SameWord(group->name, groups[met]) ? 1 : 0;
    }
    return met == groups.size();
}

void CKTRecordBuilder::Add(std::unique_ptr<DataItem> item) {
    if (item->isConstant) {
        AddConstant(std::move(item));
    } else if (item->level == kConditionLevel) {
        AddCondition(std::move(item));
    } else if (item->level == kRenamesLevel) {
        AddRenames(std::move(item));
    } else {
        AddData(std::move(item));
    }
}

void CKTRecordBuilder::Skip(std::unique_ptr<DataItem> item) {
    const int level = item->level;
    // Below an item that was skipped itself, even the name is of no use.
    if (level >= 1 && level <= kHighestLevel && level <= m_nSkipped) {
        Add(std::move(item));
        m_nSkipped = level;
    }
    m_bDamaged = true;
}

void CKTRecordBuilder::AddData(std::unique_ptr<DataItem> item) {
    const bool lone = item->level == kLoneLevel;
    if (!lone && item->level > m_nSkipped) {
        return;
    }
    // An item of this level closes what was skipped.
    m_nSkipped = kNothingSkipped;
    // Level 77 stands for itself, whatever its number.
    while (!m_Open.empty() && (lone || m_Open.back().item->level >= item->level)) {
        m_Open.pop_back();
    }
    DataItem* added = item.get();
    if (m_Open.empty()) {
        BeginRecord(std::move(item));
    } else {
        DataItem* parent = m_Open.back().item;
        if (!parent->picture.empty()) {
            m_Context.report.Error(item->place,
                                   TextOf<Message::ParentHasPicture>(ShownName(*item)));
        }
        CheckLevel(*item, *parent);
        CheckRedefines(*item, m_Open.back().names);
        item->parent = parent;
        parent->isGroup = true;
        parent->children.push_back(std::move(item));
    }
    m_pLast = added;
    if (!added->name.empty()) {
        m_Context.items.emplace(ToUpper(added->name), added);
    }
    // Nothing can stand below level 77.
    if (!lone) {
        m_Open.push_back({added, {}});
    }
}

/// A group whose items are not of one level has lost one above them, or a digit is wrong.
void CKTRecordBuilder::CheckLevel(const DataItem& item, DataItem& parent) {
    if (parent.levelBelow == 0) {
        parent.levelBelow = item.level;
    } else if (parent.levelBelow != item.level) {
        m_Context.report.Error(item.place, TextOf<Message::LevelBelow>(ShownName(item)));
    }
}

void CKTRecordBuilder::BeginRecord(std::unique_ptr<DataItem> item) {
    // RENAMES ends a record in a bare copybook as well, so a level behind it has lost its group.
    if (item->level > 1 && item->level != kLoneLevel && (!m_bBare || !m_Renames.empty())) {
        m_Context.report.Error(item->place, TextOf<Message::NoRecord>(ShownName(*item)));
    }
    if (item->level == kLoneLevel && m_Area.isFile) {
        m_Context.report.Error(item->place, TextOf<Message::LoneInFile>(ShownName(*item)));
    }
    Finish();
    m_pRecord = item.get();
    CheckRedefines(*item, m_RecordNames);
    m_Area.items.push_back(std::move(item));
}

void CKTRecordBuilder::AddCondition(std::unique_ptr<DataItem> item) {
    // It may belong to what was left out.
    if (m_nSkipped != kNothingSkipped) {
        return;
    }
    if (m_pLast == nullptr) {
        m_Context.report.Error(item->place, TextOf<Message::ConditionOfNothing>(ShownName(*item)));
        return;
    }
    item->parent = m_pLast;
    m_pLast->children.push_back(std::move(item));
}

/// A constant of level 01 ends the record before it, one of level 78 may stand inside.
void CKTRecordBuilder::AddConstant(std::unique_ptr<DataItem> item) {
    if (item->level != kConstantLevel) {
        m_Open.clear();
        m_nSkipped = kNothingSkipped;
    }
    m_Area.items.push_back(std::move(item));
}

void CKTRecordBuilder::AddRenames(std::unique_ptr<DataItem> item) {
    if (m_pRecord == nullptr || !m_pRecord->isGroup) {
        // The record may have been there but for a fault.
        if (!m_bDamaged) {
            m_Context.report.Error(item->place,
                                   TextOf<Message::RenamesOfNothing>(ShownName(*item)));
        }
        return;
    }
    // Behind it no item of the record may come.
    m_Open.clear();
    m_nSkipped = kNothingSkipped;
    item->parent = m_pRecord;
    m_pLast = item.get();
    m_Renames.push_back(m_pLast);
    m_pRecord->children.push_back(std::move(item));
}

void CKTRecordBuilder::CheckRedefines(DataItem& item, Names& names) {
    if (!item.redefines.empty()) {
        const auto found = names.find(ToUpper(item.redefines));
        if (found == names.end()) {
            m_Context.report.Error(item.place,
                                   TextOf<Message::RedefinesUnknown>(Quoted(item.redefines)));
        } else {
            // What redefines a redefinition shares the storage of the first.
            DataItem* const object = found->second;
            item.redefined = object->redefined == nullptr ? object : object->redefined;
        }
    }
    // The last item of a name is the one that a later clause means.
    names.insert_or_assign(ToUpper(item.name), &item);
}

void CKTRecordBuilder::Finish() {
    if (m_pRecord != nullptr && !m_bDamaged) {
        // RENAMES needs the sizes and places of a record without faults.
        const std::size_t errors = m_Context.report.Errors();
        DescribeItem(*m_pRecord, m_Context);
        for (DataItem* renames : m_Renames) {
            if (m_Context.report.Errors() == errors) {
                DescribeRenames(*renames);
            }
        }
    }
    m_Renames.clear();
    m_ItemsOfRecord.clear();
    m_pRecord = nullptr;
    m_pLast = nullptr;
    m_bDamaged = false;
}

void CKTRecordBuilder::IndexItems() {
    std::vector<DataItem*> pending = {m_pRecord};
    while (!pending.empty()) {
        DataItem* item = pending.back();
        pending.pop_back();
        for (const auto& child : item->children) {
            if (child->level > kHighestLevel) {
                continue;
            }
            const std::string name = ToUpper(child->name);
            m_ItemsOfRecord.emplace(name, child.get());
            // With each group as well, so that a name of many groups is found without trying them
            // all. There are no more groups than levels.
            for (const DataItem* group = item; group != nullptr; group = group->parent) {
                m_ItemsOfRecord.emplace(name + std::string(kOf) + ToUpper(group->name),
                                        child.get());
            }
            pending.push_back(child.get());
        }
    }
}

/// Returns the one item of the record that a RENAMES clause names, or null after a complaint.
DataItem* CKTRecordBuilder::FindRenamed(const DataItem& item, const std::string& qualifiedName) {
    if (m_ItemsOfRecord.empty()) {
        IndexItems();
    }
    const std::size_t first = std::min(qualifiedName.find(kOf), qualifiedName.size());
    const std::size_t second = qualifiedName.find(kOf, first + 1);
    std::vector<std::string> groups;
    for (std::size_t at = first; at < qualifiedName.size();) {
        const std::size_t end = qualifiedName.find(kOf, at + 1);
        groups.push_back(qualifiedName.substr(at + kOf.size(), end - at - kOf.size()));
        at = std::min(end, qualifiedName.size());
    }
    DataItem* found = nullptr;
    // By name and first qualifier; further ones are asked one by one.
    const auto range = m_ItemsOfRecord.equal_range(ToUpper(qualifiedName.substr(0, second)));
    for (auto candidate = range.first; candidate != range.second; ++candidate) {
        if (!IsBelow(candidate->second, groups)) {
            continue;
        }
        // An item below two groups of one name stands there twice.
        if (found != nullptr && found != candidate->second) {
            m_Context.report.Error(item.place,
                                   TextOf<Message::RenamesSeveral>(Quoted(qualifiedName)));
            return nullptr;
        }
        found = candidate->second;
    }
    if (found == nullptr) {
        m_Context.report.Error(item.place, TextOf<Message::RenamesUnknown>(Quoted(qualifiedName)));
    } else if (IsRepeated(found)) {
        m_Context.report.Error(item.place, TextOf<Message::RenamesTable>(Quoted(qualifiedName)));
        return nullptr;
    }
    return found;
}

// One elementary item under another name is what that item is; anything else is the text that the
// items take up together.
void CKTRecordBuilder::DescribeRenames(DataItem& item) {
    const bool range = !item.renamesThrough.empty();
    const DataItem* first = FindRenamed(item, item.renames);
    const DataItem* last =
        first != nullptr && range ? FindRenamed(item, item.renamesThrough) : first;
    if (last == nullptr) {
        return;
    }
    const DataItem* above = range ? last : nullptr;
    while (above != nullptr && above != first) {
        above = above->parent;
    }
    // A range neither goes back nor ends in what it begins with.
    if (last->offset < first->offset || above != nullptr) {
        m_Context.report.Error(item.place, TextOf<Message::RenamesOrder>(
                                               Quoted(item.renamesThrough), Quoted(item.renames)));
        return;
    }
    item.renames = first->name;
    item.renamesThrough = range ? last->name : "";
    if (!range && !first->isGroup) {
        item.category = first->category;
        item.description = first->description;
        item.usage = first->usage;
        item.sign = first->sign;
        item.picture = first->picture;
        item.justified = first->justified;
        item.blankWhenZero = first->blankWhenZero;
    } else {
        item.description.length = last->offset + last->storage - first->offset;
    }
}
