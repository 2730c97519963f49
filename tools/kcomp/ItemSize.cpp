// How many bytes items take up. Where systems differ, the size is that of a common 64-bit one,
// beside the least and the most that others give. An item whose record is still being read is
// measured from its clauses so far; its groups remember how far they were counted, so that asking
// again stays cheap. Sizes are cut off at the largest that an int holds. Clauses that disagree are
// not noticed here.

#include "kcomp/ItemSize.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "kcomp/Text.h"

namespace {

constexpr std::size_t kLargest = std::numeric_limits<int>::max();
constexpr std::size_t kPointerSize = 8;
constexpr std::size_t kIndexSize = 4;
constexpr std::size_t kDigitsOfByte = 3;
constexpr std::size_t kMostAddress = 8;
constexpr std::size_t kLeastAddress = 4;  // where an address has 32 bits
constexpr std::size_t kMostSlack = 7;     // before a synchronized item

/// The bytes that numbers of so many digits need in binary.
std::size_t CompactSize(std::size_t digits, bool isSigned) {
    // A decimal digit needs 3.322 bits.
    const std::size_t bits = digits * 3322 / 1000 + 1 + (isSigned ? 1 : 0);
    return (bits + 7) / 8;
}

std::size_t BinarySize(std::size_t digits) {
    constexpr std::size_t kHalfWord = 4;
    constexpr std::size_t kWord = 9;
    constexpr std::size_t kDoubleWord = 18;
    // The machine word that holds so many digits, two bytes at least; or two of the largest.
    if (digits <= kHalfWord) {
        return 2;
    }
    if (digits <= kWord) {
        return 4;
    }
    return digits <= kDoubleWord ? 8 : 16;
}

std::size_t TimesOf(const DataItem& item) {
    // A table without bounds counts once.
    return IsDigits(item.maxOccurs) ? std::stoul(item.maxOccurs) : 1;
}

/// The bytes of an elementary item whose record is not complete; without complaints, which come
/// when it is.
std::size_t SizeSoFar(const DataItem& item, const ReadingContext& context) {
    std::vector<const DataItem*> path;
    for (const DataItem* at = &item; at != nullptr; at = at->parent) {
        path.push_back(at);
    }
    Inherited clauses;
    // From the record downwards, because the nearest clause counts.
    std::for_each(path.rbegin(), path.rend(),
                  [&clauses](const DataItem* at) { clauses.Meet(*at); });
    DataItem probe;
    probe.usage = clauses.usage == Usage::None ? Usage::Display : clauses.usage;
    probe.binaryDigits = clauses.binaryDigits;
    probe.description =
        ReadPicture(item.picture.empty() ? clauses.binaryPicture : item.picture, context.symbols);
    if (probe.description.category == Category::National) {
        probe.usage = Usage::National;
    }
    const bool takesSign = probe.description.isSigned && probe.usage == Usage::Display;
    probe.sign = takesSign ? clauses.sign : SignPosition::None;
    return SizeOf(probe);
}

}  // namespace

bool IsAddress(Usage usage) {
    return usage == Usage::Index || usage == Usage::Pointer || usage == Usage::ProcedurePointer;
}

bool IsBinary(Usage usage) {
    return usage == Usage::Comp4 || usage == Usage::Comp5;
}

std::size_t SizeOf(const DataItem& item) {
    switch (item.usage) {
        case Usage::Comp1:
            return 4;
        case Usage::Comp2:
            return 8;
        case Usage::Comp3:
            // Half a byte for each digit and for the sign.
            return item.description.length / 2 + 1;
        case Usage::Comp4:
        case Usage::Comp5:
            return item.binaryDigits == kDigitsOfByte ? 1 : BinarySize(item.description.length);
        case Usage::Comp6:
            return (item.description.length + 1) / 2;
        case Usage::CompX:
            // PICTURE X counts bytes.
            return item.description.category == Category::Alphanumeric
                       ? item.description.length
                       : CompactSize(item.description.length, item.description.isSigned);
        case Usage::Index:
            return kIndexSize;
        case Usage::Pointer:
        case Usage::ProcedurePointer:
            return kPointerSize;
        case Usage::National:
            return 2 * item.description.length;
        default:
            break;
    }
    // Any other sign shares the byte of a digit.
    const bool separate =
        item.sign == SignPosition::LeadingSeparate || item.sign == SignPosition::TrailingSeparate;
    return item.description.length + (separate ? 1 : 0);
}

std::size_t LeastSizeOf(const DataItem& item) {
    const std::size_t size = SizeOf(item);
    if (IsAddress(item.usage)) {
        return kLeastAddress;
    }
    const Picture& picture = item.description;
    // Some systems use no more bytes than the digits need, other than for the types with a size.
    const bool binary = IsBinary(item.usage) && item.binaryDigits == 0;
    return binary ? std::min(size, CompactSize(picture.length, picture.isSigned)) : size;
}

std::size_t MostSizeOf(const DataItem& item) {
    const bool synchronized =
        std::any_of(item.notes.begin(), item.notes.end(),
                    [](const auto& note) { return note.first == "synchronized"; });
    return (IsAddress(item.usage) ? kMostAddress : SizeOf(item)) + (synchronized ? kMostSlack : 0);
}

std::size_t OfAll(std::size_t size, const DataItem& item) {
    // Cut off before as well, so that the product fits 64 bits.
    return std::min(std::min(size, kLargest) * TimesOf(item), kLargest);
}

std::size_t StorageOf(DataItem& item, const ReadingContext& context) {
    if (item.isComplete) {
        return item.storage;
    }
    if (!item.isGroup) {
        return OfAll(SizeSoFar(item, context), item);
    }
    // All children but the last are done, and have their place once they were asked for.
    std::size_t end = item.placedEnd;
    while (item.placedChildren < item.children.size()) {
        DataItem& child = *item.children[item.placedChildren];
        if (child.level <= kHighestLevel) {
            child.offset = child.redefined == nullptr ? item.placedEnd : child.redefined->offset;
            end = std::max(item.placedEnd, child.offset + StorageOf(child, context));
        }
        // The last one may grow, so it is counted anew each time.
        if (&child == item.children.back().get()) {
            break;
        }
        item.placedEnd = end;
        ++item.placedChildren;
    }
    return OfAll(end, item);
}
