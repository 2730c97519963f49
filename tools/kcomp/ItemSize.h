#ifndef DORVEX_KCOMP_ITEMSIZE_H
#define DORVEX_KCOMP_ITEMSIZE_H

#include <cstddef>
#include <string_view>

#include "kcomp/DataItem.h"
#include "kcomp/EntryReader.h"

/// What an item takes over from the groups above it.
struct Inherited {
    Usage usage = Usage::None;
    std::size_t binaryDigits = 0;
    std::string_view binaryPicture;
    SignPosition sign = SignPosition::None;

    /// Goes from the group on to an item below it.
    void Meet(const DataItem& item) {
        if (item.usage != Usage::None) {
            usage = item.usage;
            binaryDigits = item.binaryDigits;
            binaryPicture = item.binaryPicture;
        }
        sign = item.sign == SignPosition::None ? sign : item.sign;
    }
};

/// An index, a pointer or the pointer to a procedure.
bool IsAddress(Usage usage);

/// COMP and COMP-5, whose size goes by the system.
bool IsBinary(Usage usage);

/// The bytes of one occurrence of an elementary item whose usage, sign and description are set: as
/// this program counts them, where systems give the least room, and where they give the most, slack
/// bytes included.
std::size_t SizeOf(const DataItem& item);
std::size_t LeastSizeOf(const DataItem& item);
std::size_t MostSizeOf(const DataItem& item);

/// What a size comes to with all occurrences of the item, but no more than any item may have.
std::size_t OfAll(std::size_t size, const DataItem& item);

/// The bytes that an item takes up with all its occurrences; of an item to which more may come,
/// those of what it has so far.
std::size_t StorageOf(DataItem& item, const ReadingContext& context);

#endif
