// What validation makes of the content models of a schema. The library builds the automaton of a
// type when a document first uses it, and copies each repeated group for it; here the copies are
// counted before any is made. A member that is repeated alone costs nothing unless a group of its
// model is repeated as well: then the library copies it too.

#include "xml/ContentModels.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include <xercesc/validators/common/ContentSpecNode.hpp>
#include <xercesc/validators/schema/ComplexTypeInfo.hpp>
#include <xercesc/validators/schema/SchemaGrammar.hpp>
#include <xercesc/validators/schema/SchemaSymbols.hpp>

#include "support/Limits.h"

using xercesc::ContentSpecNode;

namespace {

struct Place {
    const ContentSpecNode* node;
    std::uint64_t copies;  // made of the groups around it
};

bool IsGroup(const ContentSpecNode& node) {
    // The library marks the groups of the schema, and lists of wildcards, with further bits.
    const int type = node.getType() & 0x0F;
    return type == ContentSpecNode::Choice || type == ContentSpecNode::Sequence ||
           node.getType() == ContentSpecNode::All;
}

/// How often the library writes the node out: an open end is a loop behind the least number.
std::uint64_t CopiesOf(const ContentSpecNode& node) {
    const int last = node.getMaxOccurs() == xercesc::SchemaSymbols::XSD_UNBOUNDED
                         ? node.getMinOccurs()
                         : node.getMaxOccurs();
    return static_cast<std::uint64_t>(std::max(last, 1));
}

bool OccursOnce(const ContentSpecNode& node) {
    return node.getMinOccurs() == 1 && node.getMaxOccurs() == 1;
}

/// A group around one plain member is repeated as that member is.
bool IsMemberInBrackets(const ContentSpecNode& group) {
    const ContentSpecNode* member = group.getFirst();
    return member != nullptr && group.getSecond() == nullptr && !IsGroup(*member) &&
           OccursOnce(*member);
}

bool IsBounded(const ContentSpecNode* model) {
    // A list in place of recursion: a model may be nested deeply.
    std::vector<Place> pending = {{model, 1}};
    std::uint64_t mostOfAMember = 1;
    bool groupsRepeat = false;
    while (!pending.empty()) {
        const auto [node, around] = pending.back();
        pending.pop_back();
        if (node == nullptr) {
            continue;
        }
        const std::uint64_t copies = around * CopiesOf(*node);
        if (!IsGroup(*node)) {
            mostOfAMember = std::max(mostOfAMember, copies);
            continue;
        }
        groupsRepeat = groupsRepeat || (!OccursOnce(*node) && !IsMemberInBrackets(*node));
        const bool several = node->getFirst() != nullptr && node->getSecond() != nullptr;
        if (several && copies > kMaxGroupRepetitions) {
            return false;
        }
        // Held just above the bound, so that no product leaves its type.
        pending.push_back({node->getFirst(), std::min(copies, kMaxGroupRepetitions + 1)});
        pending.push_back({node->getSecond(), std::min(copies, kMaxGroupRepetitions + 1)});
    }
    return !groupsRepeat || mostOfAMember <= kMaxGroupRepetitions;
}

}  // namespace

bool AreContentModelsBounded(const xercesc::SchemaGrammar& grammar, std::u16string& typeName) {
    xercesc::RefHashTableOf<xercesc::ComplexTypeInfo>* types = grammar.getComplexTypeRegistry();
    if (types == nullptr) {
        return true;
    }
    xercesc::RefHashTableOfEnumerator<xercesc::ComplexTypeInfo> all(types);
    while (all.hasMoreElements()) {
        const xercesc::ComplexTypeInfo& type = all.nextElement();
        if (!IsBounded(type.getContentSpec())) {
            typeName = type.getTypeLocalName();
            return false;
        }
    }
    return true;
}
