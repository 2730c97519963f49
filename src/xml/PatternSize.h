#ifndef DORVEX_XML_PATTERNSIZE_H
#define DORVEX_XML_PATTERNSIZE_H

#include <cstdint>
#include <string_view>

/// What the parser library makes of a pattern as soon as it reads it: it writes every repetition
/// out, as often as its braces say, and follows parentheses with its own stack.
struct PatternSize {
    std::uint64_t parts = 0;  ///< characters, classes and groups, repeated ones each time
    std::size_t depth = 0;    ///< of parentheses
};

/// Estimates the size without building anything. What is no valid pattern has some size too.
PatternSize MeasurePattern(std::u16string_view pattern);

#endif
