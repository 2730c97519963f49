#ifndef DORVEX_SCHEMA_OCCURRENCE_H
#define DORVEX_SCHEMA_OCCURRENCE_H

#include <string>
#include <string_view>

#include "support/Text.h"

/// Says whether `text` is a decimal number above 1, however large.
inline bool IsNumberAboveOne(std::string_view text) {
    const std::string_view number = PlainNumber(text);
    return !number.empty() && number != "0" && number != "1" &&
           number.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Says whether `maximum`, the written `maxOccurs` or null, lets its declaration or group occur 0
/// times at most.
inline bool IsNever(const std::string* maximum) {
    return maximum != nullptr && PlainNumber(*maximum) == "0";
}

#endif
