#ifndef DORVEX_SCHEMA_WALK_H
#define DORVEX_SCHEMA_WALK_H

#include <string>
#include <unordered_set>
#include <utility>

#include "schema/Facets.h"
#include "schema/NameResolver.h"
#include "schema/RecordTree.h"

/// What became of a construct that was walked into an item.
enum class Answer {
    Made,      ///< it was taken; the item stands
    Nothing,   ///< it yielded nothing; the item stands
    ItemGone,  ///< the item turned out empty and was removed; nobody may touch it any more
    GivenUp    ///< the record is past a bound; nothing more is walked
};

/// The walk through a schema that fills one record after the other, and the context that its
/// handlers share. A handler is given the walk, a construct and the open item that the construct
/// fills; it hands what is below the construct back to the walk and answers what became of it. How
/// an item was removed is told by the answer alone.
class CKTWalk {
public:
    /// A type definition together with the item that it is walked into.
    using ActiveType = std::pair<const CKTCOBOLRecordItem*, const CKTXMLElement*>;
    struct ActiveTypeHash {
        std::size_t operator()(const ActiveType& active) const {
            const std::hash<const void*> hash;
            return hash(active.first) * 31 + hash(active.second);
        }
    };
    using ActiveTypes = std::unordered_set<ActiveType, ActiveTypeHash>;
    using ActiveGroups = std::unordered_set<const CKTXMLElement*>;

    /// `document` is borrowed and outlives the walk; null for none.
    explicit CKTWalk(const CKTXMLSchemaDoc* document) : m_Names(document) {}

    /// Makes the record of the global element `head`, which Records() then holds. Answers Made, or
    /// Nothing or GivenUp when there is none; why was reported, but for a record that is given up.
    Answer WalkHead(CKTXMLElement* head);

    /// Walks `construct` into `open`; only a declaration may be walked into no item. An item that
    /// is still empty at the end of its type is removed.
    Answer Walk(CKTXMLElement* construct, OpenItem& open);

    /// Walks what is below `construct` into `open`, in order, as long as the item stands. Answers
    /// Made even when nothing came of it.
    Answer WalkChildren(const CKTXMLElement* construct, OpenItem& open);

    CKTNameResolver& Names() { return m_Names; }
    [[nodiscard]] const CKTNameResolver& Names() const { return m_Names; }
    CKTRecordTree& Records() { return m_Records; }

    /// What is being walked at the moment, to find where the walk comes back to itself.
    ActiveTypes& TypesWalked() { return m_ActiveTypes; }
    ActiveGroups& GroupsWalked() { return m_ActiveGroups; }

    /// The base that the innermost simple content names; null for none.
    [[nodiscard]] const std::string* SimpleBase() const { return m_pSimpleBase; }
    void SetSimpleBase(const std::string* base) { m_pSimpleBase = base; }

    /// Applies the facets of a restriction and their condition names to the item.
    void TakeFacets(OpenItem& open, const CKTXMLElement& restriction) {
        ApplyFacets(open, restriction, m_Records, m_DistinctEnumerations);
    }

    /// Counts a construct that is looked at `further` constructs below the one being walked.
    /// Returns whether the record is still within its bounds.
    bool CountVisit(std::size_t further) { return m_Records.CountVisit(m_nNesting + further); }

private:
    Answer Dispatch(CKTXMLElement* construct, OpenItem& open);
    Answer RemoveIfEmpty(const CKTXMLElement* construct, const OpenItem& open);

    CKTNameResolver m_Names;
    CKTRecordTree m_Records;
    ActiveTypes m_ActiveTypes;
    ActiveGroups m_ActiveGroups;
    DistinctEnumerations m_DistinctEnumerations;
    const std::string* m_pSimpleBase = nullptr;
    std::size_t m_nNesting = 0;
};

/// A construct that yields nothing leaves what it stands in as it is.
inline Answer WithoutNothing(Answer answer) {
    return answer == Answer::Nothing ? Answer::Made : answer;
}

#endif
