#include "schema/SchemaVocabulary.h"

#include <array>
#include <unordered_map>

namespace {

constexpr std::array<std::string_view, 28> kSchemaNames = {
    "schema",      "element",     "attribute",   "attributeGroup", "simpleType",
    "enumeration", "group",       "complexType", "simpleContent",  "complexContent",
    "extension",   "restriction", "sequence",    "choice",         "union",
    "list",        "all",         "any",         "unique",         "anyAttribute",
    "appInfo",     "key",         "keyRef",      "selector",       "field",
    "import",      "include",     "redefine"};

constexpr std::array<std::string_view, 27> kGeneratorNames = {
    "schema",      "element",     "attribute",     "attributeGroup", "simpleType",
    "group",       "complexType", "simpleContent", "complexContent", "extension",
    "restriction", "sequence",    "choice",        "union",          "list",
    "all",         "any",         "unique",        "anyAttribute",   "appInfo",
    "key",         "keyRef",      "selector",      "field",          "import",
    "include",     "redefine"};

constexpr std::array<std::string_view, 12> kFacetNames = {
    "length",       "minLength",    "maxLength",    "pattern",
    "enumeration",  "whiteSpace",   "maxInclusive", "maxExclusive",
    "minInclusive", "minExclusive", "totalDigits",  "fractionDigits"};

/// Finds the place of a tag's local name in a table whose order is that of the enumeration `Kind`;
/// a name that is not there has the place behind the last.
template <typename Kind, std::size_t N>
Kind KindOf(const std::array<std::string_view, N>& names, std::string_view tagName) {
    static const auto index = [&names] {
        std::unordered_map<std::string_view, Kind> places;
        for (std::size_t i = 0; i < N; ++i) {
            places.emplace(names[i], static_cast<Kind>(i));
        }
        return places;
    }();
    const auto found = index.find(CKTXMLNode::getNonQualifiedName(tagName));
    return found == index.end() ? static_cast<Kind>(N) : found->second;
}

}  // namespace

SchemaKind SchemaKindOf(std::string_view tagName) {
    return KindOf<SchemaKind>(kSchemaNames, tagName);
}

GeneratorKind GeneratorKindOf(std::string_view tagName) {
    return KindOf<GeneratorKind>(kGeneratorNames, tagName);
}

FacetKind FacetKindOf(std::string_view tagName) {
    return KindOf<FacetKind>(kFacetNames, tagName);
}

CKTXMLElement* compareElemByName(CKTXMLElement* e, const std::string& name) {
    const bool same =
        CKTXMLNode::getNonQualifiedName(e->getName()) == CKTXMLNode::getNonQualifiedName(name);
    return same ? e : nullptr;
}

CKTXMLElement* compareElemByAttrType(CKTXMLElement* e, const std::string& name) {
    return e->getAttribute(CKTXMLNode::getNonQualifiedName(name)) != nullptr ? e : nullptr;
}

CKTXMLElement* compareElemForMultipartSchema(CKTXMLElement* e, const std::string& /*unused*/) {
    switch (SchemaKindOf(e->getName())) {
        case SchemaKind::Schema:
        case SchemaKind::Import:
        case SchemaKind::Include:
        case SchemaKind::Redefine:
            return e;
        default:
            return nullptr;
    }
}

bool findAttrByName(const CKTXMLElement* e, std::string_view name, std::string* value) {
    const CKTXMLAttribute* attribute = e->getAttribute(name);
    if (value != nullptr) {
        *value = attribute == nullptr ? std::string() : attribute->getValue();
    }
    return attribute != nullptr;
}

const std::string* AttributeValue(const CKTXMLElement* e, std::string_view name) {
    const CKTXMLAttribute* attribute = e->getAttribute(name);
    return attribute == nullptr ? nullptr : &attribute->getValue();
}

bool findAttrByValue(const CKTXMLElement* e, std::string_view value) {
    if (value.empty()) {
        return false;
    }
    for (const CKTXMLAttribute* a = e->getFirstAttr(); a != nullptr; a = a->getNextSibling()) {
        if (a->getValue() == value) {
            return true;
        }
    }
    return false;
}
