#ifndef DORVEX_SCHEMA_OCCURRENCE_H
#define DORVEX_SCHEMA_OCCURRENCE_H

#include <algorithm>
#include <string>
#include <string_view>

/// Says whether `text` is a decimal number above 1, however large.
inline bool IsNumberAboveOne(std::string_view text) {
    const bool digits = !text.empty() && std::all_of(text.begin(), text.end(),
                                                     [](char c) { return c >= '0' && c <= '9'; });
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    return digits && !text.empty() && text != "1";
}

/// Says whether `maximum`, the written `maxOccurs` or null, lets its declaration or group occur 0
/// times at most.
inline bool IsNever(const std::string* maximum) {
    return maximum != nullptr && !maximum->empty() &&
           maximum->find_first_not_of('0') == std::string::npos;
}

#endif
