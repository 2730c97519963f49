// Sorts the attributes of an element into a table. Every output reads most of them, and a search
// through the attributes for each clause would be the larger part of the work.

#include "xmlgen/ItemClauses.h"

#include <algorithm>

namespace {

constexpr std::array<std::string_view, 18> kNames = {
    "name",      "usage",     "picture",       "length",    "digits",    "alignment",
    "sign",      "justified", "blankWhenZero", "minOccurs", "maxOccurs", "odo",
    "redefines", "renames",   "value",         "from",      "to",        "through",
};

}  // namespace

CKTItemClauses::CKTItemClauses(const CKTXMLElement* e) {
    static_assert(kNames.size() == kClauses);
    for (const CKTXMLAttribute* a = e->getFirstAttr(); a != nullptr; a = a->getNextSibling()) {
        const auto* const name = std::find(kNames.begin(), kNames.end(), a->getName());
        if (name != kNames.end()) {
            const std::string*& text = m_Texts[static_cast<std::size_t>(name - kNames.begin())];
            text = text == nullptr ? &a->getValue() : text;  // the first one counts
        }
    }
}
