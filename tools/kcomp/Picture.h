#ifndef DORVEX_KCOMP_PICTURE_H
#define DORVEX_KCOMP_PICTURE_H

#include <cstddef>
#include <string_view>

#include "kcomp/Messages.h"

/// What an elementary item holds.
enum class Category {
    Numeric,
    Alphanumeric,  ///< alphabetic items too
    AlphanumericEdited,
    NumericEdited,  ///< floating-point edited items too
    National        ///< national-edited items too
};

/// What SPECIAL-NAMES says about pictures.
struct PictureSymbols {
    char currency = '$';
    bool decimalComma = false;
};

/// What a PICTURE says about its item.
struct Picture {
    Category category = Category::Alphanumeric;
    bool isSigned = false;     ///< holds the symbol S
    std::size_t length = 0;    ///< character positions; of a numeric item its digits
    std::size_t digits = 0;    ///< digit positions of a numeric item, the P included
    std::size_t decimals = 0;  ///< those right of the decimal point
    CKTMessageText fault;      ///< the complaint when the text is no PICTURE; the rest is then void
};

/// Reads a PICTURE character-string, in which `symbols` says what stands for the currency sign and
/// the decimal point; counts in parentheses are numbers. Reports nothing: what is no PICTURE comes
/// back with a fault, whose place the caller knows.
Picture ReadPicture(std::string_view text, const PictureSymbols& symbols);

#endif
