// Sequences, choices, groups and attribute groups.

#include <iostream>

#include "schema/ActiveGuard.h"
#include "schema/GeneratorState.h"
#include "schema/KTCOBOLGenerator.h"
#include "schema/Occurrence.h"
#include "support/Console.h"

namespace {

unsigned& GroupCounter(GeneratorKind kind) {
    switch (kind) {
        case GeneratorKind::Sequence:
            return GeneratorState().sequences;
        case GeneratorKind::Choice:
            return GeneratorState().choices;
        case GeneratorKind::All:
            return GeneratorState().alls;
        default:
            return GeneratorState().referenceGroups;
    }
}

/// The name ends with the character whose code is the counter, not with its digits. The code 0 has
/// nothing to write.
std::string NextGroupName(const CKTXMLElement* e) {
    unsigned& counter = GroupCounter(GeneratorKindOf(e->getName()));
    std::string name(CKTXMLNode::getNonQualifiedName(e->getName()));
    name += '-';
    if (const auto code = static_cast<unsigned char>(counter++); code != 0) {
        name += static_cast<char>(code);
    }
    return name;
}

}  // namespace

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessModelGroup(CKTXMLElement* e, unsigned level,
                                                         unsigned indent, Item** current) {
    switch (getElementType(e)) {
        case GeneratorKind::Union:
            return ProcessElementUnion(e, level, indent, *current);
        case GeneratorKind::List:
            NoteList(*current, m_pSimpleBase);
            return *current;
        case GeneratorKind::Any:
        case GeneratorKind::AnyAttribute:
            WriteLine(std::cerr,
                      {"Warning : Unsupported element <any> or <anyAttribute> encountered. Element "
                       "will not be converted into COBOL xd."});
            return *current;
        default:
            return ProcessGroupMembers(e, level, indent, current);
    }
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessGroupMembers(const CKTXMLElement* e, unsigned level,
                                                           unsigned indent, Item** current) {
    const std::string* maximum = AttributeValue(e, "maxOccurs");
    if (IsNever(maximum)) {
        return *current;
    }
    const bool grouped = maximum != nullptr && IsNumberAboveOne(*maximum);
    Item* item = grouped ? MakeGroupItem(e, *current) : *current;
    if (item == nullptr) {
        return nullptr;
    }
    Item* own = item;
    Item** cursor = grouped ? &own : current;
    const std::string* ref = AttributeValue(e, "ref");
    bool converted = true;
    if (ref != nullptr && AttributeValue(e, "name") == nullptr) {
        converted = WalkGroupReference(e, *ref, level, indent, cursor);
    } else {
        WalkChildren(e, level, indent, cursor);
    }
    if (*cursor != item) {
        return grouped ? nullptr : *current;
    }
    if (!converted && grouped) {
        RemoveItem(item);
    }
    return converted ? item : nullptr;
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::MakeGroupItem(const CKTXMLElement* e, Item* parent) {
    Item* item = MakeGeneratedItem(parent, NextGroupName(e), {});
    if (item != nullptr) {
        item->m_pSchemaElement = e;
        item->m_pSourceElement = e;
        if (const std::string* minimum = AttributeValue(e, "minOccurs")) {
            item->m_sMinOccurs.Share(*minimum);
        }
        item->m_sMaxOccurs.Share(*AttributeValue(e, "maxOccurs"));
    }
    return item;
}

bool CKTCOBOLGenerator::WalkGroupReference(const CKTXMLElement* e, const std::string& ref,
                                           unsigned level, unsigned indent, Item** cursor) {
    const DeclarationList list =
        getElementType(e) == GeneratorKind::Group ? GROUPS : ATTRIBUTE_GROUPS;
    CKTXMLElement* target = FindReferenced(e, ref, list);
    if (target == nullptr) {
        WriteLine(std::cerr, {"Error : Cannot find referenced element ", ref,
                              ".  Element will not be converted to COBOL record item."});
        return false;
    }
    const CKTActiveGuard active(m_ActiveGroups, target);
    if (!active.IsFirst()) {
        WriteLine(std::cerr,
                  {"Error : Cannot convert recursive reference of ", ref, " to COBOL record"});
        return false;
    }
    getCOBOLFromSchema(target, level, indent, cursor);
    return true;
}
