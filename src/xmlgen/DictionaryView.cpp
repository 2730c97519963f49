// One walk over the record with a stack of its own, because a dictionary may be nested without
// bound. It goes on where the outputs stop, below redefinitions and items that are too deep, as
// long as there is a mapping set: an entry for one of those was meant for something. Items lie one
// behind the other in document order, each with the end of its subtree, so that a writer needs no
// pointers and a subtree is passed over in one step.

#include "xmlgen/DictionaryView.h"

#include "cobol/KTCOBOLRecordItem.h"

namespace {

// Condition-names and their values nest below the deepest item; the writers follow by recursion.
constexpr int kMaxNesting = CKTCOBOLRecordItem::kMaxLevel + 10;

}  // namespace

bool IsConvertible(const DictionaryItem& item) {
    return IsDataItem(item.kind) && !item.isRedefinition &&
           item.level <= CKTCOBOLRecordItem::kMaxLevel;
}

CKTDictionaryView::CKTDictionaryView(const DictionaryRecord& found,
                                     CKTXMLCOBOLExternalMapping* mapping)
    : m_pMapping(mapping) {
    if (mapping != nullptr) {
        mapping->ForgetMatches();
    }
    if (found.record == nullptr) {
        return;
    }
    DictionaryItem program;
    program.element = found.program;
    program.kind = DictionaryKind::Program;
    program.hasChildren = true;
    m_Items.push_back(program);
    Walk(found.record);
    m_Items[kProgram].end = static_cast<std::uint32_t>(m_Items.size());
}

void CKTDictionaryView::Walk(const CKTXMLElement* record) {
    Enter(record, {nullptr, CKTQualifiedName(record->getParent()), kProgram, 1, true, false});
    while (!m_Pending.empty()) {
        Siblings& siblings = m_Pending.back();
        const CKTXMLElement* e = siblings.next;
        if (e == nullptr) {
            if (siblings.endsOwner) {
                m_Items[siblings.owner].end = static_cast<std::uint32_t>(m_Items.size());
            }
            m_Pending.pop_back();
            continue;
        }
        siblings.next = e->getNextSibling();
        // A copy, because entering may move the stack.
        Enter(e, Siblings(siblings));
    }
}

void CKTDictionaryView::Enter(const CKTXMLElement* e, const Siblings& place) {
    DictionaryKind kind = DictionaryKindOf(e);
    // Sections have no level and no place of their own; their items count as those of the owner.
    if (IsSection(kind)) {
        m_Pending.push_back({e->getFirstChildElem(), NameBelow(place, e), place.owner, place.level,
                             place.shown, false});
        return;
    }
    if (kind == DictionaryKind::Program) {
        kind = DictionaryKind::Unknown;  // one inside a record has no meaning
    }
    const CKTQualifiedName name = NameBelow(place, e);
    const bool isData = IsDataItem(kind);
    if (!place.shown) {
        if (isData && !AttributeOf(e, "name").empty()) {
            // Nothing is written for it, but its entry is not idle.
            m_pMapping->FindAndMark(name);
        }
        if (isData) {
            m_Pending.push_back(
                {e->getFirstChildElem(), name, place.owner, place.level, false, false});
        }
        return;
    }
    const std::uint32_t index = Add(e, kind, name, place.level);
    const DictionaryItem& item = m_Items[index];
    // Tells the schema writer whether a sequence is needed.
    m_Items[place.owner].hasElements = m_Items[place.owner].hasElements || !item.isAttribute;
    const bool shown = isData ? !item.isRedefinition && item.level <= CKTCOBOLRecordItem::kMaxLevel
                              : IsCondition(kind) && place.level < kMaxNesting;
    if (item.hasChildren && (shown || (isData && m_pMapping != nullptr))) {
        m_Pending.push_back({e->getFirstChildElem(), name, index, place.level + 1, shown, shown});
    }
}

std::uint32_t CKTDictionaryView::Add(const CKTXMLElement* e, DictionaryKind kind,
                                     const CKTQualifiedName& name, int level) {
    const auto index = static_cast<std::uint32_t>(m_Items.size());
    DictionaryItem& item = m_Items.emplace_back();
    item.element = e;
    item.end = index + 1;
    item.kind = kind;
    item.level = static_cast<std::uint8_t>(level);
    item.hasChildren = e->getFirstChildElem() != nullptr;
    if (IsDataItem(kind)) {
        Describe(item, CKTItemClauses(e), name);
    }
    return index;
}

void CKTDictionaryView::Describe(DictionaryItem& item, const CKTItemClauses& clauses,
                                 const CKTQualifiedName& qualified) const {
    const std::string_view name = clauses.Text(Clause::Name);
    item.isRedefinition = clauses.Text(Clause::Redefines) == "true";
    item.isRenaming = clauses.Has(Clause::Renames);
    item.name = IsNoName(name) ? std::string_view() : name;
    item.type = XmlTypeOf(item.kind, clauses);
    // Without an entry the defaults stand; with one all of them are replaced, by empty texts too.
    if (m_pMapping == nullptr || name.empty()) {
        return;
    }
    if (const CKTXMLCOBOLMapping* entry = m_pMapping->FindAndMark(qualified)) {
        item.name = entry->m_sXMLName;
        item.type = entry->m_sXMLType;
        item.uri = entry->m_sXMLNamespace;
        item.isAttribute = entry->m_bXMLAttribute;
        item.countIn = entry->m_bCobolCountIn;
    }
}

/// The names only matter to a mapping set.
CKTQualifiedName CKTDictionaryView::NameBelow(const Siblings& place, const CKTXMLElement* e) const {
    return m_pMapping == nullptr ? place.above : place.above.Below(e);
}
