// The element tree. An element owns its attributes and children in lists; the pointers between
// siblings repeat the lists for whoever walks along them and are kept by the few operations that
// change a list. Search and destruction keep a list of their own in place of recursion, so the
// depth of a document costs memory and no stack. Names stand once in the process and are never
// given back; a tree holds few different ones.

#include "xml/KTXMLElement.h"

#include <functional>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "xml/KTDOMParser.h"

namespace {

struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const {
        return std::hash<std::string_view>()(name);
    }
};

/// Links a new last entry of a list with the one before it.
template <typename List>
auto* AppendLinked(List& list, typename List::value_type entry) {
    if (!list.empty()) {
        list.back()->setNextSibling(entry.get());
        entry->setPrevSibling(list.back().get());
    }
    list.push_back(std::move(entry));
    return list.back().get();
}

}  // namespace

std::string_view CKTXMLNode::getNameQualifier(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
}

std::string_view CKTXMLNode::getNonQualifiedName(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

const std::string* CKTXMLNode::InternName(std::string_view name) {
    // A set of nodes: a name stays where it is when the set grows.
    static std::unordered_set<std::string, NameHash, std::equal_to<>> names;
    const auto known = names.find(name);
    return known != names.end() ? &*known : &*names.emplace(name).first;
}

CKTXMLAttribute::CKTXMLAttribute(std::string_view name, std::string value)
    : m_pName(InternName(name)), m_sValue(std::move(value)) {}

CKTXMLElement::CKTXMLElement(std::string_view name)
    : m_pName(InternName(name)), m_pNamespace(InternName({})) {}

void CKTXMLElement::setNamespace(std::string_view uri) {
    m_pNamespace = InternName(uri);
}

// Flattened, because a tree may be nested more deeply than the stack could follow.
CKTXMLElement::~CKTXMLElement() {
    std::vector<std::unique_ptr<CKTXMLElement>> pending = std::move(m_ChildList);
    while (!pending.empty()) {
        const std::unique_ptr<CKTXMLElement> element = std::move(pending.back());
        pending.pop_back();
        std::move(element->m_ChildList.begin(), element->m_ChildList.end(),
                  std::back_inserter(pending));
        element->m_ChildList.clear();
    }
}

CKTXMLAttribute* CKTXMLElement::addAttribute(std::unique_ptr<CKTXMLAttribute> attribute) {
    return AppendLinked(m_AttrList, std::move(attribute));
}

CKTXMLElement* CKTXMLElement::addChildElement(std::unique_ptr<CKTXMLElement> child) {
    return AppendLinked(m_ChildList, std::move(child));
}

std::vector<std::unique_ptr<CKTXMLElement>> CKTXMLElement::takeChildElements(
    const std::function<bool(const CKTXMLElement&)>& wanted) {
    std::vector<std::unique_ptr<CKTXMLElement>> taken;
    // All are taken out and those that stay appended anew, so one operation links in every case.
    std::vector<std::unique_ptr<CKTXMLElement>> all = std::exchange(m_ChildList, {});
    for (std::unique_ptr<CKTXMLElement>& child : all) {
        child->setPrevSibling(nullptr);
        child->setNextSibling(nullptr);
        if (wanted(*child)) {
            taken.push_back(std::move(child));
        } else {
            addChildElement(std::move(child));
        }
    }
    return taken;
}

CKTXMLAttribute* CKTXMLElement::getFirstAttr() const {
    return m_AttrList.empty() ? nullptr : m_AttrList.front().get();
}

CKTXMLElement* CKTXMLElement::getFirstChildElem() const {
    return m_ChildList.empty() ? nullptr : m_ChildList.front().get();
}

CKTXMLAttribute* CKTXMLElement::getAttribute(std::string_view name) const {
    // By search: an element has few attributes.
    for (CKTXMLAttribute* a = getFirstAttr(); a != nullptr; a = a->getNextSibling()) {
        if (a->getName() == name) {
            return a;
        }
    }
    return nullptr;
}

void CKTXMLElement::findElement(const std::string& key, Compare compare,
                                std::vector<CKTXMLElement*>& result, bool recursive) {
    if (compare == nullptr) {
        return;
    }
    std::vector<const CKTXMLElement*> above;
    for (CKTXMLElement* e = this; e != nullptr;) {
        if (CKTXMLElement* match = compare(e, key)) {
            result.push_back(match);
        }
        // Without recursion the search goes along the siblings and not down; callers begin it at a
        // first child.
        if (!recursive) {
            e = e->getNextSibling();
            continue;
        }
        // Below this element only: its own siblings are not searched.
        CKTXMLElement* next = e->getFirstChildElem();
        if (next != nullptr) {
            above.push_back(e);
        } else if (e != this) {
            next = e->getNextSibling();
        }
        while (next == nullptr && !above.empty()) {
            // The way up is remembered: a moved declaration's parent is not the element it hangs
            // below.
            const CKTXMLElement* up = above.back();
            above.pop_back();
            next = up == this ? nullptr : up->getNextSibling();
        }
        e = next;
    }
}

CKTXMLFormatter* CKTXMLElement::getXMLFormatter() const {
    return m_pParser == nullptr ? nullptr : m_pParser->getXMLFormatter();
}

CKTDOMFormatTarget* CKTXMLElement::getFormatTarget() const {
    return m_pParser == nullptr ? nullptr : m_pParser->getFormatTarget();
}

const std::string* AttributeValue(const CKTXMLElement* e, std::string_view name) {
    const CKTXMLAttribute* attribute = e->getAttribute(name);
    return attribute == nullptr ? nullptr : &attribute->getValue();
}
