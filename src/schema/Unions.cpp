// Unions: each member type becomes an item of its own, and the later ones redefine the first. The
// first member that can be written is the one that the others redefine; those before it are left
// out by the writer.

#include <sstream>
#include <string>
#include <vector>

#include "schema/ActiveGuard.h"
#include "schema/Complaints.h"
#include "schema/Handlers.h"
#include "schema/SchemaVocabulary.h"

namespace {

/// A member type: named in the union's list, or anonymous inside it.
struct UnionMember {
    std::string name;
    CKTXMLElement* type = nullptr;
    const BuiltInForm* builtIn = nullptr;
};

std::vector<UnionMember> MembersOf(const CKTXMLElement* unionElement) {
    std::vector<UnionMember> members;
    const std::string* names = AttributeValue(unionElement, "memberTypes");
    // White space of any kind and amount parts the names.
    std::istringstream list(names == nullptr ? std::string() : *names);
    for (std::string name; list >> name;) {
        members.push_back({name, nullptr, nullptr});
    }
    for (CKTXMLElement* e = unionElement->getFirstChildElem(); e != nullptr;
         e = e->getNextSibling()) {
        if (GeneratorKindOf(e->getName()) == GeneratorKind::SimpleType) {
            members.push_back({{}, e, nullptr});
        }
    }
    return members;
}

/// Says whether the type of the member exists, and finds the one that it names.
bool FindMember(CKTNameResolver& names, const CKTXMLElement* unionElement, UnionMember& member) {
    if (member.type != nullptr) {
        return true;
    }
    member.builtIn = names.FindBuiltIn(unionElement, member.name);
    if (member.builtIn == nullptr) {
        member.type = names.FindType(unionElement, member.name);
    }
    return member.builtIn != nullptr || member.type != nullptr;
}

/// Gives the value of one member to `holder`. Says whether it still stands then.
bool FillFromMember(CKTWalk& walk, const UnionMember& member, CKTCOBOLRecordItem& holder) {
    if (member.builtIn != nullptr) {
        TakeBuiltIn(holder, *member.builtIn);
        return true;
    }
    // A member may be a union of its own, so the type is walked and not only asked for its base.
    const CKTActiveGuard active(walk.TypesWalked(), CKTWalk::ActiveType(&holder, member.type));
    OpenItem open(&holder);
    return walk.Walk(member.type, open) != Answer::ItemGone;
}

/// Makes the item of one member with its value: in the item itself for the first member, in a
/// further item below it for the others. Returns null when no value came of it.
CKTCOBOLRecordItem* MakeMemberItem(CKTWalk& walk, const UnionMember& member, std::size_t number,
                                   CKTCOBOLRecordItem& parent) {
    CKTRecordTree& records = walk.Records();
    CKTCOBOLRecordItem* item = records.MakeGeneratedItem(parent, parent.m_sDataName,
                                                         "-union-value-" + std::to_string(number));
    if (item == nullptr || number == 0) {
        return item != nullptr && FillFromMember(walk, member, *item) ? item : nullptr;
    }
    CKTCOBOLRecordItem* holder = records.MakeGeneratedItem(*item, item->m_sDataName, "-data");
    if (holder != nullptr && FillFromMember(walk, member, *holder)) {
        return item;
    }
    // Without a value there is nothing for it to hold.
    records.Remove(*item);
    return nullptr;
}

}  // namespace

Answer TakeUnion(CKTWalk& walk, const CKTXMLElement* unionElement, OpenItem& open) {
    std::vector<UnionMember> members = MembersOf(unionElement);
    std::vector<const CKTCOBOLRecordItem*> made;
    CKTCOBOLRecordItem* first = nullptr;
    for (std::size_t number = 0; number < members.size(); ++number) {
        UnionMember& member = members[number];
        if (!FindMember(walk.Names(), unionElement, member)) {
            Report<SchemaMessage::MissingMember>(member.name);
            // A union with a part of its members would read wrong values without a word.
            for (; !made.empty(); made.pop_back()) {
                walk.Records().Remove(*made.back());
            }
            return Answer::Nothing;
        }
        CKTCOBOLRecordItem* item = MakeMemberItem(walk, member, number, *open.item);
        if (item == nullptr) {
            continue;
        }
        made.push_back(item);
        item->m_pRedefines = first;
        // Asked now and not when the record is written: the clause has to name an item that is
        // there.
        if (first == nullptr && item->CanBeWritten()) {
            first = item;
        }
    }
    return made.empty() ? Answer::Nothing : Answer::Made;
}
