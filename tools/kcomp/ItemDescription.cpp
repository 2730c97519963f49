// What the clauses of an item mean together with those of the groups above it. One walk down a
// complete record: each item gets its place and what it inherits, then its size, a group when all
// below it have theirs. The levels bound the recursion. A fault is complained of at the item where
// it shows, and the walk goes on. How pictures are read and what sizes systems give stands in
// Picture.cpp and ItemSize.cpp.

#include <algorithm>

#include "kcomp/ItemSize.h"
#include "kcomp/RecordBuilder.h"
#include "kcomp/Text.h"

namespace {

constexpr std::size_t kMostBytes = 8;  // of COMP-X

std::string_view UsageText(Usage usage) {
    switch (usage) {
        case Usage::Comp3:
            return "COMP-3";
        case Usage::Comp4:
            return "COMP";
        case Usage::Comp5:
            return "COMP-5";
        case Usage::Comp6:
            return "COMP-6";
        case Usage::CompX:
            return "COMP-X";
        case Usage::National:
            return "NATIONAL";
        default:
            return "DISPLAY";
    }
}

/// Usages of items that have no PICTURE.
bool StandsAlone(Usage usage) {
    return usage == Usage::Comp1 || usage == Usage::Comp2 || IsAddress(usage);
}

bool IsBinaryOrPacked(Usage usage) {
    return IsBinary(usage) || usage == Usage::Comp3 || usage == Usage::Comp6 ||
           usage == Usage::CompX;
}

/// The digits of the largest number that so many bytes hold.
std::size_t DigitsOfBytes(std::size_t bytes) {
    // 0.30103 is the decimal logarithm of 2.
    return bytes * 8 * 30103 / 100000 + 1;
}

class CKTItemDescriber {
public:
    explicit CKTItemDescriber(ReadingContext& context) : m_Context(context) {}

    /// Nests no deeper than levels do.
    void Describe(DataItem& item, Inherited clauses, std::size_t offset) {
        clauses.Meet(item);
        item.offset = offset;
        if (item.isGroup) {
            DescribeGroup(item, clauses);
        } else {
            DescribeElementary(item, clauses);
        }
        item.storage = OfAll(item.storage, item);
        item.least = OfAll(item.least, item);
        item.most = OfAll(item.most, item);
        item.isComplete = true;
        CheckRedefinedSize(item);
    }

private:
    void DescribeGroup(DataItem& group, const Inherited& clauses) {
        if (group.justified || group.blankWhenZero) {
            Complain<Message::ItemIsGroup>(group);
        }
        std::size_t end = group.offset;
        for (const auto& child : group.children) {
            // Condition-names and level 66 have no storage of their own.
            if (child->level > kHighestLevel) {
                continue;
            }
            const std::size_t begin = child->redefined == nullptr ? end : child->redefined->offset;
            Describe(*child, clauses, begin);
            // A redefinition that is shorter than what it redefines takes nothing back.
            end = std::max(end, begin + child->storage);
            group.least += child->redefined == nullptr ? child->least : 0;
            group.most += child->redefined == nullptr ? child->most : 0;
        }
        group.storage = end - group.offset;
    }

    /// On level 01 a redefinition may have more; below, it gets what there is. Only what is too
    /// large wherever the program may run is refused.
    void CheckRedefinedSize(const DataItem& item) {
        const DataItem* object = item.redefined;
        const bool below = item.level > 1 && item.level <= kHighestLevel;
        if (below && object != nullptr && object->most > 0 && item.least > object->most) {
            Complain<Message::ItemTooLarge>(item, Quoted(item.redefines));
        }
    }

