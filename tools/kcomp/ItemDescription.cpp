// What the clauses of an item mean together with those of the groups above it.
#include <algorithm>
#include <limits>

#include "kcomp/RecordBuilder.h"
#include "kcomp/Text.h"

namespace {

constexpr std::size_t kLargest = std::numeric_limits<int>::max();
constexpr std::size_t kPointerSize = 8;
constexpr std::size_t kIndexSize = 4;
constexpr std::size_t kDigitsOfByte = 3;

std::string_view UsageText(Usage usage) {
    switch (usage) {
        case Usage::Comp3:
            return "COMP-3";
        case Usage::Comp4:
            return "COMP";
        case Usage::Comp5:
            return "COMP-5";
        case Usage::National:
            return "NATIONAL";
        default:
            return "DISPLAY";
    }
}

/// Usages of items that have no PICTURE.
bool StandsAlone(Usage usage) {
    return usage == Usage::Comp1 || usage == Usage::Comp2 || usage == Usage::Index ||
           usage == Usage::Pointer;
}

bool IsBinaryOrPacked(Usage usage) {
    return usage == Usage::Comp3 || usage == Usage::Comp4 || usage == Usage::Comp5;
}

std::size_t BinarySize(std::size_t digits) {
    constexpr std::size_t kHalfWord = 4;
    constexpr std::size_t kWord = 9;
    constexpr std::size_t kDoubleWord = 18;
    if (digits <= kHalfWord) {
        return 2;
    }
    if (digits <= kWord) {
        return 4;
    }
    return digits <= kDoubleWord ? 8 : 16;
}

std::size_t SizeOf(const DataItem& item) {
    switch (item.usage) {
        case Usage::Comp1:
            return 4;
        case Usage::Comp2:
            return 8;
        case Usage::Comp3:
            return item.description.length / 2 + 1;
        case Usage::Comp4:
        case Usage::Comp5:
            return item.binaryDigits == kDigitsOfByte ? 1 : BinarySize(item.description.length);
        case Usage::Index:
            return kIndexSize;
        case Usage::Pointer:
            return kPointerSize;
        case Usage::National:
            return 2 * item.description.length;
        default:
            break;
    }
    const bool separate =
        item.sign == SignPosition::LeadingSeparate || item.sign == SignPosition::TrailingSeparate;
    return item.description.length + (separate ? 1 : 0);
}

/// What an item takes over from the groups above it.
struct Inherited {
    Usage usage = Usage::None;
    std::size_t binaryDigits = 0;
    std::string_view binaryPicture;
    SignPosition sign = SignPosition::None;
};

class CKTItemDescriber {
public:
    explicit CKTItemDescriber(ReadingContext& context) : m_Context(context) {}

    /// Nests no deeper than levels do.
    void Describe(DataItem& item, Inherited clauses, std::size_t offset) {
        if (item.usage != Usage::None) {
            clauses.usage = item.usage;
            clauses.binaryDigits = item.binaryDigits;
            clauses.binaryPicture = item.binaryPicture;
        }
        clauses.sign = item.sign == SignPosition::None ? clauses.sign : item.sign;
        item.offset = offset;
        if (item.isGroup) {
            DescribeGroup(item, clauses);
        } else {
            DescribeElementary(item, clauses);
        }
        const std::size_t times = IsDigits(item.maxOccurs) ? std::stoul(item.maxOccurs) : 1;
        item.storage = std::min(std::min(item.storage, kLargest) * times, kLargest);
    }

private:
    void DescribeGroup(DataItem& group, const Inherited& clauses) {
        if (group.justified || group.blankWhenZero) {
            Complain(group, "is a group, which is neither JUSTIFIED nor BLANK WHEN ZERO");
        }
        std::size_t end = group.offset;
        for (const auto& child : group.children) {
            if (child->level > kHighestLevel) {
                continue;
            }
            const std::size_t begin = child->redefined == nullptr ? end : child->redefined->offset;
            Describe(*child, clauses, begin);
            end = std::max(end, begin + child->storage);
        }
        group.storage = end - group.offset;
    }

    void DescribeElementary(DataItem& item, const Inherited& clauses) {
        item.usage = clauses.usage == Usage::None ? Usage::Display : clauses.usage;
        item.binaryDigits = clauses.binaryDigits;
        if (StandsAlone(item.usage)) {
            item.category = Category::Numeric;
            if (!item.picture.empty() || item.justified || item.blankWhenZero) {
                Complain(item, "has a usage that takes neither PICTURE nor JUSTIFIED nor BLANK");
            }
        } else if (item.picture.empty() == clauses.binaryPicture.empty()) {
            Complain(item, item.picture.empty() ? "has neither a PICTURE nor items below it"
                                                : "has a binary type, which takes no PICTURE");
            return;
        } else if (!ReadItemPicture(item, clauses)) {
            return;
        }
        DescribeSign(item, clauses.sign);
        item.storage = SizeOf(item);
    }

    bool ReadItemPicture(DataItem& item, const Inherited& clauses) {
        if (item.picture.empty()) {
            item.picture = clauses.binaryPicture;
        }
        item.description = ReadPicture(item.picture, m_Context.symbols);
        if (!item.description.fault.empty()) {
            m_Context.report.Error(item.picturePlace, item.description.fault);
            return false;
        }
        item.category = item.description.category;
        if (item.binaryDigits > 0) {
            item.description.digits = item.binaryDigits;
        }
        return UsageFits(item) && OtherClausesFit(item);
    }

    bool UsageFits(DataItem& item) {
        const bool numeric = item.category == Category::Numeric;
        const bool national = item.category == Category::National;
        if (national && item.usage == Usage::Display) {
            item.usage = Usage::National;
        }
        const bool fits =
            numeric || (national && item.usage == Usage::National) ||
            (item.category == Category::NumericEdited && item.usage == Usage::National) ||
            (!national && item.usage == Usage::Display);
        if (!fits) {
            Complain(item, "has USAGE " + std::string(UsageText(item.usage)) +
                               ", which does not go with PICTURE " + Quoted(item.picture));
        }
        return fits;
    }

    bool OtherClausesFit(DataItem& item) {
        const bool text =
            item.category != Category::Numeric && item.category != Category::NumericEdited;
        if (item.justified && !text) {
            Complain(item, "is numeric and cannot be JUSTIFIED");
            return false;
        }
        if (!item.blankWhenZero) {
            return true;
        }
        if (text || item.description.isSigned || IsBinaryOrPacked(item.usage) ||
            item.picture.find('*') != std::string::npos) {
            Complain(item, "cannot be BLANK WHEN ZERO");
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
            Complain(item, "has a SIGN clause but is no signed numeric item of USAGE DISPLAY");
        }
        item.sign = takesSign ? sign : SignPosition::None;
    }

    void Complain(const DataItem& item, const std::string& text) {
        const std::string name = item.name.empty() ? "FILLER" : item.name;
        m_Context.report.Error(item.place, "Item " + Quoted(name) + " " + text);
    }

    ReadingContext& m_Context;
};

}  // namespace

void DescribeItem(DataItem& item, ReadingContext& context) {
    CKTItemDescriber(context).Describe(item, {}, 0);
}
