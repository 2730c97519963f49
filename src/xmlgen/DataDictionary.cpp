// The vocabulary of the compiler's data dictionary, and the choice of the record. Elements of
// unknown names are passed over everywhere, so that a dictionary may hold more than is read.
// Attributes are judged where they are used.

#include "xmlgen/DataDictionary.h"

#include <unordered_map>

#include "support/Text.h"

namespace {

/// Keeps the first item of a program that can be its record, and what has to be passed before it.
void TakeRecordLevelItem(const CKTXMLElement* item, DictionaryRecord& program) {
    if (program.record != nullptr) {
        return;
    }
    // Neither has storage of its own that a document could fill.
    if (IsRedefinition(item) || IsRenaming(item)) {
        program.passed.push_back(item);
    } else if (!IsUnnamed(item)) {
        program.record = item;
    }
}

/// The first of the programs with a record; it has passed what those before it hold.
DictionaryRecord ChooseRecord(const std::vector<DictionaryRecord>& programs) {
    DictionaryRecord chosen;
    for (const DictionaryRecord& program : programs) {
        chosen.hasProgram = chosen.hasProgram || program.hasProgram;
        // A program without a record has been passed as well, and so has what it holds.
        chosen.passed.insert(chosen.passed.end(), program.passed.begin(), program.passed.end());
        if (program.record != nullptr) {
            chosen.program = program.program;
            chosen.record = program.record;
            break;
        }
    }
    return chosen;
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

bool IsSection(DictionaryKind kind) {
    return kind == DictionaryKind::DataItems || kind == DictionaryKind::FileSection ||
           kind == DictionaryKind::Fd;
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

// Walks with a stack of its own, because containers may be nested without bound. A program around
// another starts first, though its own items may come later: each one collects what is directly its
// own, and the first to have a record is chosen at the end.
DictionaryRecord FindDictionaryRecord(const CKTXMLElement* root) {
    struct Place {
        const CKTXMLElement* element;
        std::size_t program;
    };
    constexpr std::size_t kOutside = 0;
    const CKTXMLElement* document = root->getFirstChildElem();
    if (document == nullptr) {
        return {};
    }
    std::vector<DictionaryRecord> programs(
        1);  // in the order of their start tags, behind the outside
    // The document element is the program or holds programs; anything deeper is found on the way.
    const bool wrapped = DictionaryKindOf(document) != DictionaryKind::Program;
    std::vector<Place> pending = {{wrapped ? document->getFirstChildElem() : document, kOutside}};
    while (!pending.empty()) {
        const auto [e, program] = pending.back();
        pending.pop_back();
        if (e == nullptr) {
            continue;
        }
        // Before what is below it: the stack takes the last one first.
        pending.push_back({e->getNextSibling(), program});
        const DictionaryKind kind = DictionaryKindOf(e);
        if (kind == DictionaryKind::Program) {
            pending.push_back({e->getFirstChildElem(), programs.size()});
            programs.push_back({true, e, nullptr, {}});
        } else if (program != kOutside && IsSection(kind)) {
            pending.push_back({e->getFirstChildElem(), program});
        } else if (program != kOutside && IsDataItem(kind)) {
            TakeRecordLevelItem(e, programs[program]);
        }
    }
    return ChooseRecord(programs);
}

std::string_view AttributeOf(const CKTXMLElement* e, std::string_view name) {
    const std::string* value = AttributeValue(e, name);
    return value == nullptr ? std::string_view() : *value;
}

bool IsRedefinition(const CKTXMLElement* item) {
    return AttributeOf(item, "redefines") == "true";
}

bool IsRenaming(const CKTXMLElement* item) {
    return AttributeValue(item, "renames") != nullptr;
}

bool IsUnnamed(const CKTXMLElement* item) {
    return IsNoName(AttributeOf(item, "name"));
}

bool IsNoName(std::string_view name) {
    constexpr std::string_view kFiller = "filler";
    return name.empty() || (name.size() == kFiller.size() &&
                            my_stricmp(std::string(name).c_str(), kFiller.data()) == 0);
}

std::string_view XmlTypeOf(DictionaryKind kind, const CKTItemClauses& clauses) {
    // Edited numbers are text.
    if (kind != DictionaryKind::Numeric) {
        return "string";
    }
    const std::string_view usage =
        clauses.Has(Clause::Usage) ? clauses.Text(Clause::Usage) : "display";
    if (usage == "comp-1") {
        return "float";
    }
    if (usage == "comp-2") {
        return "double";
    }
    if (usage == "display" || usage == "comp-3" || usage == "comp-4" || usage == "comp-5") {
        return clauses.Has(Clause::Alignment) && clauses.Text(Clause::Alignment) != "0" ? "decimal"
                                                                                        : "integer";
    }
    return "string";
}
