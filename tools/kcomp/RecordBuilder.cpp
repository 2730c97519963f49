#include "kcomp/RecordBuilder.h"

#include "kcomp/Text.h"

namespace {

std::string ShownName(const DataItem& item) {
    return Quoted(item.name.empty() ? "FILLER" : item.name);
}

/// Whether the item stands under groups of these names, given from the innermost on.
bool IsBelow(const DataItem* item, const std::vector<std::string>& qualifiers) {
    std::size_t met = 0;
    for (const DataItem* group = item->parent; group != nullptr && met < qualifiers.size();
         group = group->parent) {
        met += SameWord(group->name, qualifiers[met]) ? 1 : 0;
    }
    return met == qualifiers.size();
}

}  // namespace

void CKTRecordBuilder::Add(std::unique_ptr<DataItem> item) {
    switch (item->level) {
        case kConditionLevel:
            AddCondition(std::move(item));
            break;
        case kRenamesLevel:
            AddRenames(std::move(item));
            break;
        case kConstantLevel:
            m_Area.items.push_back(std::move(item));
            break;
        default:
            AddData(std::move(item));
    }
}

void CKTRecordBuilder::AddData(std::unique_ptr<DataItem> item) {
    const bool lone = item->level == kLoneLevel;
    while (!m_Open.empty() && (lone || m_Open.back().item->level >= item->level)) {
        m_Open.pop_back();
    }
    DataItem* added = item.get();
    if (m_Open.empty()) {
        if (!lone && !m_bBare && item->level != 1) {
            m_Context.report.Error(item->place, ShownName(*item) + " stands under no level 01");
        }
        Finish();
        m_nErrorsBefore = m_Context.report.Errors();
        m_pRecord = added;
        CheckRedefines(*item, m_RecordNames);
        m_Area.items.push_back(std::move(item));
    } else {
        DataItem* parent = m_Open.back().item;
        if (!parent->picture.empty()) {
            m_Context.report.Error(item->place,
                                   ShownName(*item) + " stands under an item that has a PICTURE");
        }
        CheckRedefines(*item, m_Open.back().names);
        item->parent = parent;
        parent->isGroup = true;
        parent->children.push_back(std::move(item));
    }
    m_pLast = added;
    if (!lone) {
        m_Open.push_back({added, {}});
    }
}

void CKTRecordBuilder::AddCondition(std::unique_ptr<DataItem> item) {
    if (m_pLast == nullptr) {
        m_Context.report.Error(item->place,
                               "Condition-name " + ShownName(*item) + " stands behind no item");
        return;
    }
    item->parent = m_pLast;
    m_pLast->children.push_back(std::move(item));
}

void CKTRecordBuilder::AddRenames(std::unique_ptr<DataItem> item) {
    if (m_pRecord == nullptr || !m_pRecord->isGroup) {
        m_Context.report.Error(item->place, ShownName(*item) + " renames items of no record");
        return;
    }
    item->parent = m_pRecord;
    m_pLast = item.get();
    m_Renames.push_back(m_pLast);
    m_pRecord->children.push_back(std::move(item));
}

void CKTRecordBuilder::CheckRedefines(const DataItem& item,
                                      std::unordered_set<std::string>& names) {
    if (!item.redefines.empty() && !names.contains(ToUpper(item.redefines))) {
        m_Context.report.Error(item.place, "REDEFINES names " + Quoted(item.redefines) +
                                               ", which does not stand before it beside it");
    }
    names.insert(ToUpper(item.name));
}

void CKTRecordBuilder::Finish() {
    if (m_pRecord == nullptr) {
        return;
    }
    // An entry that could not be read would only bring follow-up complaints.
    if (m_Context.report.Errors() == m_nErrorsBefore) {
        DescribeItem(*m_pRecord, m_Context);
    }
    if (m_Context.report.Errors() == m_nErrorsBefore) {
        for (DataItem* renames : m_Renames) {
            DescribeRenames(*renames);
        }
    }
    m_Renames.clear();
    m_ItemsOfRecord.clear();
    m_pRecord = nullptr;
    m_pLast = nullptr;
}

DataItem* CKTRecordBuilder::FindRenamed(const std::string& qualifiedName) {
    if (m_ItemsOfRecord.empty()) {
        std::vector<DataItem*> pending = {m_pRecord};
        while (!pending.empty()) {
            DataItem* item = pending.back();
            pending.pop_back();
            for (const auto& child : item->children) {
                if (child->level <= kHighestLevel) {
                    m_ItemsOfRecord.emplace(ToUpper(child->name), child.get());
                    pending.push_back(child.get());
                }
            }
        }
    }
    constexpr std::string_view kOf = " OF ";
    std::vector<std::string> names;
    for (std::string_view rest = qualifiedName;;) {
        const std::size_t end = rest.find(kOf);
        names.emplace_back(rest.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(end + kOf.size());
    }
    const auto [first, last] = m_ItemsOfRecord.equal_range(ToUpper(names.front()));
    names.erase(names.begin());
    for (auto candidate = first; candidate != last; ++candidate) {
        if (IsBelow(candidate->second, names)) {
            return candidate->second;
        }
    }
    return nullptr;
}

// One elementary item under another name is what that item is; anything else is the text that the
// items take up together.
void CKTRecordBuilder::DescribeRenames(DataItem& item) {
    const bool range = !item.renamesThrough.empty();
    const DataItem* first = FindRenamed(item.renames);
    const DataItem* last = range ? FindRenamed(item.renamesThrough) : first;
    if (first == nullptr || last == nullptr || last->offset < first->offset) {
        m_Context.report.Error(item.place,
                               "RENAMES names what does not stand in the record in that order");
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