    void DescribeElementary(DataItem& item, const Inherited& clauses) {
        item.usage = clauses.usage == Usage::None ? Usage::Display : clauses.usage;
        item.binaryDigits = clauses.binaryDigits;
        if (StandsAlone(item.usage)) {
            item.category = Category::Numeric;
            if (!item.picture.empty() || item.justified || item.blankWhenZero) {
                Complain<Message::ItemTakesNoClauses>(item);
            }
        } else if (item.picture.empty() && clauses.binaryPicture.empty()) {
            Complain<Message::ItemWithoutPicture>(item);
            return;
        } else if (!item.picture.empty() && !clauses.binaryPicture.empty()) {
            Complain<Message::ItemIsBinary>(item);
            return;
        } else if (!ReadItemPicture(item, clauses)) {
            return;
        }
        DescribeSign(item, clauses.sign);
        item.storage = SizeOf(item);
        item.least = LeastSizeOf(item);
        item.most = MostSizeOf(item);
    }

    bool ReadItemPicture(DataItem& item, const Inherited& clauses) {
        // A binary type comes with the PICTURE that stands for its size.
        if (item.picture.empty()) {
            item.picture = clauses.binaryPicture;
        }
        item.description = ReadPicture(item.picture, m_Context.symbols);
        if (!item.description.fault.Empty()) {
            m_Context.report.Error(item.picturePlace, item.description.fault);
            return false;
        }
        item.category = item.description.category;
        // PICTURE X gives the bytes of a COMP-X number instead of its digits.
        if (item.usage == Usage::CompX && item.category == Category::Alphanumeric &&
            item.description.length <= kMostBytes) {
            item.category = Category::Numeric;
            item.description.digits = DigitsOfBytes(item.description.length);
        }
        if (item.binaryDigits > 0) {
            item.description.digits = item.binaryDigits;
        }
        return UsageFits(item) && OtherClausesFit(item);
    }

    bool UsageFits(DataItem& item) {
        const bool numeric = item.category == Category::Numeric;
        const bool national = item.category == Category::National;
        // PICTURE N means this usage by itself.
        if (national && item.usage == Usage::Display) {
            item.usage = Usage::National;
        }
        // COMP-6 is the one numeric usage without room for a sign.
        const bool fits =
            (numeric && !(item.usage == Usage::Comp6 && item.description.isSigned)) ||
            (national && item.usage == Usage::National) ||
            (item.category == Category::NumericEdited && item.usage == Usage::National) ||
            (!national && item.usage == Usage::Display);
        if (!fits) {
            Complain<Message::ItemUsage>(item, UsageText(item.usage), Quoted(item.picture));
        }
        return fits;
    }

    bool OtherClausesFit(DataItem& item) {
        const bool text =
            item.category != Category::Numeric && item.category != Category::NumericEdited;
        if (item.justified && !text) {
            Complain<Message::ItemJustified>(item);
            return false;
        }
        if (!item.blankWhenZero) {
            return true;
        }
        // An asterisk fills the item where the clause would clear it.
        if (text || item.description.isSigned || IsBinaryOrPacked(item.usage) ||
            item.picture.find('*') != std::string::npos) {
            Complain<Message::ItemBlank>(item);
            return false;
        }
        // Blank is no number: the clause turns a numeric item into an edited one.
        item.category = Category::NumericEdited;
        return true;
    }

    /// A sign clause of a group reaches the signed numeric items that are kept as text.
    void DescribeSign(DataItem& item, SignPosition sign) {
        const bool takesSign = item.category == Category::Numeric && item.description.isSigned &&
                               (item.usage == Usage::Display || item.usage == Usage::National);
        if (item.sign != SignPosition::None && !takesSign) {
            Complain<Message::ItemSign>(item);
        }
        item.sign = takesSign ? sign : SignPosition::None;
    }

    /// The first value of each of these messages is the name of the item.
    template <Message kId, typename... Values>
    void Complain(const DataItem& item, const Values&... values) {
        m_Context.report.Error(item.place, TextOf<kId>(ShownName(item), values...));
    }

    ReadingContext& m_Context;
};

}  // namespace

void DescribeItem(DataItem& item, ReadingContext& context) {
    CKTItemDescriber(context).Describe(item, {}, 0);
}
