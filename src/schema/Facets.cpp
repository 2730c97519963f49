// Facets: lengths and digits become the picture, enumerations become condition names. A condition
// name is numbered by the children that a search for its value passes, so the search is kept up by
// count, and done by look-up only until the values of a restriction are known to differ. Facets act
// where the picture is: on the item, or on the child that its value has moved to. What COBOL cannot
// express, patterns and ranges, is said once for each facet and changes nothing.

#include "schema/Facets.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "schema/Complaints.h"
#include "schema/RecordTree.h"
#include "schema/SchemaVocabulary.h"
#include "support/Text.h"

namespace {

std::string_view ShownName(const CKTCOBOLRecordItem& item) {
    return item.m_sXMLName.empty() ? item.m_sDataName : item.m_sXMLName;
}

std::string WhiteSpaceEffect(const std::string& value) {
    return value == "preserve"   ? MessageText<SchemaMessage::Preserve>()
           : value == "replace"  ? MessageText<SchemaMessage::Replace>()
           : value == "collapse" ? MessageText<SchemaMessage::Collapse>()
                                 : std::string();
}

void ApplySize(CKTCOBOLRecordItem& holder, FacetKind kind, const std::string& value) {
    const bool enough = kind == FacetKind::MinLength && !holder.m_sPicLength.empty() &&
                        ReadInteger(holder.m_sPicLength) >= ReadInteger(value);
    if (!enough) {
        holder.m_sPicLength.Share(value);
    }
}

/// Adds condition names to one item; knows the values that are there, and how many children the
/// search for a value has passed. Values that are known to differ are not searched for.
class CKTConditionList {
public:
    CKTConditionList(OpenItem& open, const CKTXMLElement& restriction, CKTRecordTree& records,
                     DistinctEnumerations& distinct)
        : m_Item(*open.item), m_pRestriction(&restriction), m_Records(records), m_Known(distinct) {
        // A derived enumeration replaces the inherited one. Facets that are read from a type
        // definition itself add to what is there.
        if (GeneratorKindOf(restriction.getName()) == GeneratorKind::Restriction) {
            std::erase_if(m_Item.m_Children,
                          [](const auto& child) { return child->IsCondition(); });
            m_bMustSearch = !m_Known.contains(m_pRestriction);
            return;
        }
        m_bDistinct = false;
        for (std::size_t place = 0; place < m_Item.m_Children.size(); ++place) {
            if (m_Item.m_Children[place]->IsCondition()) {
                m_Places.emplace(m_Item.m_Children[place]->m_sValue, place);
            }
        }
    }
    ~CKTConditionList() {
        if (m_bMustSearch && m_bDistinct) {
            m_Known.insert(m_pRestriction);
        }
    }
    CKTConditionList(const CKTConditionList&) = delete;
    CKTConditionList& operator=(const CKTConditionList&) = delete;

    /// A value that is there already only moves the count on: it is not set back by a duplicate.
    void Add(const std::string& value) {
        const std::size_t place = m_Item.m_Children.size();
        if (m_bMustSearch) {
            const auto [found, isNew] = m_Places.emplace(value, place);
            if (!isNew) {
                m_nPassed += found->second;
                m_bDistinct = false;
                return;
            }
        }
        if (CKTCOBOLRecordItem* condition = m_Records.MakeConditionItem(m_Item)) {
            ShareName(condition->m_sDataName, m_nPassed + place);
            condition->m_sValue.Share(value);
        }
        // The next search begins at the front again.
        m_nPassed = 0;
    }

private:
    /// Most enumerations are short, so the first names are made once for all of them.
    static void ShareName(CKTItemText& target, std::size_t number) {
        static constexpr std::size_t kShared = 1000;
        static const std::vector<std::string> names = [] {
            std::vector<std::string> made;
            for (std::size_t n = 0; n < kShared; ++n) {
                made.push_back("enumerator-" + std::to_string(n));
            }
            return made;
        }();
        if (number < kShared) {
            target.Share(names[number]);
        } else {
            target.Assign("enumerator-", std::to_string(number));
        }
    }

