// What this room offers and no run calls: the record writer judges items as it reaches them, unique
// names come from an index, and lines are laid out as a whole. The functions here are the
// definition of what those do.

#include <algorithm>
#include <ostream>

#include "cobol/FixedFormat.h"
#include "cobol/KTCOBOLRecordItem.h"

bool CKTCOBOLRecordItem::IsValidCOBOLItem() {
    const Form form = FormOf();
    if (form == Form::Complete || form == Form::Unusable) {
        return form == Form::Complete;
    }
    const bool group =
        form == Form::Group && std::any_of(m_Children.begin(), m_Children.end(), [](auto& child) {
            return !child->IsCondition() && child->IsValidCOBOLItem();
        });
    if (!group) {
        ReportEmptyStructure();
    }
    return group;
}

bool CKTCOBOLRecordItem::FindRecordItemByName(CKTCOBOLRecordItem* searchIn,
                                              const CKTCOBOLRecordItem* item, bool& reached) {
    // The names of the items before this one count, those behind it do not.
    if (!reached && searchIn == item) {
        reached = true;
        return true;
    }
    for (const auto& child : searchIn->m_Children) {
        if (!reached && child.get() == item) {
            reached = true;
            return true;
        }
        // What is not written takes no name from others.
        if (child->IsValidCOBOLItem() && child->m_sDataName == item->m_sDataName) {
            return true;
        }
        if (FindRecordItemByName(child.get(), item, reached)) {
            return true;
        }
    }
    return false;
}

std::string CKTCOBOLRecordItem::PictureClause() const {
    std::string clause;
    AppendPictureClause(clause);
    return clause;
}

void CKTCOBOLRecordItem::OutputCOBOLToken(const char* token, std::ostream& out, int indent,
                                          int& column, bool comment) {
    // What is not written must not move the column.
    if (out.fail()) {
        return;
    }
    std::string text;
    LayOutToken(token, indent, column, comment, text);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
}
