// Facets: lengths and digits become the picture, enumerations become condition names.

#include <algorithm>
#include <climits>
#include <iostream>
#include <optional>
#include <unordered_map>

#include "schema/KTCOBOLGenerator.h"
#include "support/Console.h"
#include "support/Text.h"

namespace {

std::string_view ShownName(const CKTCOBOLRecordItem* item) {
    return item->m_sXMLName.empty() ? item->m_sDataName : item->m_sXMLName;
}

void ReportUnsupportedFacet(const CKTCOBOLRecordItem* item, std::string_view facet) {
    WriteLine(std::cerr,
              {"Warning : This version of DORVEX does not support ", facet, " ", ShownName(item)});
}

std::string_view WhiteSpaceEffect(std::string_view value) {
    if (value == "preserve") {
        return "No normalization is done, the value is not changed (this is the behavior required "
               "by "
               " [XML 1.0 (Second Edition)] for element content)";
    }
    if (value == "replace") {
        return "All occurrences of #x9 (tab), #xA (line feed) and #xD (carriage return) are "
               "replaced "
               "with #x20 (space)";
    }
    if (value == "collapse") {
        return "After the processing implied by replace, contiguous sequences of #x20's are "
               "collapsed to a  single #x20, and leading and trailing #x20's are removed";
    }
    return {};
}

/// The value of this facet is looked up on the restriction, where a valid schema has none.
void ReportWhiteSpace(const CKTCOBOLRecordItem* item, const CKTXMLElement* restriction) {
    if (const std::string* value = AttributeValue(restriction, "value")) {
        WriteLine(std::cerr, {"Warning : Whitespace facet encountered Warning : Whitespace facet "
                              "encountered for element ",
                              ShownName(item), " - ", WhiteSpaceEffect(*value)});
    }
}

/// The item that length and digits act on: the one that holds the picture.
CKTCOBOLRecordItem* ValueHolder(CKTCOBOLRecordItem* item) {
    return item->HasValue() ? item : item->m_pValueItem;
}

void ApplySize(CKTCOBOLRecordItem* holder, FacetKind kind, const std::string& value) {
    const bool enough = kind == FacetKind::MinLength && !holder->m_sPicLength.empty() &&
                        ReadInteger(holder->m_sPicLength) >= ReadInteger(value);
    if (!enough) {
        holder->m_sPicLength.Share(value);
    }
}

}  // namespace

/// Adds condition names to one item; knows the values that are there, and how many children the
/// search for a value has passed. Values that are known to differ are not searched for.
class CKTCOBOLGenerator::CKTConditionList {
public:
    CKTConditionList(CKTCOBOLGenerator& generator, Item* item, const CKTXMLElement* restriction)
        : m_Generator(generator), m_pItem(item), m_pRestriction(restriction) {
        if (getElementType(restriction) == GeneratorKind::Restriction) {
            std::erase_if(item->m_Children, [](const auto& child) { return child->IsCondition(); });
            m_bMustSearch = !generator.m_DistinctEnumerations.contains(restriction);
            return;
        }
        m_bDistinct = false;
        for (std::size_t place = 0; place < item->m_Children.size(); ++place) {
            if (item->m_Children[place]->IsCondition()) {
                m_Places.emplace(item->m_Children[place]->m_sValue, place);
            }
        }
    }
    ~CKTConditionList() {
        if (m_bMustSearch && m_bDistinct) {
            m_Generator.m_DistinctEnumerations.insert(m_pRestriction);
        }
    }
    CKTConditionList(const CKTConditionList&) = delete;
    CKTConditionList& operator=(const CKTConditionList&) = delete;

    /// A value that is there already only moves the count on: it is not set back by a duplicate.
    void Add(const std::string& value) {
        std::size_t place = m_pItem->m_Children.size();
        if (m_bMustSearch) {
            const auto [found, isNew] = m_Places.emplace(value, place);
            if (!isNew) {
                m_nPassed += found->second;
                m_bDistinct = false;
                return;
            }
        }
        if (Item* condition = m_Generator.MakeConditionItem(m_pItem)) {
            ShareName(condition->m_sDataName, m_nPassed + place);
            condition->m_sValue.Share(value);
        }
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

    CKTCOBOLGenerator& m_Generator;
    Item* m_pItem;
    const CKTXMLElement* m_pRestriction;
    bool m_bMustSearch = true;
    bool m_bDistinct = true;
    std::unordered_map<std::string_view, std::size_t> m_Places;
    std::size_t m_nPassed = 0;
};

void CKTCOBOLGenerator::ProcessElementFacets(CKTCOBOLRecordItem* item,
                                             const CKTXMLElement* restriction) {
    ApplyFacets(item, restriction, true);
}

/// As ProcessElementFacets; without conditions, enumerations are passed over.
void CKTCOBOLGenerator::ApplyFacets(Item* item, const CKTXMLElement* restriction,
                                    bool withConditions) {
    if (item == nullptr) {
        return;
    }
    restriction = restriction != nullptr ? restriction : item->m_pSourceElement;
    if (restriction == nullptr) {
        return;
    }
    std::optional<CKTConditionList> conditions;
    for (const CKTXMLElement* facet = restriction->getFirstChildElem(); facet != nullptr;
         facet = facet->getNextSibling()) {
        const FacetKind kind = getFacetType(facet);
        const std::string* value = AttributeValue(facet, "value");
        if (kind != FacetKind::Enumeration) {
            ApplyFacet(item, restriction, facet, kind, value);
            continue;
        }
        if (!withConditions || value == nullptr) {
            continue;
        }
        if (!conditions) {
            conditions.emplace(*this, item, restriction);
        }
        conditions->Add(*value);
        if (facet->getNextSibling() == nullptr && item->HasValue()) {
            MoveValue(item, false);
        }
    }
}

/// Applies one facet other than an enumeration; `value` is null when the facet has none.
void CKTCOBOLGenerator::ApplyFacet(Item* item, const CKTXMLElement* restriction,
                                   const CKTXMLElement* facet, FacetKind kind,
                                   const std::string* value) {
    Item* holder = value == nullptr ? nullptr : ValueHolder(item);
    switch (kind) {
        case FacetKind::Length:
        case FacetKind::MinLength:
        case FacetKind::MaxLength:
            if (holder != nullptr) {
                ApplySize(holder, kind, *value);
            }
            break;
        case FacetKind::TotalDigits:
            if (holder != nullptr) {
                holder->m_nDigits =
                    static_cast<int>(std::clamp<long long>(ReadInteger(*value), INT_MIN, INT_MAX));
            }
            break;
        case FacetKind::FractionDigits:
            if (holder != nullptr) {
                holder->m_sFractionDigits.Share(*value);
            }
            break;
        case FacetKind::Pattern:
            ReportUnsupportedFacet(item, "the <pattern> element facet for element");
            break;
        case FacetKind::WhiteSpace:
            ReportWhiteSpace(item, restriction);
            break;
        case FacetKind::MaxInclusive:
        case FacetKind::MaxExclusive:
        case FacetKind::MinInclusive:
        case FacetKind::MinExclusive:
            ReportUnsupportedFacet(
                item, "the " + std::string(CKTXMLNode::getNonQualifiedName(facet->getName())) +
                          " facet for the element");
            break;
        case FacetKind::Enumeration:
        case FacetKind::None:
            break;
    }
}