    CKTCOBOLRecordItem& m_Item;
    const CKTXMLElement* m_pRestriction;
    CKTRecordTree& m_Records;
    DistinctEnumerations& m_Known;
    bool m_bMustSearch = true;
    bool m_bDistinct = true;
    std::unordered_map<std::string_view, std::size_t> m_Places;
    std::size_t m_nPassed = 0;
};

/// Applies a facet that changes the picture in `holder`.
void ApplyToPicture(CKTCOBOLRecordItem& holder, FacetKind kind, const std::string& value) {
    switch (kind) {
        case FacetKind::Length:
        case FacetKind::MinLength:
        case FacetKind::MaxLength:
            ApplySize(holder, kind, value);
            break;
        case FacetKind::TotalDigits:
            // Read as a number of any size; the picture has room for as many as an int has.
            holder.m_nDigits =
                static_cast<int>(std::clamp<long long>(ReadInteger(value), INT_MIN, INT_MAX));
            break;
        case FacetKind::FractionDigits:
            holder.m_sFractionDigits.Share(value);
            break;
        default:
            break;
    }
}

/// Applies one facet other than an enumeration. The value of white space is looked up on the
/// restriction, where a valid schema has none.
void ApplyFacet(const OpenItem& open, const CKTXMLElement& restriction, const CKTXMLElement& facet,
                FacetKind kind) {
    switch (kind) {
        case FacetKind::Pattern:
            Report<SchemaMessage::Pattern>(ShownName(*open.item));
            break;
        case FacetKind::WhiteSpace:
            if (const std::string* value = AttributeValue(&restriction, "value")) {
                Report<SchemaMessage::WhiteSpace>(ShownName(*open.item), WhiteSpaceEffect(*value));
            }
            break;
        case FacetKind::MaxInclusive:
        case FacetKind::MaxExclusive:
        case FacetKind::MinInclusive:
        case FacetKind::MinExclusive:
            Report<SchemaMessage::Range>(CKTXMLNode::getNonQualifiedName(facet.getName()),
                                         ShownName(*open.item));
            break;
        default:
            const std::string* value = AttributeValue(&facet, "value");
            CKTCOBOLRecordItem* holder = value == nullptr ? nullptr : open.ValueHolder();
            if (holder != nullptr) {
                ApplyToPicture(*holder, kind, *value);
            }
            break;
    }
}

}  // namespace

void ApplyFacets(OpenItem& open, const CKTXMLElement& restriction, CKTRecordTree& records,
                 DistinctEnumerations& distinct) {
    std::optional<CKTConditionList> conditions;
    for (const CKTXMLElement* facet = restriction.getFirstChildElem(); facet != nullptr;
         facet = facet->getNextSibling()) {
        const FacetKind kind = FacetKindOf(facet->getName());
        if (kind != FacetKind::Enumeration) {
            ApplyFacet(open, restriction, *facet, kind);
            continue;
        }
        const std::string* value = AttributeValue(facet, "value");
        if (value == nullptr) {
            continue;
        }
        if (!conditions) {
            conditions.emplace(open, restriction, records, distinct);
        }
        conditions->Add(*value);
        // The value moves when the enumeration is the last thing in its restriction, and goes
        // behind the conditions, which stay those of the item.
        if (facet->getNextSibling() == nullptr && open.item->HasValue()) {
            records.MoveValue(open, false);
        }
    }
}

void ApplyValueFacets(OpenItem& open, const CKTXMLElement& restriction) {
    for (const CKTXMLElement* facet = restriction.getFirstChildElem(); facet != nullptr;
         facet = facet->getNextSibling()) {
        ApplyFacet(open, restriction, *facet, FacetKindOf(facet->getName()));
    }
}
