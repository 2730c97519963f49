// Entries are kept as the file has them and found through an index by name, which is made when it
// is first asked for. It gives the first of several entries with one name. A file that holds
// anything unknown counts for nothing: half a mapping would change a schema without a word. Fields
// may come in any order and more than once; the last one counts.

#include "xmlgen/KTXMLCOBOLExternalMapping.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// The elements of a mapping file.
enum class MappingElement {
    File,
    Entry,
    CobolName,
    XmlName,
    XmlType,
    XmlNamespace,
    XmlAttribute,
    CobolCountIn,
    Unknown,
};

/// In the order of MappingElement.
constexpr std::array<std::string_view, 8> kElementNames = {
    "xml-cobol-mapping-file", "xml-cobol-mapping", "cobol-name",     "xml-name", "xml-type",
    "xml-namespace",          "xml-attribute",     "cobol-count-in",
};
static_assert(kElementNames.size() == static_cast<std::size_t>(MappingElement::Unknown));

MappingElement MappingElementOf(const CKTXMLElement* e) {
    const auto* const name = std::find(kElementNames.begin(), kElementNames.end(), e->getName());
    return static_cast<MappingElement>(name - kElementNames.begin());
}

/// The text of a field without the white space that laying the file out puts around it.
std::string_view FieldText(const CKTXMLElement* e) {
    constexpr const char* kWhiteSpace = " \t\r\n";
    std::string_view text = e->getValue();
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1);
}

/// Sets the field of `entry` that an element of the kind `field` with `text` stands for.
void SetField(CKTXMLCOBOLMapping& entry, MappingElement field, std::string_view text) {
    switch (field) {
        case MappingElement::CobolName:
            entry.m_sCobolName = text;
            break;
        case MappingElement::XmlName:
            entry.m_sXMLName = text;
            break;
        case MappingElement::XmlType:
            entry.m_sXMLType = text;
            break;
        case MappingElement::XmlNamespace:
            entry.m_sXMLNamespace = text;
            break;
        case MappingElement::XmlAttribute:
            // Any other word is no.
            entry.m_bXMLAttribute = text == "true";
            break;
        case MappingElement::CobolCountIn:
            entry.m_bCobolCountIn = text == "true";
            break;
        default:
            break;
    }
}

}  // namespace

// Walks with a stack of its own, because a file may be nested without bound.
bool CKTXMLCOBOLExternalMapping::Initialize(const CKTXMLElement* e, CKTXMLCOBOLMapping* current) {
    std::vector<std::pair<const CKTXMLElement*, CKTXMLCOBOLMapping*>> pending = {{e, current}};
    while (!pending.empty()) {
        auto [element, entry] = pending.back();
        pending.pop_back();
        if (element == nullptr) {
            continue;
        }
        // What stands beside the given element is not part of it.
        if (element != e) {
            pending.emplace_back(element->getNextSibling(), entry);
        }
        // The root of the tree stands for the document and is no element of the file.
        if (element->isParent() && !TakeElement(element, entry)) {
            ClearAndDestroy();
            return false;
        }
        // On top of the stack, so that entries and fields come in the order of the file.
        pending.emplace_back(element->getFirstChildElem(), entry);
    }
    return true;
}

bool CKTXMLCOBOLExternalMapping::TakeElement(const CKTXMLElement* e, CKTXMLCOBOLMapping*& current) {
    const MappingElement kind = MappingElementOf(e);
    if (kind == MappingElement::Entry) {
        // Fields fill the entry that was begun last, however deep they stand.
        current = addXMLCOBOLMapping(std::make_unique<CKTXMLCOBOLMapping>());
    } else if (current != nullptr) {
        // The name may change, by which the entry was found.
        m_bIndexed = false;
        SetField(*current, kind, FieldText(e));
    }
    return kind != MappingElement::Unknown;
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::addXMLCOBOLMapping(
    std::unique_ptr<CKTXMLCOBOLMapping> entry) {
    m_bIndexed = false;
    if (!m_Entries.empty()) {
        m_Entries.back()->setNextSibling(entry.get());
        entry->setPrevSibling(m_Entries.back().get());
    }
    m_Entries.push_back(std::move(entry));
    return m_Entries.back().get();
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::findMapping(std::string_view cobolName,
                                                            int /*index*/) {
    BuildIndex();
    const auto found = m_Index.find(cobolName);
    return found == m_Index.end() ? nullptr : found->second;
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::FindAndMark(const CKTQualifiedName& name) {
    BuildIndex();
    const auto found = m_Index.find(name);
    if (found == m_Index.end()) {
        return nullptr;
    }
    found->second->m_bMatched = true;
    return found->second;
}

void CKTXMLCOBOLExternalMapping::ForgetMatches() {
    for (const auto& entry : m_Entries) {
        entry->m_bMatched = false;
    }
}

std::vector<const CKTXMLCOBOLMapping*> CKTXMLCOBOLExternalMapping::FindUnmatched() {
    std::vector<const CKTXMLCOBOLMapping*> unmatched;
    for (const auto& entry : m_Entries) {
        // Of several entries with one name only the first is ever found.
        if (!entry->m_bMatched && !findMapping(entry->m_sCobolName, 0)->m_bMatched) {
            unmatched.push_back(entry.get());
        }
    }
    return unmatched;
}

void CKTXMLCOBOLExternalMapping::BuildIndex() {
    if (m_bIndexed) {
        return;
    }
    m_Index.clear();
    m_Index.reserve(m_Entries.size());
    for (const auto& entry : m_Entries) {
        // Keeps the entry that is there.
        m_Index.try_emplace(entry->m_sCobolName, entry.get());
    }
    m_bIndexed = true;
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::getFirst() const {
    return m_Entries.empty() ? nullptr : m_Entries.front().get();
}

void CKTXMLCOBOLExternalMapping::ClearAndDestroy() {
    // First what points at the entries, then the entries.
    m_Index.clear();
    m_bIndexed = false;
    m_Entries.clear();
}
