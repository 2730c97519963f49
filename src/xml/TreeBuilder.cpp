// The shape of the tree is that of a library document that was copied: attributes in the order of
// their names, one text for a run of characters between two other nodes, of which the last one
// stays. There is no recursion here: the place in the tree is a pointer that goes down and up.

#include "xml/TreeBuilder.h"

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>
#include <utility>

#include "support/Text.h"
#include "xml/KTXMLElement.h"

namespace {

// Texts of the library are taken for u16string and back without a copy.
static_assert(std::is_same_v<XMLCh, char16_t>);

/// Names, lists of names and locations, around which blanks do not count in a schema.
constexpr std::array<std::string_view, 8> kTrimmedAttributes = {
    "name",        "ref",       "type",          "base", "substitutionGroup",
    "memberTypes", "namespace", "schemaLocation"};

std::string Trimmed(const std::string& value) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = value.find_first_not_of(kBlanks);
    return first == std::string::npos
               ? std::string()
               : value.substr(first, value.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

void CKTTreeBuilder::BuildBelow(CKTXMLElement* root, CKTDOMParser* owner, bool isSchema) {
    m_pCurrent = root;
    m_pOwner = owner;
    m_bSchema = isSchema;
    // An earlier tree may have been left midway.
    m_bInText = false;
    m_sText.clear();
}

void CKTTreeBuilder::BeginElement(std::u16string_view prefix, std::u16string_view localName,
                                  const Attributes& attributes, XMLSize_t count) {
    if (m_pCurrent == nullptr) {
        return;
    }
    EndText();
    m_sQualifiedName = prefix;
    if (!prefix.empty()) {
        m_sQualifiedName += u':';
    }
    m_sQualifiedName += localName;
    auto element = std::make_unique<CKTXMLElement>(*NarrowName(m_sQualifiedName));
    element->setParent(m_pCurrent);
    element->setParser(m_pOwner);
    AddAttributes(*element, attributes, count);
    m_pCurrent = m_pCurrent->addChildElement(std::move(element));
}

void CKTTreeBuilder::EndElement() {
    if (m_pCurrent != nullptr) {
        EndText();
        m_pCurrent = m_pCurrent->getParent();
    }
}

void CKTTreeBuilder::AddText(const XMLCh* text, XMLSize_t length) {
    if (m_pCurrent != nullptr) {
        m_bInText = true;
        m_sText.append(text, length);
    }
}

void CKTTreeBuilder::EndText() {
    if (m_bInText) {
        m_bInText = false;
        m_pCurrent->setValue(NarrowText(m_sText));
        m_sText.clear();
    }
}

void CKTTreeBuilder::AddAttributes(CKTXMLElement& element, const Attributes& attributes,
                                   XMLSize_t count) {
    m_Sorted.clear();
    for (XMLSize_t i = 0; i < count; ++i) {
        m_Sorted.push_back(attributes.elementAt(i));
    }
    std::stable_sort(m_Sorted.begin(), m_Sorted.end(),
                     [](const xercesc::XMLAttr* a, const xercesc::XMLAttr* b) {
                         return std::u16string_view(a->getQName()) < b->getQName();
                     });
    element.reserveAttributes(count);
    for (const xercesc::XMLAttr* source : m_Sorted) {
        const std::string* name = NarrowName(source->getQName());
        std::string value = NarrowText(source->getValue());
        if (m_bSchema && std::find(kTrimmedAttributes.begin(), kTrimmedAttributes.end(), *name) !=
                             kTrimmedAttributes.end()) {
            value = Trimmed(value);
        }
        auto attribute = std::make_unique<CKTXMLAttribute>(*name, std::move(value));
        attribute->setParent(&element);
        element.addAttribute(std::move(attribute));
    }
}

/// Names repeat, so each is converted once; a failed conversion is reported each time.
const std::string* CKTTreeBuilder::NarrowName(std::u16string_view name) {
    const auto known = m_Names.find(name);
    if (known != m_Names.end()) {
        return known->second;
    }
    const std::string* narrow = CKTXMLNode::InternName(NarrowText(name));
    // One that failed is empty.
    if (!narrow->empty()) {
        m_Names.emplace(name, narrow);
    }
    return narrow;
}
