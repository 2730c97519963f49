// Type definitions. What is below one fills the item; afterwards a value that has to stand beside
// further items moves into an item of its own. A list type has no COBOL form: it gets its line
// where its value would have moved, and nowhere else, because a list without attributes beside it
// is reported as an empty item. A type with mixed content keeps its value together.

#include <algorithm>

#include "schema/Complaints.h"
#include "schema/Handlers.h"
#include "schema/SchemaVocabulary.h"

namespace {

/// The name of the declaration that this empty definition stands in; null when there is more to it.
const std::string* UnconstrainedDeclaration(const CKTXMLElement* definition) {
    return definition->getFirstChildElem() == nullptr && definition->isParent()
               ? AttributeValue(definition->getParent(), "name")
               : nullptr;
}

void MakeMixedValue(CKTRecordTree& records, OpenItem& open) {
    open.hasMixedValue = true;
    if (CKTCOBOLRecordItem* text =
            records.MakeGeneratedItem(*open.item, open.item->m_sDataName, "-mixed-value")) {
        text->m_sPicType = "X";
        text->m_sPicLength = "80";
    }
}

/// Says whether the item has a value of its own beside the data items below it.
bool HasValueBesideItems(const OpenItem& open) {
    const CKTCOBOLRecordItem& item = *open.item;
    return !item.m_bIsAttribute && (item.HasValue() || open.isList) &&
           std::any_of(item.m_Children.begin(), item.m_Children.end(),
                       [](const auto& child) { return !child->IsCondition(); });
}

}  // namespace

Answer TakeTypeDefinition(CKTWalk& walk, CKTXMLElement* definition, OpenItem& open) {
    if (open.item->m_pSourceElement == nullptr) {
        // The first definition counts: the way up to it tells whether the item is complete.
        open.item->m_pSourceElement = definition;
    }
    if (const std::string* name = UnconstrainedDeclaration(definition)) {
        // Fails, so that the declaration leaves no item.
        Report<SchemaMessage::UnconstrainedType>(*name);
        return Answer::Nothing;
    }
    const std::string* mixed = AttributeValue(definition, "mixed");
    if (mixed != nullptr && *mixed == "true" && !open.hasMixedValue) {
        MakeMixedValue(walk.Records(), open);
    }
    const Answer content = walk.WalkChildren(definition, open);
    if (content == Answer::ItemGone) {
        return content;
    }
    // Any other value of the attribute, as "1" for true, keeps the value together, on purpose.
    const bool maySplit = mixed == nullptr || mixed->empty() || *mixed == "false";
    if (maySplit && HasValueBesideItems(open)) {
        if (open.isList) {
            open.LeaveListOut();
        } else {
            walk.Records().MoveValue(open, true);
        }
    }
    return content;
}
