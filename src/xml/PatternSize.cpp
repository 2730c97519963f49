// One pass over a pattern, which adds up what the library would write out of it. Open groups are a
// list and not recursion, and numbers stop at a bound far above any limit, so every pattern is
// measured in the time of its length. Whether it is a valid one is left to the library. Marks such
// as "|" and "*" count as parts of their own: the answer may be too high and is never meant to be
// exact.

#include "xml/PatternSize.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::uint64_t kEndless = 1U << 31;  // its square is still a number

/// The place behind the class that begins at `at`; classes can be taken from classes.
std::size_t SkipClass(std::u16string_view pattern, std::size_t at) {
    std::size_t depth = 0;
    for (; at < pattern.size(); ++at) {
        if (pattern[at] == '\\') {
            ++at;
        } else if (pattern[at] == '[') {
            ++depth;
        } else if (pattern[at] == ']' && --depth == 0) {
            return at + 1;
        }
    }
    return at;
}

/// Reads the braces that begin at `at`, which moves behind them; the answer is the larger number,
/// and 1 for a name of characters.
std::uint64_t TakeRepetition(std::u16string_view pattern, std::size_t& at) {
    std::uint64_t largest = 1;
    std::uint64_t number = 0;
    while (++at < pattern.size() && pattern[at] != '}') {
        const char16_t c = pattern[at];
        number = c >= '0' && c <= '9' ? std::min(number * 10 + (c - u'0'), kEndless) : 0;
        largest = std::max(largest, number);
    }
    ++at;
    return largest;
}

/// An open group: its parts so far, and those of the last thing in it, which may be repeated.
struct Group {
    std::uint64_t parts = 1;
    std::uint64_t last = 0;

    void Add(std::uint64_t more) {
        parts = std::min(parts + more, kEndless);
        last = more;
    }
};

}  // namespace

PatternSize MeasurePattern(std::u16string_view pattern) {
    PatternSize size;
    std::vector<Group> open(1);
    for (std::size_t at = 0; at < pattern.size();) {
        switch (pattern[at]) {
            case '(':
                open.emplace_back();
                size.depth = std::max(size.depth, open.size() - 1);
                ++at;
                break;
            case ')':
                // One that closes nothing is the library's to complain about.
                if (open.size() > 1) {
                    const std::uint64_t parts = open.back().parts;
                    open.pop_back();
                    open.back().Add(parts);
                }
                ++at;
                break;
            case '{': {
                const std::uint64_t repeated = open.back().last * TakeRepetition(pattern, at);
                // Its single copy is counted already.
                open.back().parts -= std::min(open.back().parts, open.back().last);
                open.back().Add(std::min(repeated, kEndless));
                break;
            }
            case '[':
                open.back().Add(1);
                at = SkipClass(pattern, at);
                break;
            default:
                open.back().Add(1);
                // A backslash takes the next character along, whatever that is.
                at += pattern[at] == '\\' ? 2 : 1;
                break;
        }
    }
    // Groups that nothing closes count as well.
    for (const Group& group : open) {
        size.parts = std::min(size.parts + group.parts, kEndless);
    }
    return size;
}
