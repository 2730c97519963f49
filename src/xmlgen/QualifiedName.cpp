// The hash runs over the bytes of the text that the name has when it is written out (FNV-1a), so it
// can be continued; the text itself is only compared, from its end upwards, and built for output. A
// name begins below the first element upwards that has none, mostly a section.

#include "xmlgen/QualifiedName.h"

#include <vector>

namespace {

/// The names from that of `e` upwards, as far as the elements have one.
std::vector<std::string_view> NamesUpwards(const CKTXMLElement* e) {
    std::vector<std::string_view> names;
    for (; e != nullptr; e = e->getParent()) {
        const std::string* name = AttributeValue(e, "name");
        if (name == nullptr) {
            break;
        }
        names.push_back(*name);
    }
    return names;
}

}  // namespace

std::uint64_t CKTQualifiedName::Continue(std::uint64_t hash, std::string_view text) {
    constexpr std::uint64_t kPrime = 1099511628211U;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
    }
    return hash;
}

CKTQualifiedName::CKTQualifiedName(const CKTXMLElement* e) : m_pElement(e) {
    std::vector<std::string_view> names = NamesUpwards(e);
    // From the last, which is the outermost.
    for (; !names.empty(); names.pop_back()) {
        m_nHash = Continue(Continue(m_nHash, m_bNamed ? "." : ""), names.back());
        m_bNamed = true;
    }
}

CKTQualifiedName CKTQualifiedName::Below(const CKTXMLElement* e) const {
    CKTQualifiedName result(nullptr);
    result.m_pElement = e;
    if (const std::string* name = AttributeValue(e, "name")) {
        // An element below an unnamed one begins a name of its own.
        const std::uint64_t above = m_bNamed ? Continue(m_nHash, ".") : kStart;
        result.m_nHash = Continue(above, *name);
        result.m_bNamed = true;
    }
    return result;
}

bool CKTQualifiedName::Is(std::string_view text) const {
    bool last = true;
    for (const CKTXMLElement* e = m_pElement; e != nullptr; e = e->getParent()) {
        const std::string* name = AttributeValue(e, "name");
        if (name == nullptr) {
            break;
        }
        if (!last) {
            if (!text.ends_with('.')) {
                return false;
            }
            text.remove_suffix(1);
        }
        // Compared from the end, where names differ: groups share their beginnings.
        if (!text.ends_with(*name)) {
            return false;
        }
        text.remove_suffix(name->size());
        last = false;
    }
    return text.empty();
}

std::string CKTQualifiedName::Text() const {
    std::string text;
    std::vector<std::string_view> names = NamesUpwards(m_pElement);
    for (; !names.empty(); names.pop_back()) {
        text += names.back();
        text += names.size() > 1 ? "." : "";
    }
    return text;
}
