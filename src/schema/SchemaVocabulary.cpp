// Words of a schema. A name is found in its table through a slot that its length and its ends
// choose, because the walk asks for the kind of every construct it meets. The tables have the order
// of their enumerations, two of them with different numbers for the same words; "enumeration" is
// missing from the second.

#include "schema/SchemaVocabulary.h"

#include <array>
#include <cstdint>

namespace {

constexpr std::array<std::string_view, 28> kSchemaNames = {
    "schema",      "element",     "attribute",   "attributeGroup", "simpleType",
    "enumeration", "group",       "complexType", "simpleContent",  "complexContent",
    "extension",   "restriction", "sequence",    "choice",         "union",
    "list",        "all",         "any",         "unique",         "anyAttribute",
    "appInfo",     "key",         "keyRef",      "selector",       "field",
    "import",      "include",     "redefine"};
static_assert(kSchemaNames.size() == static_cast<std::size_t>(SchemaKind::Other));

constexpr std::array<std::string_view, 27> kGeneratorNames = {
    "schema",      "element",     "attribute",     "attributeGroup", "simpleType",
    "group",       "complexType", "simpleContent", "complexContent", "extension",
    "restriction", "sequence",    "choice",        "union",          "list",
    "all",         "any",         "unique",        "anyAttribute",   "appInfo",
    "key",         "keyRef",      "selector",      "field",          "import",
    "include",     "redefine"};
static_assert(kGeneratorNames.size() == static_cast<std::size_t>(GeneratorKind::Other));

constexpr std::array<std::string_view, 12> kFacetNames = {
    "length",       "minLength",    "maxLength",    "pattern",
    "enumeration",  "whiteSpace",   "maxInclusive", "maxExclusive",
    "minInclusive", "minExclusive", "totalDigits",  "fractionDigits"};
static_assert(kFacetNames.size() == static_cast<std::size_t>(FacetKind::None));

constexpr std::size_t kSlots = 128;

/// Where the search for a name begins. Chosen so that hardly two names of a table share a slot.
constexpr std::size_t SlotOf(std::string_view name) {
    const auto code = [](char c) -> std::size_t { return static_cast<unsigned char>(c); };
    return name.empty() ? 0
                        : (5 * name.size() + 3 * code(name.front()) + code(name.back())) % kSlots;
}

/// The places of the names in their table, each in the first free slot from its own on; free slots
/// hold the place behind the last.
template <std::size_t N>
constexpr std::array<std::uint8_t, kSlots> PlaceAll(const std::array<std::string_view, N>& names) {
    std::array<std::uint8_t, kSlots> places{};
    places.fill(N);
    for (std::size_t i = 0; i < N; ++i) {
        std::size_t slot = SlotOf(names[i]);
        while (places[slot] != N) {
            slot = (slot + 1) % kSlots;
        }
        places[slot] = static_cast<std::uint8_t>(i);
    }
    return places;
}

/// Finds the place of a tag's local name in a table whose order is that of the enumeration `Kind`;
/// a name that is not there has the place behind the last.
template <typename Kind, const auto& kNames>
Kind KindOf(std::string_view tagName) {
    static constexpr auto places = PlaceAll(kNames);
    const std::string_view name = CKTXMLNode::getNonQualifiedName(tagName);
    std::size_t slot = SlotOf(name);
    // Ends at a free slot; there are four times as many slots as names.
    while (places[slot] != kNames.size() && kNames[places[slot]] != name) {
        slot = (slot + 1) % kSlots;
    }
    return static_cast<Kind>(places[slot]);
}

}  // namespace

SchemaKind SchemaKindOf(std::string_view tagName) {
    return KindOf<SchemaKind, kSchemaNames>(tagName);
}

GeneratorKind GeneratorKindOf(std::string_view tagName) {
    return KindOf<GeneratorKind, kGeneratorNames>(tagName);
}

FacetKind FacetKindOf(std::string_view tagName) {
    return KindOf<FacetKind, kFacetNames>(tagName);
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
