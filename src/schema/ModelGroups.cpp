// Sequences, choices, groups and attribute groups. A group that occurs more than once is an item of
// its own; any other leaves its members to the item that it stands in. All members of a choice are
// converted, one behind the other: a record has room for each. Names of group items are counted for
// the process, so that two records of one copybook differ in them.

#include "schema/ActiveGuard.h"
#include "schema/Complaints.h"
#include "schema/GeneratorState.h"
#include "schema/Handlers.h"
#include "schema/Occurrence.h"
#include "schema/SchemaVocabulary.h"

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

CKTCOBOLRecordItem* MakeGroupItem(CKTRecordTree& records, const CKTXMLElement* e,
                                  CKTCOBOLRecordItem& parent) {
    CKTCOBOLRecordItem* item = records.MakeGeneratedItem(parent, NextGroupName(e), {});
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

Answer WalkGroupReference(CKTWalk& walk, const CKTXMLElement* e, const std::string& ref,
                          OpenItem& open) {
    const bool isGroup = GeneratorKindOf(e->getName()) == GeneratorKind::Group;
    CKTXMLElement* target =
        walk.Names().FindReferenced(e, ref, isGroup ? GROUPS : ATTRIBUTE_GROUPS);
    if (target == nullptr) {
        Report<SchemaMessage::MissingReference>(ref);
        return Answer::Nothing;
    }
    // Groups are active for the whole record and not for an item, since their members need not make
    // one.
    const CKTActiveGuard active(walk.GroupsWalked(), target);
    if (!active.IsFirst()) {
        Report<SchemaMessage::Recursion>(ref);
        return Answer::Nothing;
    }
    return WithoutNothing(walk.Walk(target, open));
}

Answer WalkMembers(CKTWalk& walk, const CKTXMLElement* group, OpenItem& open) {
    const std::string* ref = AttributeValue(group, "ref");
    // A definition has a name, and its own content comes first.
    return ref != nullptr && AttributeValue(group, "name") == nullptr
               ? WalkGroupReference(walk, group, *ref, open)
               : walk.WalkChildren(group, open);
}

}  // namespace

Answer TakeModelGroup(CKTWalk& walk, CKTXMLElement* group, OpenItem& around) {
    const std::string* maximum = AttributeValue(group, "maxOccurs");
    if (IsNever(maximum)) {
        return Answer::Made;
    }
    // An unbounded group has no number for its OCCURS clause and is walked once.
    if (maximum == nullptr || !IsNumberAboveOne(*maximum)) {
        return WalkMembers(walk, group, around);
    }
    // Made before its reference is looked up, so that a reference to nothing still takes a name.
    OpenItem own(MakeGroupItem(walk.Records(), group, *around.item));
    if (own.item == nullptr) {
        return Answer::Nothing;
    }
    const Answer members = WalkMembers(walk, group, own);
    // The item was made for the group alone; without members it stands for nothing.
    if (members == Answer::Nothing) {
        walk.Records().Remove(*own.item);
    }
    return members == Answer::ItemGone ? Answer::Nothing : members;
}
