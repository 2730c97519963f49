// Unions: each member type becomes an item of its own, and the later ones redefine the first.

#include <iostream>
#include <sstream>

#include "schema/ActiveGuard.h"
#include "schema/KTCOBOLGenerator.h"
#include "support/Console.h"

/// A member type: named in the union's list, or anonymous inside it.
struct CKTCOBOLGenerator::UnionMember {
    std::string name;
    CKTXMLElement* type = nullptr;
    const BuiltInForm* builtIn = nullptr;
};

namespace {

std::vector<std::string> MemberTypeNames(const CKTXMLElement* unionElement) {
    std::string names;
    findAttrByName(unionElement, "memberTypes", &names);
    std::istringstream list(names);
    std::vector<std::string> result;
    for (std::string name; list >> name;) {
        result.push_back(name);
    }
    return result;
}

}  // namespace

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessElementUnion(const CKTXMLElement* unionElement,
                                                           unsigned level, unsigned indent,
                                                           Item* current) {
    std::vector<UnionMember> members;
    for (std::string& name : MemberTypeNames(unionElement)) {
        members.push_back({std::move(name), nullptr, nullptr});
    }
    for (CKTXMLElement* e = unionElement->getFirstChildElem(); e != nullptr;
         e = e->getNextSibling()) {
        if (getElementType(e) == GeneratorKind::SimpleType) {
            members.push_back({{}, e, nullptr});
        }
    }
    std::vector<const Item*> made;
    Item* first = nullptr;
    for (std::size_t number = 0; number < members.size(); ++number) {
        UnionMember& member = members[number];
        if (member.type == nullptr && !FindUnionMember(unionElement, member)) {
            WriteLine(std::cerr,
                      {"Error : Unable to locate type ", member.name, " for <union> processing"});
            for (; !made.empty(); made.pop_back()) {
                RemoveItem(made.back());
            }
            return nullptr;
        }
        Item* item = MakeUnionItem(member, number, level, indent, current);
        if (item == nullptr) {
            continue;
        }
        made.push_back(item);
        item->m_pRedefines = first;
        if (first == nullptr && item->CanBeWritten()) {
            first = item;
        }
    }
    return made.empty() ? nullptr : current;
}

/// Says whether the type that `member` names exists, and finds it when it is not built in.
bool CKTCOBOLGenerator::FindUnionMember(const CKTXMLElement* unionElement, UnionMember& member) {
    member.builtIn = FindBuiltIn(unionElement, member.name);
    if (member.builtIn == nullptr) {
        member.type = FindType(unionElement, member.name);
    }
    return member.builtIn != nullptr || member.type != nullptr;
}

/// Makes the item of one member with its value: in the item itself for the first member, in a
/// further item below it for the others. Returns null when no value came of it.
CKTCOBOLRecordItem* CKTCOBOLGenerator::MakeUnionItem(const UnionMember& member, std::size_t number,
                                                     unsigned level, unsigned indent,
                                                     Item* current) {
    Item* item =
        MakeGeneratedItem(current, current->m_sDataName, "-union-value-" + std::to_string(number));
    if (item == nullptr) {
        return nullptr;
    }
    Item* holder = number == 0 ? item : MakeGeneratedItem(item, item->m_sDataName, "-data");
    if (holder == nullptr) {
        RemoveItem(item);
        return nullptr;
    }
    if (member.builtIn != nullptr) {
        TakeBuiltIn(holder, *member.builtIn);
        return item;
    }
    const CKTActiveGuard active(m_ActiveTypes, ActiveType(holder, member.type));
    Item* cursor = holder;
    getCOBOLFromSchema(member.type, level + 1, indent + 1, &cursor);
    if (cursor == holder) {
        return item;
    }
    if (holder != item) {
        RemoveItem(item);
    }
    return nullptr;
}
