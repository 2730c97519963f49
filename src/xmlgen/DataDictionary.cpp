#include "xmlgen/DataDictionary.h"

#include <unordered_map>

#include "support/Text.h"

namespace {

bool IsContainer(DictionaryKind kind) {
    switch (kind) {
        case DictionaryKind::Program:
        case DictionaryKind::DataItems:
        case DictionaryKind::FileSection:
        case DictionaryKind::Fd:
            return true;
        default:
            return false;
    }
}

}  // namespace

DictionaryKind DictionaryKindOf(const CKTXMLElement* e) {
    static const std::unordered_map<std::string_view, DictionaryKind> kinds = {
        {"program", DictionaryKind::Program},
        {"fd", DictionaryKind::Fd},
        {"dataItems", DictionaryKind::DataItems},
        {"group", DictionaryKind::Group},
        {"numeric", DictionaryKind::Numeric},
        {"alphanumeric", DictionaryKind::Alphanumeric},
        {"alphanumericEdited", DictionaryKind::AlphanumericEdited},
        {"numericEdited", DictionaryKind::NumericEdited},
        {"alphanumericConstant", DictionaryKind::AlphanumericConstant},
        {"numericConstant", DictionaryKind::NumericConstant},
        {"alphanumericRange", DictionaryKind::AlphanumericRange},
        {"numericRange", DictionaryKind::NumericRange},
        {"alphanumericCondition", DictionaryKind::AlphanumericCondition},
        {"numericCondition", DictionaryKind::NumericCondition},
        {"properties", DictionaryKind::Properties},
        {"fileSection", DictionaryKind::FileSection},
        {"entryPoints", DictionaryKind::EntryPoints},
        {"national", DictionaryKind::National},
    };
    const auto found = kinds.find(CKTXMLNode::getNonQualifiedName(e->getName()));
    return found == kinds.end() ? DictionaryKind::Unknown : found->second;
}

bool IsDataItem(DictionaryKind kind) {
    return kind == DictionaryKind::Group || IsElementary(kind);
}

bool IsElementary(DictionaryKind kind) {
    return (kind >= DictionaryKind::Numeric && kind <= DictionaryKind::NumericEdited) ||
           kind == DictionaryKind::National;
}

bool IsConstant(DictionaryKind kind) {
    return kind == DictionaryKind::AlphanumericConstant || kind == DictionaryKind::NumericConstant;
}

bool IsRange(DictionaryKind kind) {
    return kind == DictionaryKind::AlphanumericRange || kind == DictionaryKind::NumericRange;
}

bool IsCondition(DictionaryKind kind) {
    return kind == DictionaryKind::AlphanumericCondition ||
           kind == DictionaryKind::NumericCondition;
}

// Walks with a stack of its own, because containers may be nested without bound.
DictionaryRecord FindDictionaryRecord(const CKTXMLElement* root) {
    struct Place {
        const CKTXMLElement* element;
        const CKTXMLElement* program;
    };
    DictionaryRecord found;
    const CKTXMLElement* document = root->getFirstChildElem();
    if (document == nullptr) {
        return found;
    }
    const bool wrapped = DictionaryKindOf(document) != DictionaryKind::Program;
    std::vector<Place> pending = {{wrapped ? document->getFirstChildElem() : document, nullptr}};
    while (!pending.empty()) {
        const auto [e, program] = pending.back();
        pending.pop_back();
        if (e == nullptr) {
            continue;
        }
        pending.push_back({e->getNextSibling(), program});
        const DictionaryKind kind = DictionaryKindOf(e);
        if (kind == DictionaryKind::Program) {
            found.hasProgram = true;
            pending.push_back({e->getFirstChildElem(), e});
        } else if (program != nullptr && IsContainer(kind)) {
            pending.push_back({e->getFirstChildElem(), program});
        } else if (program != nullptr && IsDataItem(kind)) {
            if (IsRedefinition(e) || IsRenaming(e)) {
                found.passed.push_back(e);
            } else if (!IsUnnamed(e)) {
                found.program = program;
                found.record = e;
                return found;
            }
        }
    }
    return found;
}

// With a stack of its own, because containers may be nested without bound.
void ForEachMember(const CKTXMLElement* e, const std::function<void(const CKTXMLElement*)>& visit) {
    std::vector<const CKTXMLElement*> pending = {e->getFirstChildElem()};
    while (!pending.empty()) {
        const CKTXMLElement* child = pending.back();
        if (child == nullptr) {
            pending.pop_back();
            continue;
        }
        pending.back() = child->getNextSibling();
        const DictionaryKind kind = DictionaryKindOf(child);
        if (IsContainer(kind) && kind != DictionaryKind::Program) {
            pending.push_back(child->getFirstChildElem());
        } else {
            visit(child);
        }
    }
}

std::string_view AttributeOf(const CKTXMLElement* e, std::string_view name) {
    const CKTXMLAttribute* attribute = e->getAttribute(name);
    return attribute == nullptr ? std::string_view() : attribute->getValue();
}

bool IsRedefinition(const CKTXMLElement* item) {
    return AttributeOf(item, "redefines") == "true";
}

bool IsRenaming(const CKTXMLElement* item) {
    return item->getAttribute("renames") != nullptr;
}

bool IsUnnamed(const CKTXMLElement* item) {
    const std::string name(AttributeOf(item, "name"));
    return name.empty() || my_stricmp(name.c_str(), "filler") == 0;
}
