// Text as COBOL sees it. Letters are those from A to Z whatever the locale says, and all other
// bytes pass through as they are; columns count bytes. What words and literals are is not known
// here.

#include "kcomp/Text.h"

#include <algorithm>

namespace {

constexpr std::size_t kTabWidth = 8;

char UpperOf(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::string_view TakeLine(std::string_view& content) {
    const std::size_t end = content.find('\n');
    std::string_view line = content.substr(0, end);
    content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
    // Sources come from systems with other line ends, too.
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::string ExpandTabs(std::string_view line) {
    std::string expanded;
    expanded.reserve(line.size());
    for (const char c : line) {
        if (c == '\t') {
            // In the fixed format a column decides what text means, so a tab must take its room.
            expanded.append(kTabWidth - expanded.size() % kTabWidth, ' ');
        } else {
            expanded += c;
        }
    }
    return expanded;
}

std::string_view Trim(std::string_view text) {
    // Only blanks: tabs are expanded before anything else is done to a line.
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ToUpper(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), UpperOf);
    return upper;
}

bool SameWord(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return UpperOf(x) == UpperOf(y); });
}

bool IsDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}
