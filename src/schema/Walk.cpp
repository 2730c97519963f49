// The walk: each construct is handed to the handler of its kind, which hands what is below it back.
// Depth and visits are bounded here, for all handlers. An item is removed in one place, when the
// last construct of its type has yielded nothing. What comes back from below is one answer; whoever
// hears that its item is gone forgets it, and whoever made the item tells those above that nothing
// came of it. No handler looks at the record tree to find out what happened.

#include "schema/Walk.h"

#include "schema/Complaints.h"
#include "schema/Handlers.h"
#include "schema/SchemaVocabulary.h"

namespace {

/// Counts how deeply constructs are nested at the moment.
class CKTNestingGuard {
public:
    explicit CKTNestingGuard(std::size_t& nesting) : m_nNesting(nesting) { ++m_nNesting; }
    ~CKTNestingGuard() { --m_nNesting; }
    CKTNestingGuard(const CKTNestingGuard&) = delete;
    CKTNestingGuard& operator=(const CKTNestingGuard&) = delete;

private:
    std::size_t& m_nNesting;
};

/// Only a declaration can begin a record; anything else fills an item that is there.
bool NeedsItem(GeneratorKind kind) {
    return kind != GeneratorKind::Element && kind != GeneratorKind::Attribute;
}

}  // namespace

Answer CKTWalk::WalkHead(CKTXMLElement* head) {
    m_Records.Begin();
    OpenItem top(nullptr);
    return Walk(head, top);
}

Answer CKTWalk::Walk(CKTXMLElement* construct, OpenItem& open) {
    if (construct == nullptr) {
        return Answer::Nothing;
    }
    const CKTNestingGuard nesting(m_nNesting);
    if (m_Records.IsGivenUp() || !CountVisit(0)) {
        return Answer::GivenUp;
    }
    const Answer answer = Dispatch(construct, open);
    // An item that is gone is told all the same, because nobody above may touch it any more.
    if (m_Records.IsGivenUp() && answer != Answer::ItemGone) {
        return Answer::GivenUp;
    }
    return answer == Answer::Nothing ? RemoveIfEmpty(construct, open) : answer;
}

Answer CKTWalk::Dispatch(CKTXMLElement* construct, OpenItem& open) {
    const GeneratorKind kind = GeneratorKindOf(construct->getName());
    if (open.item == nullptr && NeedsItem(kind)) {
        return Answer::Nothing;
    }
    switch (kind) {
        case GeneratorKind::Element:
            return TakeElement(*this, construct, open);
        case GeneratorKind::Attribute:
            return TakeAttribute(*this, construct, open);
        case GeneratorKind::AttributeGroup:
        case GeneratorKind::Group:
        case GeneratorKind::Sequence:
        case GeneratorKind::Choice:
        case GeneratorKind::All:
            return TakeModelGroup(*this, construct, open);
        case GeneratorKind::Union:
            return TakeUnion(*this, construct, open);
        case GeneratorKind::List:
            // A list has no item: whether its value is lost is known only when its type is
            // complete.
            open.NoteList(m_pSimpleBase);
            return Answer::Made;
        case GeneratorKind::Any:
        case GeneratorKind::AnyAttribute:
            // Left out, but no failure: what stands beside the wildcard is converted.
            Report<SchemaMessage::Wildcard>();
            return Answer::Made;
        case GeneratorKind::Extension:
            return TakeExtension(*this, construct, open);
        case GeneratorKind::Restriction:
            return TakeRestriction(*this, construct, open);
        case GeneratorKind::SimpleType:
        case GeneratorKind::ComplexType:
        case GeneratorKind::SimpleContent:
        case GeneratorKind::ComplexContent:
            return TakeTypeDefinition(*this, construct, open);
        // Annotations, identity constraints and whatever is unknown neither add to the item nor
        // fail.
        default:
            return Answer::Made;
    }
}

Answer CKTWalk::WalkChildren(const CKTXMLElement* construct, OpenItem& open) {
    for (CKTXMLElement* child = construct->getFirstChildElem(); child != nullptr;
         child = child->getNextSibling()) {
        const Answer answer = Walk(child, open);
        if (answer == Answer::ItemGone || answer == Answer::GivenUp) {
            return answer;
        }
    }
    return Answer::Made;
}

/// Removes the item when it is empty and `construct` is the last one of its type.
Answer CKTWalk::RemoveIfEmpty(const CKTXMLElement* construct, const OpenItem& open) {
    const CKTCOBOLRecordItem* item = open.item;
    if (item == nullptr) {
        return Answer::Nothing;
    }
    for (const CKTXMLElement* up = construct; up != item->m_pSourceElement; up = up->getParent()) {
        // More of the type is still to come, or the walk has left the type by a reference or a
        // base, so that its end is not in sight from here.
        if (up == nullptr || up->getNextSibling() != nullptr) {
            return Answer::Nothing;
        }
    }
    // An attribute stays even without a picture; the writer says that it is empty.
    if (!item->m_Children.empty() || item->HasValue() || item->m_bIsAttribute) {
        return Answer::Nothing;
    }
    m_Records.Remove(*item);
    return Answer::ItemGone;
}
