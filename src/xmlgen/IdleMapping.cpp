// Finds mapping entries without effect. The record is walked once, and the qualified name of an
// item is carried along as a hash that each level continues, so that a name is only built to
// confirm a match, once for each entry.

#include "xmlgen/IdleMapping.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <string_view>
#include <unordered_map>

#include "support/Console.h"
#include "xmlgen/DataDictionary.h"
#include "xmlgen/KTXMLGenerator.h"

namespace {

constexpr std::size_t kMostListed = 20;

/// The hash of the names from the outermost one that counts down to an element.
class CKTQualifiedHash {
public:
    /// The hash of `e`, which stands below what this one is of; without a name it starts anew.
    [[nodiscard]] CKTQualifiedHash Below(const CKTXMLElement* e) const {
        CKTQualifiedHash result;
        if (const CKTXMLAttribute* name = e->getAttribute("name")) {
            if (m_bNamed) {
                result.m_nHash = m_nHash;
                result.Append(".");
            }
            result.Append(name->getValue());
            result.m_bNamed = true;
        }
        return result;
    }

    /// The hash of a whole qualified name.
    static CKTQualifiedHash Of(std::string_view qualified) {
        CKTQualifiedHash result;
        result.Append(qualified);
        return result;
    }

    [[nodiscard]] std::uint64_t Value() const { return m_nHash; }

private:
    void Append(std::string_view text) {
        constexpr std::uint64_t kPrime = 1099511628211U;
        for (const char c : text) {
            m_nHash = (m_nHash ^ static_cast<unsigned char>(c)) * kPrime;
        }
    }

    std::uint64_t m_nHash = 14695981039346656037U;
    bool m_bNamed = false;
};

/// The names of the entries that no item has claimed yet.
class CKTUnclaimedNames {
public:
    explicit CKTUnclaimedNames(const CKTXMLCOBOLExternalMapping& mapping) {
        for (const CKTXMLCOBOLMapping* entry = mapping.getFirst(); entry != nullptr;
             entry = entry->getNextSibling()) {
            if (!IsUnclaimed(entry->m_sCobolName)) {
                m_Names.emplace(CKTQualifiedHash::Of(entry->m_sCobolName).Value(),
                                entry->m_sCobolName);
            }
        }
    }

    void Claim(const CKTXMLElement* item, const CKTQualifiedHash& hash) {
        const auto [begin, end] = m_Names.equal_range(hash.Value());
        if (begin == end) {
            return;
        }
        const std::string qualified = CKTXMLGenerator::getQualifiedNameAttr(item);
        const auto found =
            std::find_if(begin, end, [&](const auto& entry) { return entry.second == qualified; });
        if (found != end) {
            m_Names.erase(found);
        }
    }

    [[nodiscard]] bool IsUnclaimed(const std::string& name) const {
        const auto [begin, end] = m_Names.equal_range(CKTQualifiedHash::Of(name).Value());
        return std::any_of(begin, end, [&](const auto& entry) { return entry.second == name; });
    }

private:
    std::unordered_multimap<std::uint64_t, std::string_view> m_Names;
};

CKTQualifiedHash HashAbove(const CKTXMLElement* item) {
    std::vector<const CKTXMLElement*> above;
    for (const CKTXMLElement* e = item->getParent();
         e != nullptr && e->getAttribute("name") != nullptr; e = e->getParent()) {
        above.push_back(e);
    }
    CKTQualifiedHash hash;
    for (; !above.empty(); above.pop_back()) {
        hash = hash.Below(above.back());
    }
    return hash;
}

}  // namespace

// With a stack of its own, because items may be nested without bound.
std::vector<const CKTXMLCOBOLMapping*> FindIdleEntries(const CKTXMLCOBOLExternalMapping& mapping,
                                                       const CKTXMLElement* record) {
    struct Place {
        const CKTXMLElement* element;
        CKTQualifiedHash above;
    };
    CKTUnclaimedNames unclaimed(mapping);
    std::vector<Place> pending = {{record, HashAbove(record)}};
    while (!pending.empty()) {
        const auto [e, above] = pending.back();
        if (e == nullptr) {
            pending.pop_back();
            continue;
        }
        pending.back().element = e == record ? nullptr : e->getNextSibling();
        const DictionaryKind kind = DictionaryKindOf(e);
        const CKTQualifiedHash hash = above.Below(e);
        if (IsDataItem(kind) && !AttributeOf(e, "name").empty()) {
            unclaimed.Claim(e, hash);
        }
        if (IsDataItem(kind) || IsSection(kind)) {
            pending.push_back({e->getFirstChildElem(), hash});
        }
    }
    std::vector<const CKTXMLCOBOLMapping*> idle;
    for (const CKTXMLCOBOLMapping* entry = mapping.getFirst(); entry != nullptr;
         entry = entry->getNextSibling()) {
        if (unclaimed.IsUnclaimed(entry->m_sCobolName)) {
            idle.push_back(entry);
        }
    }
    return idle;
}

void ReportIdleMapping(const std::string& name, const CKTXMLCOBOLExternalMapping& mapping,
                       const CKTXMLElement* record) {
    if (mapping.getFirst() == nullptr) {
        WriteLine(std::cerr, {"Note : Mapping file \"", name, "\" holds no entries"});
        return;
    }
    const std::vector<const CKTXMLCOBOLMapping*> idle = FindIdleEntries(mapping, record);
    for (std::size_t i = 0; i < std::min(idle.size(), kMostListed); ++i) {
        WriteLine(std::cerr,
                  {"Note : Mapping entry \"", idle[i]->m_sCobolName, "\" matches no data item"});
    }
    if (idle.size() > kMostListed) {
        WriteLine(std::cerr, {"Note : ", std::to_string(idle.size() - kMostListed),
                              " further mapping entries match no data item"});
    }
}
